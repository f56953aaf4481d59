// SPDX-License-Identifier: Apache-2.0
#include "controls/CellButton.h"

#include "controls/ButtonCell.h"

#include <QScopedValueRollback>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <utility>

namespace {

QStyleOptionButton optionOf(const CellButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state |= button.isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    if (button.isChecked()) {
        option.state |= QStyle::State_On;
    }
    return option;
}

} // namespace

CellButton::CellButton(std::unique_ptr<ButtonCell> cell, QWidget *parent)
    : QAbstractButton(parent)
    , mCell(std::move(cell))
{
    setFocusPolicy(Qt::StrongFocus);
}

CellButton::~CellButton() = default;

QSize CellButton::titleSize() const
{
    return text().isEmpty() ? QSize(0, 0) : fontMetrics().size(Qt::TextShowMnemonic, text());
}

QSize CellButton::sizeHint() const
{
    const QStyleOptionButton option = optionOf(*this);
    const QSize image = icon().isNull() ? QSize(0, 0) : iconSize();
    const QSize title = titleSize();
    const QSize content(image.width() + title.width(), std::max(image.height(), title.height()));
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, content, this);
}

void CellButton::setNeedsDisplay(bool needed)
{
    if (!needed) {
        return;
    }
    Q_EMIT displayRequested();
    if (mIsDrawing && mIsDrawingAgain) {
        return;
    }
    mDrawsAgain = mIsDrawing && isVisible();
    update();
}

void CellButton::paintEvent(QPaintEvent * /*event*/)
{
    const QScopedValueRollback again(mIsDrawingAgain, std::exchange(mDrawsAgain, false));
    const QScopedValueRollback drawing(mIsDrawing, true);
    QStylePainter painter(this);
    QStyleOptionButton option = optionOf(*this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    mCell->drawInteriorWithFrame(
        style()->subElementRect(QStyle::SE_PushButtonContents, &option, this), this, painter);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}
