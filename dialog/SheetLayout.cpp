// SPDX-License-Identifier: Apache-2.0
#include "dialog/SheetLayout.h"

#include <algorithm>

namespace dialog {

namespace {

// Less than this beyond an edge comes from rounding the sizes of labels, not from the document.
constexpr double kTolerance = 0.01;

bool isWide(const QSizeF &size)
{
    return size.width() > size.height();
}

QRectF centredIn(const QRectF &area, const QSizeF &size)
{
    QRectF rectangle(QPointF(), size);
    rectangle.moveCenter(area.center());
    return rectangle;
}

PagePlacement placeIn(const QRectF &area, const QSizeF &page, const Sheet &sheet, bool scaled)
{
    if (page.isEmpty() || sheet.size.isEmpty() || area.isEmpty()) {
        return {};
    }
    PagePlacement placement;
    placement.turned = isWide(page) != isWide(sheet.size);
    const QSizeF lying = placement.turned ? page.transposed() : page;
    placement.scale =
        scaled ? std::min(area.width() / lying.width(), area.height() / lying.height()) : 1.0;
    placement.page = centredIn(area, lying * placement.scale);
    const QRectF paper(QPointF(), sheet.size);
    placement.cropped =
        !paper.adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance).contains(placement.page);
    return placement;
}

} // namespace

QRectF Sheet::imageableArea() const
{
    const QRectF area = QRectF(QPointF(), size).marginsRemoved(margins);
    return area.isValid() ? area : QRectF();
}

PagePlacement SheetLayout::fit(const QSizeF &page, const Sheet &sheet)
{
    return placeIn(sheet.imageableArea(), page, sheet, true);
}

PagePlacement SheetLayout::actualSize(const QSizeF &page, const Sheet &sheet)
{
    return placeIn(QRectF(QPointF(), sheet.size), page, sheet, false);
}

PagePlacement SheetLayout::place(const QSizeF &page, const Sheet &sheet, Scaling scaling)
{
    return scaling == Scaling::ActualSize ? actualSize(page, sheet) : fit(page, sheet);
}

} // namespace dialog
