// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>

#include <memory>

class ButtonCell;

/// A push button whose inside a cell draws.
///
/// Icon, title, state and signals are those of any Qt button. The interface thread only.
class CellButton : public QAbstractButton
{
    Q_OBJECT
public:
    explicit CellButton(std::unique_ptr<ButtonCell> cell, QWidget *parent = nullptr);
    ~CellButton() override;

    ButtonCell &cell() const { return *mCell; }
    /// The room that the title takes.
    QSize titleSize() const;

    /// Asks for a redraw. While the button draws itself, only a drawing with another cause than
    /// such a request is followed by one more: drawing that always asks again comes to rest.
    void setNeedsDisplay(bool needed);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A redraw was asked for with setNeedsDisplay.
    void displayRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<ButtonCell> mCell;
    bool mIsDrawing = false;
    /// The next drawing is due to a request of the last one.
    bool mDrawsAgain = false;
    bool mIsDrawingAgain = false;
};
