// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageDots.h"

#include <span>

namespace dialog {

PageDotsBuilder::PageDotsBuilder(const DotForm &form)
    : mPreparation(form.settings, std::size_t(form.dots.width()), form.format())
{
    mDots.form = form;
    mDots.rowBytes = mPreparation.outputRowBytes();
    const std::size_t bytes = mDots.rowBytes * std::size_t(form.dots.height());
    mDots.black.resize(bytes);
    if (form.settings.colorMode == imaging::ColorMode::BlackRed) {
        mDots.red.resize(bytes);
    }
}

void PageDotsBuilder::add(const PixelBand &band)
{
    const std::size_t first = std::size_t(band.firstRow) * mDots.rowBytes;
    const std::size_t bytes = std::size_t(band.rows) * mDots.rowBytes;
    const auto rowsOf = [first, bytes](std::vector<std::uint8_t> &plane) {
        return plane.empty() ? std::span<std::uint8_t>()
                             : std::span<std::uint8_t>(plane).subspan(first, bytes);
    };
    [[maybe_unused]] const bool done =
        mPreparation.rows(band.bytes, rowsOf(mDots.black), rowsOf(mDots.red));
    Q_ASSERT(done);
}

Result<PageDots> dotsOf(const SheetPixels &pixels, const std::function<bool(int band)> &goOn)
{
    PageDotsBuilder dots(pixels.form());
    for (int i = 0; i < pixels.bands(); ++i) {
        if (!goOn(i)) {
            return Failure{FailureKind::Cancelled, {}, {}};
        }
        const Result<PixelBand> band = pixels.band(i);
        if (!band) {
            return band.failure();
        }
        dots.add(band.value());
    }
    return dots.take();
}

} // namespace dialog
