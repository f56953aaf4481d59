// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/DiffusionWeights.h"
#include "imaging/ProcessorPath.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace imaging {

/// Makes dots of grey by error diffusion: rows are gone through in turns from the left and from the
/// right, and what a dot prints too much or too little goes to the neighbours that come later, in
/// parts that depend on the tone.
///
/// Pure black is always inked and pure white never, so text and barcodes stay as they are. There
/// the error ends, and the pixel below starts with one of blue noise: a grey area begins with dots,
/// not with a gap. Holds the errors of one row, however long the page is. One thread at a time.
class ErrorDiffusion
{
public:
    explicit ErrorDiffusion(std::size_t width, const DiffusionTable &table = diffusionTable());

    /// Sets the bits of the page's next row: most significant bit first, 1 is ink; the bits behind
    /// the last pixel are 0. `grey` has `width` bytes, `ink` has (width + 7) / 8.
    void apply(const std::uint8_t *grey, std::uint8_t *ink, ProcessorPath path);

private:
    void diffuse(ProcessorPath path);

    std::size_t mWidth;
    std::size_t mRow = 0;
    DiffusionTable mTable;
    std::vector<std::uint8_t> mTones;
    std::vector<std::int16_t> mDown;
    std::vector<std::int16_t> mAside;
    std::vector<std::int16_t> mSums;
    std::vector<std::uint8_t> mAhead;
    std::vector<std::uint8_t> mBehind;
    std::vector<std::uint8_t> mInk;
};

} // namespace imaging
