// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/SheetPixels.h"
#include "imaging/PagePreparation.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace dialog {

/// The dots of a label, as they will be printed: 8 dots a byte, the first in the most significant
/// bit, 1 is ink; the bits behind the last dot of a row are 0. A value.
struct PageDots
{
    DotForm form;
    std::size_t rowBytes = 0;
    /// form.dots.height() rows.
    std::vector<std::uint8_t> black;
    /// As many; empty for one colour. No dot is in both.
    std::vector<std::uint8_t> red;

    bool isBlack(int x, int y) const { return bit(black, x, y); }
    bool isRed(int x, int y) const { return !red.empty() && bit(red, x, y); }

private:
    bool bit(const std::vector<std::uint8_t> &plane, int x, int y) const
    {
        return (plane[std::size_t(y) * rowBytes + std::size_t(x) / 8] & (0x80 >> (x % 8))) != 0;
    }
};

/// Makes the dots of one label from its bands of pixels, which come in their order.
class PageDotsBuilder
{
public:
    explicit PageDotsBuilder(const DotForm &form);

    void add(const PixelBand &band);

    /// The dots, once all bands are there.
    PageDots take() { return std::move(mDots); }

private:
    PageDots mDots;
    imaging::PagePreparation mPreparation;
};

/// The dots of `pixels`, band by band. `goOn` is asked before each band; when it says no, there are
/// no dots and the failure is FailureKind::Cancelled.
Result<PageDots> dotsOf(
    const SheetPixels &pixels,
    const std::function<bool(int band)> &goOn = [](int) { return true; });

} // namespace dialog
