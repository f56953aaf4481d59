// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentPages.h"
#include "dialog/DotImages.h"
#include "dialog/PageDots.h"
#include "dialog/SheetLayout.h"
#include "dialog/SheetPixels.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// What is to be seen: the dots of a page of a document on a label.
struct DotRequest
{
    std::shared_ptr<const DocumentPages> document;
    int page = 0;
    Sheet sheet;
    Scaling scaling = Scaling::Fit;
    DotForm form;
    /// What the picture of all dots shows, and its size; without a size there is no picture.
    Plates plates = Plates::Both;
    QSize pixels;

    /// Whether only the settings of preparation, or the picture, differ: the document is rendered
    /// in the same way.
    bool hasRenderingOf(const DotRequest &other) const;

    bool hasDotsOf(const DotRequest &other) const
    {
        return hasRenderingOf(other) && form == other.form;
    }

    bool operator==(const DotRequest &other) const = default;
};

/// The dots of a page.
struct DotPicture
{
    DotRequest request;
    /// In points; empty when the page is damaged.
    QSizeF pageSize;
    /// None when `why` says what is wrong with the page, or when it has too many dots for anybody
    /// to make them here.
    std::shared_ptr<const PageDots> dots;
    /// All dots, averaged.
    QImage image;
    QString why;
};

/// Makes the dots of pages and remembers the last page as it was rendered, so that other settings
/// only prepare it anew. One thread at a time.
class DotMaker
{
public:
    /// So many bytes of a rendered page are remembered; what is beyond is rendered each time.
    static constexpr std::size_t kMostBytes = std::size_t(256) * 1024 * 1024;

    /// Renders a band of a label.
    using BandSource = std::function<Result<PixelBand>(const SheetPixels &pixels, int band)>;

    /// Is told before each band how many percent are done; false gives the page up.
    using GoOn = std::function<bool(int percent)>;

    explicit DotMaker(std::size_t mostBytes = kMostBytes);

    /// For tests that need a slow or a broken page, or want to know what is rendered.
    void setBandSource(const BandSource &source) { mSource = source; }

    /// Nothing when the page was given up; what was rendered until then is remembered.
    std::optional<DotPicture> make(const DotRequest &request, const GoOn &goOn);

    void forget();

private:
    std::optional<Result<PageDots>> dotsOf(const DotRequest &request, const SheetPixels &pixels,
                                           const GoOn &goOn);

    std::size_t mMostBytes;
    BandSource mSource;
    /// The last page, and its bands from the top on as far as they are remembered.
    DotRequest mRendered;
    std::vector<PixelBand> mBands;
    std::size_t mBytes = 0;
    /// The last dots.
    DotRequest mMade;
    std::shared_ptr<const PageDots> mDots;
};

} // namespace dialog
