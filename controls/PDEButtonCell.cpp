// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEButtonCell.h"

#include "controls/CellButton.h"

PDEButtonCell13_v300_::PDEButtonCell13_v300_() = default;
PDEButtonCell13_v300_::~PDEButtonCell13_v300_() = default;

void PDEButtonCell13_v300_::drawInteriorWithFrame(const QRectF &frame, CellButton *inView,
                                                  QPainter &painter)
{
    mCellFrame = frame;
    ButtonCell::drawInteriorWithFrame(frame, inView, painter);
}

void PDEButtonCell13_v300_::drawImage(const QPixmap &image, const QRectF &withFrame,
                                      CellButton *inView, QPainter &painter)
{
    const QRectF placed(withFrame.x(), mCellFrame.y() + -1.0, withFrame.width(),
                        withFrame.height());
    ButtonCell::drawImage(image, placed, inView, painter);
    // Meant: each drawing asks for the next one; the button lets that come to rest.
    if (inView) {
        inView->setNeedsDisplay(true);
    }
}
