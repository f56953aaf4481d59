// SPDX-License-Identifier: Apache-2.0
#include "dialog/SheetPixels.h"

#include "dialog/DotPlacement.h"
#include "imaging/Grey.h"

#include <QTransform>

#include <algorithm>
#include <utility>

namespace dialog {

namespace {

void writeGrey(const QImage &image, int row, std::uint8_t *to)
{
    const auto *pixels = reinterpret_cast<const QRgb *>(image.constScanLine(row));
    for (int x = 0; x < image.width(); ++x) {
        const QRgb pixel = pixels[x];
        to[x] =
            imaging::greyOf(unsigned(qRed(pixel)), unsigned(qGreen(pixel)), unsigned(qBlue(pixel)));
    }
}

void writeColours(const QImage &image, int row, std::uint8_t *to)
{
    const auto *pixels = reinterpret_cast<const QRgb *>(image.constScanLine(row));
    for (int x = 0; x < image.width(); ++x) {
        const QRgb pixel = pixels[x];
        *to++ = std::uint8_t(qRed(pixel));
        *to++ = std::uint8_t(qGreen(pixel));
        *to++ = std::uint8_t(qBlue(pixel));
    }
}

} // namespace

SheetPixels::SheetPixels(std::shared_ptr<const DocumentPages> document, int page,
                         const Sheet &sheet, Scaling scaling, const DotForm &form)
    : mDocument(std::move(document))
    , mPage(page)
    , mForm(form)
{
    const DotPlacement placement = placeOnDots(*mDocument, page, sheet, scaling, form);
    mPlace = placement.place;
    mTurned = placement.turned;
}

bool SheetPixels::isTooLarge() const
{
    const QRect covered = QRect(QPoint(), mForm.dots) & mPlace;
    return covered.width() > DocumentPages::kLongestRenderedSide
        || !mDocument->canRenderIn(mPlace.size(), Edges::Hard);
}

int SheetPixels::rowsOfBand() const
{
    return std::clamp(kPixelsOfBand / std::max(1, mForm.dots.width()), 1,
                      DocumentPages::kLongestRenderedSide);
}

int SheetPixels::bands() const
{
    return (mForm.dots.height() + rowsOfBand() - 1) / rowsOfBand();
}

// `part` is counted from the top left corner of the page as it lies.
Result<QImage> SheetPixels::pageWithin(const QRect &part) const
{
    if (!mTurned) {
        return mDocument->renderPart(mPage, mPlace.size(), part, Edges::Hard);
    }
    // A quarter turn counter-clockwise: the right edge of the page is at the top.
    const QRect upright(mPlace.height() - part.y() - part.height(), part.x(), part.height(),
                        part.width());
    const Result<QImage> image =
        mDocument->renderPart(mPage, mPlace.size().transposed(), upright, Edges::Hard);
    if (!image) {
        return image;
    }
    return image.value().transformed(QTransform().rotate(-90));
}

Result<PixelBand> SheetPixels::band(int index) const
{
    const bool colours = mForm.format() == imaging::InputFormat::Rgb24;
    const std::size_t pixelBytes = colours ? 3 : 1;
    const std::size_t rowBytes = std::size_t(mForm.dots.width()) * pixelBytes;
    PixelBand band;
    band.firstRow = index * rowsOfBand();
    band.rows = std::min(rowsOfBand(), mForm.dots.height() - band.firstRow);
    band.bytes.assign(rowBytes * std::size_t(band.rows), 255);

    const QRect rows(0, band.firstRow, mForm.dots.width(), band.rows);
    const QRect covered = rows & mPlace;
    if (mPlace.isEmpty()) {
        // The page is damaged, or nothing of the label can be reached.
        const Result<QImage> image = mDocument->render(mPage, QSize(1, 1));
        return image ? Result<PixelBand>(band) : Result<PixelBand>(image.failure());
    }
    if (covered.isEmpty()) {
        return band;
    }
    const Result<QImage> image = pageWithin(covered.translated(-mPlace.topLeft()));
    if (!image) {
        return image.failure();
    }
    for (int row = 0; row < covered.height(); ++row) {
        std::uint8_t *to = band.bytes.data()
            + std::size_t(covered.y() - band.firstRow + row) * rowBytes
            + std::size_t(covered.x()) * pixelBytes;
        if (colours) {
            writeColours(image.value(), row, to);
        } else {
            writeGrey(image.value(), row, to);
        }
    }
    return band;
}

} // namespace dialog
