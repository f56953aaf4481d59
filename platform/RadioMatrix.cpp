// SPDX-License-Identifier: Apache-2.0
#include "platform/RadioMatrix.h"

#include "platform/Controls.h"

#include <QFocusEvent>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>

namespace platform {

RadioMatrix::RadioMatrix(QWidget *parent)
    : QWidget(parent)
{
    // A label leads only to a control that takes focus; the rows are the tab stops.
    setFocusPolicy(Qt::ClickFocus);
}

void RadioMatrix::setRows(const QStringList &titles)
{
    for (QRadioButton *button : mRows) {
        delete button;
    }
    mRows.clear();
    for (const QString &title : titles) {
        addRow(title);
    }
    selectCellAtRow(0);
    placeRows();
}

void RadioMatrix::addRow(const QString &title)
{
    auto *button = new QRadioButton(this);
    setButtonTitle(button, title);
    // Assistive tools turn a button on without a click; a click on the row that is on turns nothing
    // on.
    connect(button, &QRadioButton::toggled, this, [this](bool on) {
        if (on) {
            Q_EMIT picked();
        }
    });
    connect(button, &QRadioButton::pressed, this,
            [this, button] { mOnWhenPressed = button->isChecked(); });
    connect(button, &QRadioButton::clicked, this, [this] {
        if (mOnWhenPressed) {
            Q_EMIT picked();
        }
    });
    mRows.push_back(button);
}

QStringList RadioMatrix::titles() const
{
    QStringList titles;
    for (const QRadioButton *button : mRows) {
        titles << buttonTitle(button);
    }
    return titles;
}

int RadioMatrix::selectedRow() const
{
    const auto on = std::find_if(mRows.begin(), mRows.end(),
                                 [](const QRadioButton *button) { return button->isChecked(); });
    return on == mRows.end() ? -1 : int(on - mRows.begin());
}

QRadioButton *RadioMatrix::buttonAt(int row) const
{
    return row >= 0 && row < int(mRows.size()) ? mRows[size_t(row)] : nullptr;
}

void RadioMatrix::selectCellAtRow(int row)
{
    if (QRadioButton *button = buttonAt(row)) {
        const QSignalBlocker silent(this);
        button->setChecked(true);
    }
}

void RadioMatrix::deselectAllCells()
{
    if (QRadioButton *button = buttonAt(selectedRow())) {
        // An exclusive row cannot be turned off.
        button->setAutoExclusive(false);
        button->setChecked(false);
        button->setAutoExclusive(true);
    }
}

void RadioMatrix::setTitle(int row, const QString &title)
{
    setButtonTitle(buttonAt(row), title);
}

void RadioMatrix::focusInEvent(QFocusEvent *event)
{
    if (QRadioButton *button = buttonAt(std::max(selectedRow(), 0))) {
        button->setFocus(event->reason());
    }
}

void RadioMatrix::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeRows();
}

void RadioMatrix::placeRows()
{
    const int rows = int(mRows.size());
    for (int row = 0; row < rows; ++row) {
        const int top = height() * row / rows;
        const int bottom = height() * (row + 1) / rows;
        mRows[size_t(row)]->setGeometry(0, top, width(), bottom - top);
    }
}

} // namespace platform
