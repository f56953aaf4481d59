// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotImages.h"

#include "imaging/DotAverage.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <vector>

namespace dialog {
namespace {

constexpr QRgb kPaper = qRgb(255, 255, 255);
constexpr QRgb kBlackInk = qRgb(0, 0, 0);
constexpr QRgb kRedInk = qRgb(255, 0, 0);

using Row = std::span<const std::uint8_t>;

Row rowOf(const std::vector<std::uint8_t> &plane, const PageDots &dots, int y)
{
    return plane.empty() ? Row()
                         : Row(plane).subspan(std::size_t(y) * dots.rowBytes, dots.rowBytes);
}

bool isSet(Row row, int x)
{
    return !row.empty() && (row[std::size_t(x) / 8] & (0x80 >> (x % 8))) != 0;
}

} // namespace

QSize pixelsOfDot(const QSize &resolution, int zoom)
{
    const int finest = std::max(resolution.width(), resolution.height());
    const auto pixels = [finest, zoom](int dotsPerInch) {
        return std::max(1, qRound(double(zoom) * finest / std::max(1, dotsPerInch)));
    };
    return {pixels(resolution.width()), pixels(resolution.height())};
}

QImage averagedDots(const PageDots &dots, const QSize &pixels, Plates plates)
{
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    image.fill(kPaper);
    const auto extent = [](const QSize &size) {
        return imaging::Extent{std::size_t(size.width()), std::size_t(size.height())};
    };
    imaging::DotAverage average(extent(dots.form.dots), extent(pixels));
    const auto write = [&image](std::size_t y, Row black, Row red) {
        auto *to = reinterpret_cast<QRgb *>(image.scanLine(int(y)));
        for (std::size_t x = 0; x < black.size(); ++x) {
            const int reds = 255 - black[x];
            const int others = reds - red[x];
            to[x] = qRgb(reds, others, others);
        }
    };
    const std::vector<std::uint8_t> none(dots.rowBytes);
    for (int y = 0; y < dots.form.dots.height(); ++y) {
        const Row black = plates == Plates::Red ? Row(none) : rowOf(dots.black, dots, y);
        const Row red = plates == Plates::Black ? Row() : rowOf(dots.red, dots, y);
        [[maybe_unused]] const bool taken = average.row(black, red, write);
        Q_ASSERT(taken);
    }
    return image;
}

QImage enlargedDots(const PageDots &dots, const QRect &part, const QSize &pixelsOfDot,
                    Plates plates)
{
    const int across = pixelsOfDot.width();
    const int down = pixelsOfDot.height();
    QImage image(part.width() * across, part.height() * down, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    for (int row = 0; row < part.height(); ++row) {
        const int y = part.y() + row;
        const Row black = plates == Plates::Red ? Row() : rowOf(dots.black, dots, y);
        const Row red = plates == Plates::Black ? Row() : rowOf(dots.red, dots, y);
        auto *to = reinterpret_cast<QRgb *>(image.scanLine(row * down));
        for (int x = part.x(); x < part.x() + part.width(); ++x) {
            const QRgb colour = isSet(black, x) ? kBlackInk : isSet(red, x) ? kRedInk : kPaper;
            to = std::fill_n(to, across, colour);
        }
        for (int copy = 1; copy < down; ++copy) {
            std::memcpy(image.scanLine(row * down + copy), image.constScanLine(row * down),
                        std::size_t(image.width()) * sizeof(QRgb));
        }
    }
    return image;
}

} // namespace dialog
