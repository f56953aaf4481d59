// SPDX-License-Identifier: Apache-2.0
#include "dialog/ScannerView.h"

#include <algorithm>
#include <cmath>

namespace dialog {

namespace {

/// Codes are read best when their bars are so many pixels wide.
constexpr double kPixelsOfBar = 6;
constexpr int kMostPixelsOfDot = 4;
/// The longest side of what a scanner takes in at once, in pixels.
constexpr int kLongestSide = 6000;
/// The paper around a code: so many of its bars, and some dots more.
constexpr int kQuietBars = 10;
constexpr int kQuietDots = 4;
/// The pixels of the largest picture; read-barcodes takes some more.
constexpr double kMostPixels = 48e6;

QImage whitePaper(const QSize &size)
{
    QImage paper(size, QImage::Format_Grayscale8);
    paper.fill(Qt::white);
    return paper;
}

void addRow(std::vector<int> &columns, const uchar *row, int times)
{
    for (std::size_t x = 0; x < columns.size(); ++x) {
        columns[x] += times * row[x];
    }
}

/// The mean of `blur` columns, at the place of the one that has `after` of them behind it.
void putMeans(const std::vector<int> &columns, int blur, int after, uchar *to)
{
    const auto wide = std::size_t(blur);
    int sum = 0;
    for (std::size_t x = 0; x < columns.size(); ++x) {
        sum += columns[x] - (x >= wide ? columns[x - wide] : 0);
        if (x + 1 >= wide) {
            to[x - std::size_t(after)] = uchar(sum / (blur * blur));
        }
    }
}

/// The mean of `blur` x `blur` pixels, for each pixel.
QImage blurred(const QImage &grey, int blur)
{
    if (blur <= 1) {
        return grey;
    }
    const QSize size = grey.size();
    // What has not all neighbours, at the edges, is paper.
    QImage result = whitePaper(size);
    const int before = (blur - 1) / 2;
    const int after = blur - 1 - before;
    // Of each column, the pixels of the last `blur` rows.
    std::vector<int> columns(std::size_t(size.width()), 0);
    for (int y = 0; y < size.height(); ++y) {
        addRow(columns, grey.constScanLine(y), 1);
        if (y >= blur) {
            addRow(columns, grey.constScanLine(y - blur), -1);
        }
        if (y >= blur - 1) {
            putMeans(columns, blur, after, result.scanLine(y - after));
        }
    }
    return result;
}

QImage greyOfDots(const PageDots &dots, RedDots red, const QRect &part)
{
    QImage grey = whitePaper(part.size());
    const QRect within = part & QRect(QPoint(), dots.form.dots);
    for (int y = within.top(); y <= within.bottom(); ++y) {
        uchar *row = grey.scanLine(y - part.y());
        for (int x = within.left(); x <= within.right(); ++x) {
            const bool isInk = dots.isBlack(x, y) || (red == RedDots::Ink && dots.isRed(x, y));
            row[x - part.x()] = isInk ? 0 : 255;
        }
    }
    return grey;
}

/// The dots of an image in RGB32 by themselves, black alone.
QImage greyOfPrepared(const QImage &image, const imaging::PageSettings &settings)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    imaging::PagePreparation preparation(settings, std::size_t(rgb.width()),
                                         imaging::InputFormat::Rgb24);
    std::vector<std::uint8_t> black(preparation.outputRowBytes());
    std::vector<std::uint8_t> red(preparation.outputRowBytes());
    QImage grey = whitePaper(rgb.size());
    for (int y = 0; y < rgb.height(); ++y) {
        [[maybe_unused]] const bool done =
            preparation.row({rgb.constScanLine(y), preparation.inputRowBytes()}, black, red);
        Q_ASSERT(done);
        uchar *row = grey.scanLine(y);
        for (int x = 0; x < rgb.width(); ++x) {
            if ((black[std::size_t(x) / 8] & (0x80 >> (x % 8))) != 0) {
                row[x] = 0;
            }
        }
    }
    return grey;
}

QImage onPaper(const QImage &grey, const QRect &place, const QRect &part)
{
    QImage paper = whitePaper(part.size());
    for (int y = 0; y < grey.height(); ++y) {
        std::copy_n(grey.constScanLine(y), grey.width(),
                    paper.scanLine(y + place.y() - part.y()) + (place.x() - part.x()));
    }
    return paper;
}

} // namespace

InkTones tonesOf(const PageDots &dots, RedDots red)
{
    const QSize resolution = dots.form.resolution;
    const int most = std::max(resolution.width(), resolution.height());
    return {
        [&dots, red](const QRect &part) -> Result<QImage> { return greyOfDots(dots, red, part); },
        {std::max(1, most / std::max(1, resolution.width())),
         std::max(1, most / std::max(1, resolution.height()))}};
}

InkTones tonesOf(const DocumentPages &document, int page, const QSize &pixels,
                 const imaging::PageSettings &settings)
{
    return {[&document, page, pixels, settings](const QRect &part) -> Result<QImage> {
                const QRect within = part & QRect(QPoint(), pixels);
                if (within.isEmpty()) {
                    return whitePaper(part.size());
                }
                const Result<QImage> image = document.renderPart(page, pixels, within, Edges::Hard);
                return image
                    ? Result<QImage>(onPaper(greyOfPrepared(image.value(), settings), within, part))
                    : image;
            },
            {1, 1}};
}

std::vector<ScannerLook> scannerLooks(double bars)
{
    const int quiet = int(std::ceil(kQuietBars * bars)) + kQuietDots;
    const int narrow = int(std::ceil(3 * bars)) + 2;
    std::vector<int> blurs{1};
    if (bars >= 1.5) {
        blurs.push_back(2);
    }
    if (bars >= 2.5) {
        blurs.push_back(std::max(3, int(bars / 2)));
    }
    std::vector<ScannerLook> looks;
    for (const int margin : {quiet, narrow}) {
        for (const int blur : blurs) {
            looks.push_back({margin, blur});
        }
    }
    return looks;
}

double mostDotsFor(const QRectF &place, double bars)
{
    // All sides are rounded up.
    const double dots = kLongestSide - 2 * (kQuietDots + 2);
    return dots / (std::max(place.width(), place.height()) + 2 * kQuietBars * bars);
}

Result<QImage> scannerView(const InkTones &tones, const QRectF &place, double bars,
                           const ScannerLook &look)
{
    const QRect part =
        place.toAlignedRect().adjusted(-look.margin, -look.margin, look.margin, look.margin);
    if (std::max(part.width() * tones.shape.width(), part.height() * tones.shape.height())
        > kLongestSide) {
        return whitePaper(QSize(1, 1));
    }
    const Result<QImage> grey = tones.part(part);
    if (!grey) {
        return grey;
    }
    const double area =
        double(part.width()) * part.height() * tones.shape.width() * tones.shape.height();
    const int most =
        std::clamp(int(std::sqrt(kMostPixels / std::max(area, 1.0))), 1, kMostPixelsOfDot);
    const int pixels = std::clamp(int(std::ceil(kPixelsOfBar / std::max(bars, 1.0))), 1, most);
    const QImage seen = blurred(grey.value(), look.blur);
    return seen.scaled(seen.width() * pixels * tones.shape.width(),
                       seen.height() * pixels * tones.shape.height());
}

} // namespace dialog
