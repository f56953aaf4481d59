// SPDX-License-Identifier: Apache-2.0
#include "resources/sample/SampleLabel.h"

#include "resources/sample/SamplePicture.h"
#include "resources/sample/SampleSymbols.h"

#include <QFont>
#include <QPainter>

namespace sample {

namespace {

// Hundredths of a millimetre.
constexpr double kWidth = 6200;
constexpr double kHeight = 10000;
constexpr double kLeft = 350;
constexpr double kAcross = kWidth - 2 * kLeft;
const QColor kRed(200, 16, 24);
const QColor kDarkGrey(90, 90, 90);

QFont font(int height, bool bold)
{
    QFont result(QStringLiteral("DejaVu Sans Condensed"));
    result.setStretch(QFont::SemiCondensed);
    result.setPixelSize(height);
    result.setBold(bold);
    return result;
}

void write(QPainter &painter, const QRectF &place, const QString &text, int height, bool bold,
           const QColor &colour = Qt::black, int alignment = Qt::AlignLeft)
{
    painter.setFont(font(height, bold));
    painter.setPen(colour);
    painter.drawText(place, alignment | Qt::AlignVCenter | Qt::TextDontClip, text);
}

void writeField(QPainter &painter, const QPointF &at, const QString &name, const QString &value)
{
    write(painter, QRectF(at.x(), at.y(), 1800, 220), name, 190, false, kDarkGrey);
    write(painter, QRectF(at.x(), at.y() + 215, 1800, 340), value, 310, true);
}

void paintRule(QPainter &painter, double y)
{
    painter.fillRect(QRectF(kLeft, y, kAcross, 18), Qt::black);
}

void paintWarning(QPainter &painter, const QRectF &place, const QString &text)
{
    painter.fillRect(place, kRed);
    const double side = place.height() * 0.7;
    const double edge = (place.height() - side) / 2;
    painter.setPen(Qt::white);
    paintSnow(painter, QRectF(place.left() + edge * 2, place.top() + edge, side, side));
    write(painter, place.adjusted(side + edge * 4, 0, 0, 0), text, 380, true, Qt::white);
}

void paintHead(QPainter &painter, const QString &title, const QString &subtitle)
{
    paintLogo(painter, QRectF(kLeft - 20, 280, 1150, 1150));
    write(painter, QRectF(1620, 330, 4300, 640), title, 550, true);
    write(painter, QRectF(1620, 960, 4300, 360), subtitle, 275, false, kDarkGrey);
}

void paintBox(QPainter &painter)
{
    paintHead(painter, QStringLiteral("Blood oranges"),
              QStringLiteral("Class I · untreated · size 6"));
    constexpr double kDotsPerHundredth = 300 / 2540.0;
    const QRectF picture(kLeft, 1580, kAcross, 2750);
    painter.drawImage(picture, stillLife((picture.size() * kDotsPerHundredth).toSize()));
    paintGreySteps(painter, QRectF(kLeft, 4420, kAcross, 260));

    writeField(painter, {kLeft, 4820}, QStringLiteral("Batch"), QStringLiteral("24-117-B"));
    writeField(painter, {kLeft + 1950, 4820}, QStringLiteral("Net weight"),
               QStringLiteral("10.0 kg"));
    writeField(painter, {kLeft + 3900, 4820}, QStringLiteral("Box"), QStringLiteral("17 of 40"));
    paintRule(painter, 5480);
    writeField(painter, {kLeft, 5560}, QStringLiteral("Packed"), QStringLiteral("Week 17"));
    writeField(painter, {kLeft + 1950, 5560}, QStringLiteral("Gross weight"),
               QStringLiteral("10.6 kg"));
    writeField(painter, {kLeft + 3900, 5560}, QStringLiteral("Bay"), QStringLiteral("C 08"));

    paintWarning(painter, QRectF(kLeft, 6290, kAcross, 700),
                 QStringLiteral("Keep cool, 4 to 8 °C"));
    paintBarCode(painter, QRectF(900, 7230, 4560, 2420), QStringLiteral("200117000017"));
}

void paintTones(QPainter &painter, const QRectF &place)
{
    const QRectF upper(place.left(), place.top(), place.width(), place.height() / 2);
    QLinearGradient black(upper.topLeft(), upper.topRight());
    black.setColorAt(0, Qt::white);
    black.setColorAt(1, Qt::black);
    painter.fillRect(upper, black);
    QLinearGradient red(upper.topLeft(), upper.topRight());
    red.setColorAt(0, kRed);
    red.setColorAt(1, Qt::white);
    painter.fillRect(upper.translated(0, upper.height()), red);
}

void paintPallet(QPainter &painter)
{
    paintHead(painter, QStringLiteral("Pallet 3 of 8"), QStringLiteral("Blood oranges · 40 boxes"));
    paintRule(painter, 1560);
    write(painter, QRectF(kLeft, 1600, kAcross, 2000), QStringLiteral("C 08"), 1900, true,
          Qt::black, Qt::AlignHCenter);
    paintRule(painter, 3640);
    writeField(painter, {kLeft, 3730}, QStringLiteral("Batch"), QStringLiteral("24-117-B"));
    writeField(painter, {kLeft + 1950, 3730}, QStringLiteral("Net weight"),
               QStringLiteral("400 kg"));
    writeField(painter, {kLeft + 3900, 3730}, QStringLiteral("Gross weight"),
               QStringLiteral("446 kg"));

    constexpr double kSymbol = 1250;
    const double gap = (kAcross - 3 * kSymbol) / 4;
    paintThisSideUp(painter, QRectF(kLeft + gap, 4530, kSymbol, kSymbol));
    paintKeepDry(painter, QRectF(kLeft + 2 * gap + kSymbol, 4530, kSymbol, kSymbol));
    paintFragile(painter, QRectF(kLeft + 3 * gap + 2 * kSymbol, 4530, kSymbol, kSymbol));

    paintTones(painter, QRectF(kLeft, 5930, kAcross, 560));
    paintWarning(painter, QRectF(kLeft, 6580, kAcross, 700), QStringLiteral("Return empty boxes"));
    paintBarCode(painter, QRectF(900, 7480, 4560, 2170), QStringLiteral("200117000802"));
}

} // namespace

QSizeF SampleLabel::pageSize(int) const
{
    // As printers write it down for a label of 62 x 100 mm.
    return {175.75, 283.46};
}

bool SampleLabel::paint(int page, QPainter &painter, const QRectF &target) const
{
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(target.width() / kWidth, target.height() / kHeight);
    if (page == 0) {
        paintBox(painter);
    } else {
        paintPallet(painter);
    }
    painter.restore();
    return true;
}

} // namespace sample
