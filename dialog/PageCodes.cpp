// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageCodes.h"

#include "dialog/BarWidth.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace dialog {

namespace {

/// A page of more pixels than that is a poster; its codes are large.
constexpr double kMostPixels = 36e6;
/// The most pixels that stand for one pixel of a picture, across and down.
constexpr int kMostTimes = 6;

/// `size`, made smaller where it has more than `most` pixels or a side that cannot be rendered.
QSize limited(const QSizeF &size, double most, double longestSide)
{
    const double area = size.width() * size.height();
    const double factor = std::min({1.0, std::sqrt(most / area), longestSide / size.width()});
    return (size * factor).toSize().expandedTo(QSize(1, 1));
}

PageCode pageCodeOf(const Barcode &code, const QImage &grey, const QPoint &offset,
                    const QSizeF &pointsOfPixel)
{
    const auto onPage = [&](const QPointF &pixel) {
        return QPointF((pixel.x() + offset.x()) * pointsOfPixel.width(),
                       (pixel.y() + offset.y()) * pointsOfPixel.height());
    };
    PageCode found{code.format, code.text, {}, 0, {}};
    const QRectF place(code.place());
    found.place = QRectF(onPage(place.topLeft()), onPage(place.bottomRight()));
    // One pixel of the code's own row, in points.
    QPointF row = code.corners[1] - code.corners[0];
    row /= std::max(1.0, std::hypot(row.x(), row.y()));
    const QPointF step(row.x() * pointsOfPixel.width(), row.y() * pointsOfPixel.height());
    const double length = std::hypot(step.x(), step.y());
    found.narrowestBar = narrowestBar(grey, code) * length;
    found.way = length > 0 ? step / length : QPointF(1, 0);
    return found;
}

/// Bars that go on in the next band, and what overlapping bands or the coarser picture show again.
void put(std::vector<PageCode> &codes, const PageCode &code)
{
    for (PageCode &other : codes) {
        if (code.format == other.format && code.text == other.text
            && code.place.adjusted(-1, -1, 1, 1).intersects(other.place)) {
            other.place |= code.place;
            return;
        }
    }
    codes.push_back(code);
}

} // namespace

PageCodes::PageCodes(const DocumentPages &document, BarcodeReader &reader,
                     std::function<bool()> goOn)
    : mDocument(document)
    , mReader(reader)
    , mGoOn(std::move(goOn))
{ }

QSize PageCodes::finePixels(int page, double dotsForPoint) const
{
    const QSizeF wanted = mDocument.pageSize(page) * dotsForPoint * kPixelsForDot;
    if (wanted.isEmpty()) {
        return {};
    }
    const QSize pixels = mDocument.pixelSize(page);
    QSizeF fine = wanted;
    if (!pixels.isEmpty()) {
        const int times = int(std::ceil(wanted.width() / pixels.width()));
        fine = QSizeF(pixels) * std::clamp(times, 1, kMostTimes);
    }
    return limited(fine, kMostPixels, DocumentPages::kLongestRenderedSide);
}

Result<QImage> PageCodes::greyPart(int page, const QSize &pixels, const QRect &part) const
{
    const QRect within = part & QRect(QPoint(), pixels);
    QImage grey(part.size(), QImage::Format_Grayscale8);
    grey.fill(Qt::white);
    if (within.isEmpty()) {
        return grey;
    }
    const Result<QImage> image = mDocument.renderPart(page, pixels, within);
    if (!image) {
        return image;
    }
    const QImage shades = image.value().convertToFormat(QImage::Format_Grayscale8);
    for (int y = 0; y < within.height(); ++y) {
        std::copy_n(shades.constScanLine(y), within.width(),
                    grey.scanLine(y + within.y() - part.y()) + (within.x() - part.x()));
    }
    return grey;
}

std::optional<Failure> PageCodes::readBand(int page, const QSize &pixels, const QRect &band,
                                           std::vector<PageCode> &codes) const
{
    // Paper around the page: a code at its edge is read on the label as well.
    constexpr int kPaper = 48;
    const QRect part = band.adjusted(-kPaper, -kPaper, kPaper, kPaper);
    const Result<QImage> grey = greyPart(page, pixels, part);
    if (!grey) {
        return grey.failure();
    }
    const Result<std::vector<Barcode>> found = mReader.find(grey.value(), {}, mGoOn);
    if (!found) {
        return found.failure();
    }
    const QSizeF size = mDocument.pageSize(page);
    const QSizeF pointsOfPixel(size.width() / pixels.width(), size.height() / pixels.height());
    for (const Barcode &code : found.value()) {
        put(codes, pageCodeOf(code, grey.value(), part.topLeft(), pointsOfPixel));
    }
    return {};
}

std::optional<Failure> PageCodes::read(int page, const QSize &pixels,
                                       std::vector<PageCode> &codes) const
{
    const int height =
        std::clamp(kPixelsOfBand / pixels.width(), 2, DocumentPages::kLongestRenderedSide - 100);
    for (int top = 0;; top += height / 2) {
        const QRect band(0, top, pixels.width(), std::min(height, pixels.height() - top));
        if (std::optional<Failure> failure = readBand(page, pixels, band, codes)) {
            return failure;
        }
        if (band.bottom() + 1 >= pixels.height()) {
            return {};
        }
    }
}

Result<std::vector<PageCode>> PageCodes::of(int page, double dotsForPoint) const
{
    std::vector<PageCode> codes;
    const QSize fine = finePixels(page, dotsForPoint);
    if (fine.isEmpty()) {
        // A page without a size is damaged or not there; the document knows which.
        const Result<QImage> nothing = mDocument.render(page, QSize(1, 1));
        return nothing ? Result<std::vector<PageCode>>(codes) : nothing.failure();
    }
    if (std::optional<Failure> failure = read(page, fine, codes)) {
        return *failure;
    }
    const QSizeF coarse = QSizeF(fine) / kPixelsForDot;
    const double longest = DocumentPages::kLongestRenderedSide - 100;
    const double factor = std::min(1.0, longest / coarse.height());
    if (std::optional<Failure> failure =
            read(page, limited(coarse * factor, kPixelsOfBand, longest), codes)) {
        return *failure;
    }
    return codes;
}

} // namespace dialog
