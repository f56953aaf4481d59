// SPDX-License-Identifier: Apache-2.0
#include "resources/sample/SampleSymbols.h"

#include "resources/sample/Ean13.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

namespace sample {

namespace {

const QColor kRed(200, 16, 24);
constexpr QColor kBlack(0, 0, 0);

// Paints in a square of 100 x 100.
class InSquare
{
public:
    InSquare(QPainter &painter, const QRectF &place)
        : mPainter(painter)
    {
        painter.save();
        painter.translate(place.topLeft());
        painter.scale(place.width() / 100, place.height() / 100);
        painter.setPen(Qt::NoPen);
        painter.setBrush(kBlack);
    }
    ~InSquare() { mPainter.restore(); }
    InSquare(const InSquare &) = delete;
    InSquare &operator=(const InSquare &) = delete;

private:
    QPainter &mPainter;
};

void line(QPainter &painter, double width, const QColor &colour)
{
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

} // namespace

void paintLogo(QPainter &painter, const QRectF &place)
{
    const InSquare square(painter, place);
    QPainterPath leaf(QPointF(52, 17));
    leaf.cubicTo(56, 0, 78, -2, 92, 4);
    leaf.cubicTo(86, 20, 68, 26, 52, 17);
    painter.fillPath(leaf, kBlack);
    painter.setBrush(kRed);
    painter.drawEllipse(QRectF(4, 16, 84, 84));
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(10, 22, 72, 72));
    painter.translate(46, 58);
    for (int segment = 0; segment < 8; ++segment) {
        QPainterPath wedge(QPointF(1.5, -6));
        wedge.lineTo(10.4, -27.5);
        wedge.cubicTo(9, -33, -9, -33, -10.4, -27.5);
        wedge.lineTo(-1.5, -6);
        wedge.closeSubpath();
        painter.fillPath(wedge, kRed);
        painter.rotate(45);
    }
}

void paintGreySteps(QPainter &painter, const QRectF &place)
{
    constexpr int kSteps = 11;
    const double width = place.width() / kSteps;
    for (int step = 0; step < kSteps; ++step) {
        const int grey = 255 - 255 * step / (kSteps - 1);
        painter.fillRect(QRectF(place.left() + step * width, place.top(), width, place.height()),
                         QColor(grey, grey, grey));
    }
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kBlack, place.height() / 40));
    painter.drawRect(place);
    painter.restore();
}

void paintSnow(QPainter &painter, const QRectF &place)
{
    const QColor colour = painter.pen().color();
    const InSquare square(painter, place);
    line(painter, 7, colour);
    painter.translate(50, 50);
    for (int arm = 0; arm < 6; ++arm) {
        painter.drawLine(QPointF(0, 0), QPointF(0, -46));
        painter.drawLine(QPointF(0, -28), QPointF(-13, -40));
        painter.drawLine(QPointF(0, -28), QPointF(13, -40));
        painter.rotate(60);
    }
}

void paintThisSideUp(QPainter &painter, const QRectF &place)
{
    const InSquare square(painter, place);
    for (const double left : {10.0, 56.0}) {
        QPainterPath arrow(QPointF(left + 17, 8));
        arrow.lineTo(left + 34, 36);
        arrow.lineTo(left + 23, 36);
        arrow.lineTo(left + 23, 78);
        arrow.lineTo(left + 11, 78);
        arrow.lineTo(left + 11, 36);
        arrow.lineTo(left, 36);
        painter.fillPath(arrow, kRed);
    }
    painter.fillRect(QRectF(8, 86, 84, 7), kRed);
}

void paintKeepDry(QPainter &painter, const QRectF &place)
{
    const InSquare square(painter, place);
    QPainterPath roof(QPointF(12, 56));
    roof.cubicTo(14, 20, 86, 20, 88, 56);
    roof.cubicTo(80, 48, 68, 48, 62, 56);
    roof.cubicTo(56, 48, 44, 48, 38, 56);
    roof.cubicTo(32, 48, 20, 48, 12, 56);
    painter.fillPath(roof, kBlack);
    line(painter, 6, kBlack);
    QPainterPath stick(QPointF(50, 52));
    stick.lineTo(50, 84);
    stick.cubicTo(50, 96, 66, 96, 66, 84);
    painter.drawPath(stick);
    for (const QPointF &drop : {QPointF(18, 8), QPointF(42, 4), QPointF(64, 8), QPointF(84, 16)}) {
        painter.drawLine(drop, drop + QPointF(-4, 11));
    }
}

void paintFragile(QPainter &painter, const QRectF &place)
{
    const InSquare square(painter, place);
    QPainterPath glass(QPointF(24, 6));
    glass.lineTo(76, 6);
    glass.cubicTo(78, 40, 70, 52, 54, 56);
    glass.lineTo(54, 84);
    glass.lineTo(74, 94);
    glass.lineTo(26, 94);
    glass.lineTo(46, 84);
    glass.lineTo(46, 56);
    glass.cubicTo(30, 52, 22, 40, 24, 6);
    painter.fillPath(glass, kBlack);
    line(painter, 5, Qt::white);
    painter.drawPolyline(
        QPolygonF({QPointF(58, 4), QPointF(50, 18), QPointF(60, 26), QPointF(50, 40)}));
}

void paintBarCode(QPainter &painter, const QRectF &place, const QString &digits)
{
    const QString number = withCheckDigit(digits);
    const std::vector<bool> modules = ean13Modules(number);
    const double module = place.width() / double(modules.size());
    const double text = 9 * module;
    for (size_t at = 0; at < modules.size(); ++at) {
        const bool isGuard = at < 3 || at >= 92 || (at >= 45 && at < 50);
        const double height = place.height() - (isGuard ? text * 0.5 : text);
        if (modules[at]) {
            painter.fillRect(
                QRectF(place.left() + double(at) * module, place.top(), module, height), kBlack);
        }
    }
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPixelSize(int(text));
    painter.setFont(font);
    painter.setPen(kBlack);
    const auto write = [&](const QString &part, double from, double count) {
        const QRectF box(place.left() + from * module, place.bottom() - text * 0.95, count * module,
                         text);
        painter.drawText(box, Qt::AlignCenter, part);
    };
    write(number.left(1), -9, 7);
    write(number.mid(1, 6), 3, 42);
    write(number.mid(7), 50, 42);
}

} // namespace sample
