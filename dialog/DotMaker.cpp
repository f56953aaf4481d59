// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotMaker.h"

#include <utility>

namespace dialog {

bool DotRequest::hasRenderingOf(const DotRequest &other) const
{
    return document == other.document && page == other.page && sheet == other.sheet
        && scaling == other.scaling && form.hasGridOf(other.form);
}

DotMaker::DotMaker(std::size_t mostBytes)
    : mMostBytes(mostBytes)
    , mSource([](const SheetPixels &pixels, int band) { return pixels.band(band); })
{ }

void DotMaker::forget()
{
    mRendered = {};
    mBands.clear();
    mBands.shrink_to_fit();
    mBytes = 0;
    mMade = {};
    mDots.reset();
}

std::optional<DotPicture> DotMaker::make(const DotRequest &request, const GoOn &goOn)
{
    DotPicture picture;
    picture.request = request;
    picture.pageSize = request.document->pageSize(request.page);
    const SheetPixels pixels(request.document, request.page, request.sheet, request.scaling,
                             request.form);
    if (pixels.isTooLarge()) {
        return picture;
    }
    if (!mDots || !request.hasDotsOf(mMade)) {
        std::optional<Result<PageDots>> dots = dotsOf(request, pixels, goOn);
        if (!dots) {
            return {};
        }
        if (!*dots) {
            picture.why = request.document->title() + QStringLiteral(": ") + dots->failure().why;
            return picture;
        }
        mMade = request;
        mDots = std::make_shared<const PageDots>(std::move(*dots).value());
    }
    picture.dots = mDots;
    if (!request.pixels.isEmpty()) {
        picture.image = averagedDots(*mDots, request.pixels, request.plates);
    }
    return picture;
}

std::optional<Result<PageDots>> DotMaker::dotsOf(const DotRequest &request,
                                                 const SheetPixels &pixels, const GoOn &goOn)
{
    if (!request.hasRenderingOf(mRendered)) {
        forget();
        mRendered = request;
    }
    PageDotsBuilder dots(request.form);
    for (int i = 0; i < pixels.bands(); ++i) {
        if (!goOn(100 * i / pixels.bands())) {
            return {};
        }
        if (std::size_t(i) < mBands.size()) {
            dots.add(mBands[std::size_t(i)]);
            continue;
        }
        Result<PixelBand> band = mSource(pixels, i);
        if (!band) {
            return Result<PageDots>(band.failure());
        }
        dots.add(band.value());
        if (std::size_t(i) == mBands.size() && mBytes + band.value().bytes.size() <= mMostBytes) {
            mBytes += band.value().bytes.size();
            mBands.push_back(std::move(band).value());
        }
    }
    return Result<PageDots>(dots.take());
}

} // namespace dialog
