// SPDX-License-Identifier: Apache-2.0
#include "dialog/SheetPainting.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QWidget>

namespace dialog {

namespace {

constexpr int kShadow = 9;

} // namespace

void paintGround(QPainter &painter, const QWidget &widget)
{
    painter.fillRect(widget.rect(), widget.palette().color(QPalette::Window).darker(112));
}

void paintPaper(QPainter &painter, const QRectF &sheet, double pixel)
{
    painter.setPen(Qt::NoPen);
    for (int ring = kShadow; ring > 0; --ring) {
        painter.setBrush(QColor(0, 0, 0, 4 + 2 * (kShadow - ring)));
        const double width = ring * pixel;
        const QRectF rectangle =
            sheet.translated(0, 2 * pixel).adjusted(-width, -width, width, width);
        painter.drawRoundedRect(rectangle, width, width);
    }
    painter.fillRect(sheet, Qt::white);
}

void paintBeyondReach(QPainter &painter, const QRectF &sheet, const QRectF &reach,
                      const QRectF &page)
{
    if (reach.isEmpty() || reach.adjusted(-1, -1, 1, 1).contains(page)) {
        return;
    }
    QPainterPath edges;
    edges.addRect(sheet);
    edges.addRect(reach);
    painter.fillPath(edges, QColor(255, 255, 255, 150));
    QPen pen(QColor(120, 120, 120), 1, Qt::DashLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(reach);
}

void paintSentence(QPainter &painter, const QRect &room, const QString &text,
                   const QPalette &colours)
{
    // Text is not measured while there is no pen.
    painter.setPen(colours.color(QPalette::Text));
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRectF place = painter.boundingRect(QRectF(room), kFlags, text).adjusted(-12, -8, 12, 8);
    painter.setPen(colours.color(QPalette::Mid));
    painter.setBrush(colours.color(QPalette::Base));
    painter.drawRoundedRect(place, 4, 4);
    painter.setPen(colours.color(QPalette::Text));
    painter.drawText(QRectF(room), kFlags, text);
}

void paintFocus(QPainter &painter, const QWidget &widget, bool hasFocus)
{
    if (hasFocus) {
        painter.setPen(QPen(widget.palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(widget.rect()).adjusted(1, 1, -1, -1));
    }
}

} // namespace dialog
