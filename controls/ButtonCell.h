// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>

#include <memory>

class CellButton;
class QPainter;
class QPixmap;

/// Draws the inside of a button: its picture, its title, or both side by side in the middle.
///
/// Owned by the button. All frames in the button's coordinates, from its top left corner; the
/// painter is the one that the button is being drawn with.
class ButtonCell
{
public:
    ButtonCell();
    virtual ~ButtonCell();
    ButtonCell(const ButtonCell &) = delete;
    ButtonCell &operator=(const ButtonCell &) = delete;

    virtual void drawInteriorWithFrame(const QRectF &frame, CellButton *inView, QPainter &painter);
    virtual void drawImage(const QPixmap &image, const QRectF &withFrame, CellButton *inView,
                           QPainter &painter);
};
