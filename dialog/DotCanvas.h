// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotMaker.h"

#include <QAbstractScrollArea>
#include <QPoint>
#include <QRect>

namespace dialog {

/// The dots of a label, each of them so many whole pixels of the screen, on the label's paper. What
/// is larger than the widget is scrolled: with the bars, the wheel, the arrow keys, and by dragging
/// with the mouse. Only what is seen is made into pixels.
class DotCanvas : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit DotCanvas(QWidget *parent = nullptr);

    /// The label and its dots; those of setDots() are on it.
    void setLabel(const Sheet &sheet, Scaling scaling, const DotForm &form);

    /// Shows `picture`, or paper when it has no dots.
    void setDots(const DotPicture &picture);

    void setPlates(Plates plates);

    /// One of kDotZooms. The dots at `place` of the viewport stay there.
    void setZoom(int zoom, const QPointF &place);

    /// Shows the dot at `dot`, which may be a part of one, at `place` of the viewport, as far as
    /// the label goes.
    void showAt(const QPointF &dot, const QPointF &place);

    /// The dot, or a part of one, at `place` of the viewport.
    QPointF dotAt(const QPointF &place) const;

    /// The pixels of the screen, from the viewport's top left one, that all dots have.
    QRect dotPixels() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect inPixels(const QRectF &points) const;
    QRect content() const;
    QSize room() const;
    QPoint offset() const;
    void layOut();
    void paintVisibleDots(QPainter &painter) const;

    Sheet mSheet;
    Scaling mScaling = Scaling::Fit;
    DotForm mForm;
    DotPicture mDots;
    Plates mPlates = Plates::Both;
    int mZoom = 1;
    QPointF mDraggedFrom;
};

} // namespace dialog
