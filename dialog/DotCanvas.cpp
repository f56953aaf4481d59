// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotCanvas.h"

#include "dialog/SheetPainting.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace dialog {

namespace {

/// Around the label and for a step of the scroll bars, before the screen's factor.
constexpr int kEdge = 16;
constexpr int kStep = 24;

} // namespace

DotCanvas::DotCanvas(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("dotCanvas"));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    // A label is no text: its left stays left.
    setLayoutDirection(Qt::LeftToRight);
    viewport()->setCursor(Qt::OpenHandCursor);
}

void DotCanvas::setLabel(const Sheet &sheet, Scaling scaling, const DotForm &form)
{
    mSheet = sheet;
    mScaling = scaling;
    mForm = form;
    layOut();
}

void DotCanvas::setDots(const DotPicture &picture)
{
    mDots = picture;
    viewport()->update();
}

void DotCanvas::setPlates(Plates plates)
{
    mPlates = plates;
    viewport()->update();
}

void DotCanvas::setZoom(int zoom, const QPointF &place)
{
    const QPointF dot = dotAt(place);
    mZoom = zoom;
    layOut();
    showAt(dot, place);
}

/// Whole pixels from the first dot.
QRect DotCanvas::inPixels(const QRectF &points) const
{
    const QSize pixels = pixelsOfDot(mForm.resolution, mZoom);
    const QRectF dots = mForm.inDots(points);
    return QRectF(dots.x() * pixels.width(), dots.y() * pixels.height(),
                  dots.width() * pixels.width(), dots.height() * pixels.height())
        .toRect();
}

/// Label and dots with the edge around, in pixels from the first dot.
QRect DotCanvas::content() const
{
    const QSize pixels = pixelsOfDot(mForm.resolution, mZoom);
    const QRect dots(0, 0, mForm.dots.width() * pixels.width(),
                     mForm.dots.height() * pixels.height());
    const int edge = qRound(kEdge * devicePixelRatioF());
    return (dots | inPixels(QRectF(QPointF(), mSheet.size))).adjusted(-edge, -edge, edge, edge);
}

/// The viewport in pixels of the screen.
QSize DotCanvas::room() const
{
    return (QSizeF(viewport()->size()) * devicePixelRatioF()).toSize();
}

/// The pixel of the viewport where the first dot begins. What is smaller than the viewport stands
/// in its middle.
QPoint DotCanvas::offset() const
{
    const QRect all = content();
    const QSize spare = (room() - all.size()).expandedTo(QSize(0, 0));
    return QPoint(spare.width() / 2, spare.height() / 2)
        - QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()) - all.topLeft();
}

QPointF DotCanvas::dotAt(const QPointF &place) const
{
    const QSize pixels = pixelsOfDot(mForm.resolution, mZoom);
    const QPointF from = place * devicePixelRatioF() - offset();
    return {from.x() / pixels.width(), from.y() / pixels.height()};
}

QRect DotCanvas::dotPixels() const
{
    const QSize pixels = pixelsOfDot(mForm.resolution, mZoom);
    return {offset(),
            QSize(mForm.dots.width() * pixels.width(), mForm.dots.height() * pixels.height())};
}

void DotCanvas::showAt(const QPointF &dot, const QPointF &place)
{
    const QSize pixels = pixelsOfDot(mForm.resolution, mZoom);
    const QPointF missing = dot - dotAt(place);
    const auto scroll = [](QScrollBar *bar, double by) {
        bar->setValue(bar->value() + qRound(by));
    };
    scroll(horizontalScrollBar(), missing.x() * pixels.width());
    scroll(verticalScrollBar(), missing.y() * pixels.height());
}

void DotCanvas::layOut()
{
    const QSize all = content().size();
    const QSize seen = room();
    const int step = qRound(kStep * devicePixelRatioF());
    const auto set = [step](QScrollBar *bar, int length, int part) {
        bar->setRange(0, std::max(0, length - part));
        bar->setPageStep(part);
        bar->setSingleStep(step);
    };
    set(horizontalScrollBar(), all.width(), seen.width());
    set(verticalScrollBar(), all.height(), seen.height());
    viewport()->update();
}

void DotCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    paintGround(painter, *viewport());
    painter.save();
    const double ratio = devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio);
    painter.translate(offset());
    const QRectF paper = inPixels(QRectF(QPointF(), mSheet.size));
    paintPaper(painter, paper, ratio);
    if (mDots.dots && mDots.dots->form.hasGridOf(mForm)) {
        painter.setClipRect(paper);
        paintVisibleDots(painter);
        painter.setClipping(false);
        const PagePlacement page = SheetLayout::place(mDots.pageSize, mSheet, mScaling);
        paintBeyondReach(painter, paper, inPixels(mSheet.imageableArea()), inPixels(page.page));
    }
    painter.restore();
    paintFocus(painter, *viewport(), hasFocus());
}

void DotCanvas::paintVisibleDots(QPainter &painter) const
{
    const QSize pixels = pixelsOfDot(mForm.resolution, mZoom);
    const QRect seen(-offset(), room());
    const auto dotsUnder = [](int from, int length, int pixelsOfOne, int most) {
        const int first = std::clamp(from / pixelsOfOne, 0, most);
        const int end = std::clamp((from + length + pixelsOfOne - 1) / pixelsOfOne, first, most);
        return std::pair(first, end - first);
    };
    const auto [x, width] = dotsUnder(seen.x(), seen.width(), pixels.width(), mForm.dots.width());
    const auto [y, height] =
        dotsUnder(seen.y(), seen.height(), pixels.height(), mForm.dots.height());
    if (width > 0 && height > 0) {
        painter.drawImage(QPoint(x * pixels.width(), y * pixels.height()),
                          enlargedDots(*mDots.dots, QRect(x, y, width, height), pixels, mPlates));
    }
}

void DotCanvas::resizeEvent(QResizeEvent *)
{
    layOut();
}

// Whatever turns pages is for the widget around.
void DotCanvas::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        QAbstractScrollArea::keyPressEvent(event);
        break;
    default:
        event->ignore();
    }
}

void DotCanvas::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

void DotCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        mDraggedFrom = event->position();
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
}

void DotCanvas::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    // What is less than a pixel is kept for the next move.
    const QPointF moved = (event->position() - mDraggedFrom) * devicePixelRatioF();
    const QPoint whole(int(moved.x()), int(moved.y()));
    mDraggedFrom += QPointF(whole) / devicePixelRatioF();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - whole.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - whole.y());
}

void DotCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        viewport()->setCursor(Qt::OpenHandCursor);
    }
}

} // namespace dialog
