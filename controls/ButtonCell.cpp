// SPDX-License-Identifier: Apache-2.0
#include "controls/ButtonCell.h"

#include "controls/CellButton.h"

#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr double kGap = 4.0;

} // namespace

ButtonCell::ButtonCell() = default;
ButtonCell::~ButtonCell() = default;

void ButtonCell::drawInteriorWithFrame(const QRectF &frame, CellButton *inView, QPainter &painter)
{
    if (!inView) {
        return;
    }
    const QPixmap image =
        inView->icon().pixmap(inView->iconSize(), inView->devicePixelRatioF(),
                              inView->isEnabled() ? QIcon::Normal : QIcon::Disabled,
                              inView->isChecked() ? QIcon::On : QIcon::Off);
    const QSizeF imageSize = image.deviceIndependentSize();
    const double titleWidth = inView->titleSize().width();
    const double gap = image.isNull() || titleWidth == 0.0 ? 0.0 : kGap;
    QRectF content(0.0, 0.0, imageSize.width() + gap + titleWidth, frame.height());
    content.moveCenter(frame.center());
    if (!image.isNull()) {
        const double y = frame.center().y() - imageSize.height() / 2.0;
        drawImage(image, {{content.left(), y}, imageSize}, inView, painter);
    }
    content.setLeft(content.left() + imageSize.width() + gap);
    inView->style()->drawItemText(&painter, content.toAlignedRect(),
                                  Qt::AlignCenter | Qt::TextShowMnemonic, inView->palette(),
                                  inView->isEnabled(), inView->text(), QPalette::ButtonText);
}

void ButtonCell::drawImage(const QPixmap &image, const QRectF &withFrame, CellButton * /*inView*/,
                           QPainter &painter)
{
    painter.drawPixmap(withFrame, image, QRectF(image.rect()));
}
