// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/ColorControls.h"
#include "imaging/PageSettings.h"
#include "imaging/ProcessorPath.h"

#include <cstddef>
#include <cstdint>

namespace imaging {

/// The grey of a colour: the luma of ITU-R BT.601 with weights of 256ths, on the stored values.
/// Equal values give themselves.
constexpr std::uint8_t greyOf(unsigned red, unsigned green, unsigned blue)
{
    return std::uint8_t((77 * red + 150 * green + 29 * blue + 128) >> 8);
}

/// Turns rows of the input into rows of toned grey, one byte a pixel. Each colour is toned before
/// the grey is made of it, as the preview does. Immutable; any thread.
class GreyRows
{
public:
    GreyRows(InputFormat format, const ColorControls &tones);

    /// `grey` has `width` bytes and does not overlap `pixels`.
    void apply(const std::uint8_t *pixels, std::size_t width, std::uint8_t *grey,
               ProcessorPath path) const;

private:
    InputFormat mFormat;
    ColorControls mTones;
};

} // namespace imaging
