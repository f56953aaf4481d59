// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotPlacement.h"

#include <algorithm>
#include <cmath>

namespace dialog {

namespace {

/// What is further from a picture's shape than that is no picture of it.
constexpr double kMostDistortion = 1.5;

// Position and size apart, so that a picture of as many pixels as dots gets just these.
QRect onWholeDots(const QRectF &place)
{
    const QSize size = place.size().toSize().expandedTo(QSize(1, 1));
    return {place.topLeft().toPoint(), place.isEmpty() ? QSize() : size};
}

/// How much wider than high a pixel of the picture is when it gets `across` x `down` dots, next to
/// how much it should be; 1 is right.
double distortion(const QSize &dotsOfPixel, const DotForm &form, double shape)
{
    const double width = double(dotsOfPixel.width()) / form.resolution.width();
    const double height = double(dotsOfPixel.height()) / form.resolution.height();
    const double ratio = width / height / shape;
    return std::max(ratio, 1 / ratio);
}

/// The whole dots of a pixel, within `most`, that keep a pixel's `shape` (its width over its
/// height) best, the largest of them; empty when there is not one dot for it. With the same
/// resolution both ways and square pixels they are the same both ways.
QSize wholeDotsWithin(const QSize &most, const DotForm &form, double shape)
{
    QSize best;
    for (int down = 1; down <= most.height(); ++down) {
        const double exact = shape * down * form.resolution.width() / form.resolution.height();
        const int across = std::max(1, int(std::lround(exact)));
        if (across > most.width()) {
            break;
        }
        const QSize candidate(across, down);
        if (distortion(candidate, form, shape) > kMostDistortion) {
            continue;
        }
        // A little less true to the shape is worse than smaller; the same is not.
        if (best.isEmpty()
            || distortion(candidate, form, shape) <= distortion(best, form, shape) * 1.02) {
            best = candidate;
        }
    }
    return best;
}

/// The printable area in dots, cut to whole ones that there are.
QRect reachOf(const Sheet &sheet, const DotForm &form)
{
    const QRectF area = form.inDots(sheet.imageableArea());
    constexpr double kRounding = 0.01;
    const QPoint first(int(std::ceil(area.left() - kRounding)),
                       int(std::ceil(area.top() - kRounding)));
    const QPoint behind(int(std::floor(area.right() + kRounding)),
                        int(std::floor(area.bottom() + kRounding)));
    return QRect(first, behind - QPoint(1, 1)) & QRect(QPoint(), form.dots);
}

} // namespace

QRectF DotPlacement::inDots(const QRectF &rectangle, const QSizeF &pageSize) const
{
    if (pageSize.isEmpty()) {
        return {};
    }
    const double x = rectangle.x() / pageSize.width();
    const double y = rectangle.y() / pageSize.height();
    const double width = rectangle.width() / pageSize.width();
    const double height = rectangle.height() / pageSize.height();
    // Turned counter-clockwise the right edge of the page is at the top.
    const QRectF part =
        turned ? QRectF(y, 1 - x - width, height, width) : QRectF(x, y, width, height);
    return {place.x() + part.x() * place.width(), place.y() + part.y() * place.height(),
            part.width() * place.width(), part.height() * place.height()};
}

DotPlacement placeOnDots(const DocumentPages &document, int page, const Sheet &sheet,
                         Scaling scaling, const DotForm &form)
{
    const QSizeF size = document.pageSize(page);
    const Sheet label = sheet.size.isEmpty() ? Sheet{size, QMarginsF()} : sheet;
    const PagePlacement placed = SheetLayout::place(size, label, scaling);
    DotPlacement placement{
        onWholeDots(form.inDots(placed.page)), placed.turned, {}, {placed.scale, placed.scale}};
    const QSize upright = document.pixelSize(page);
    if (upright.isEmpty() || placement.place.isEmpty()) {
        return placement;
    }
    const QSize pixels = placed.turned ? upright.transposed() : upright;
    const QSizeF lying = placed.turned ? size.transposed() : size;
    if (scaling == Scaling::WholeDots) {
        const QRect reach = reachOf(label, form);
        const double shape = (lying.width() / pixels.width()) / (lying.height() / pixels.height());
        const QSize most(reach.width() / pixels.width(), reach.height() / pixels.height());
        const QSize dots = wholeDotsWithin(most, form, shape);
        if (!dots.isEmpty()) {
            QRect place(QPoint(),
                        QSize(pixels.width() * dots.width(), pixels.height() * dots.height()));
            place.moveTopLeft(reach.topLeft()
                              + QPoint((reach.width() - place.width()) / 2,
                                       (reach.height() - place.height()) / 2));
            placement.place = place;
            constexpr double kPointsPerInch = 72;
            placement.scale = {
                place.width() * kPointsPerInch / form.resolution.width() / lying.width(),
                place.height() * kPointsPerInch / form.resolution.height() / lying.height()};
        }
    }
    const QSize dots(placement.place.width() / pixels.width(),
                     placement.place.height() / pixels.height());
    if (QSize(dots.width() * pixels.width(), dots.height() * pixels.height())
        == placement.place.size()) {
        placement.dotsOfPixel = dots;
    }
    return placement;
}

} // namespace dialog
