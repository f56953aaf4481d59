// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/ButtonCell.h"

/// A button cell that puts its image at the top of the interior, one point higher.
///
/// An interface description may name it as a button's class, see controls/InputControls.h.
class PDEButtonCell13_v300_ : public ButtonCell
{
public:
    PDEButtonCell13_v300_();
    ~PDEButtonCell13_v300_() override;

    /// The frame of the last interior drawing, the zero rectangle until there was one.
    const QRectF &cellFrame() const { return mCellFrame; }

    void drawInteriorWithFrame(const QRectF &frame, CellButton *inView, QPainter &painter) override;
    /// Keeps place and size across, whatever the height that the frame says, and asks `inView` for
    /// a redraw.
    void drawImage(const QPixmap &image, const QRectF &withFrame, CellButton *inView,
                   QPainter &painter) override;

private:
    QRectF mCellFrame;
};
