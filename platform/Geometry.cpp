// SPDX-License-Identifier: Apache-2.0
#include "platform/Geometry.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace platform {
namespace {

QWidget *superviewOf(const QWidget *view)
{
    return view->isWindow() ? nullptr : view->parentWidget();
}

QRectF frameFromGeometry(const QWidget *view)
{
    const QRectF place(view->geometry());
    const QWidget *superview = superviewOf(view);
    const double y = superview ? superview->height() - place.y() - place.height() : 0;
    return {superview ? place.x() : 0, y, place.width(), place.height()};
}

/// Holds the frame of its parent view, and the view to it.
class FrameKeeper : public QObject
{
public:
    FrameKeeper(QWidget *view, const QRectF &frame)
        : QObject(view)
        , mFrame(frame)
    {
        view->installEventFilter(this);
        watchSuperview();
    }

    static FrameKeeper *of(const QWidget *view);

    QRectF frame()
    {
        adoptGeometry();
        return mFrame;
    }

    void setFrame(const QRectF &frame)
    {
        mFrame = frame;
        place();
    }

    /// Keeps the view at its frame in a superview that has a new size.
    void follow()
    {
        if (!adoptGeometry()) {
            place();
        }
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *view() const { return static_cast<QWidget *>(parent()); }
    void watchSuperview();
    void place();
    bool adoptGeometry();

    QRectF mFrame;
    QRect mPlaced;
    bool mPlacing = false;
    QPointer<QWidget> mSuperview;
};

FrameKeeper *FrameKeeper::of(const QWidget *view)
{
    for (QObject *child : view->children()) {
        if (auto *keeper = dynamic_cast<FrameKeeper *>(child)) {
            return keeper;
        }
    }
    return nullptr;
}

/// A hidden view hears of its new size only when it is shown; its subviews must not wait for that.
void placeSubviews(const QWidget *superview)
{
    const QObjectList children = superview->children();
    for (QObject *child : children) {
        const auto *view = qobject_cast<QWidget *>(child);
        if (FrameKeeper *keeper = view && !view->isWindow() ? FrameKeeper::of(view) : nullptr) {
            keeper->follow();
        }
    }
}

/// Turns the frame into geometry.
void FrameKeeper::place()
{
    mPlacing = true;
    const QSize size(qRound(mFrame.width()), qRound(mFrame.height()));
    if (const QWidget *superview = superviewOf(view())) {
        const int top = superview->height() - qRound(mFrame.y()) - size.height();
        view()->setGeometry(QRect({qRound(mFrame.x()), top}, size));
    } else {
        view()->resize(size);
    }
    mPlaced = view()->geometry();
    mPlacing = false;
    placeSubviews(view());
}

void FrameKeeper::watchSuperview()
{
    if (mSuperview) {
        mSuperview->removeEventFilter(this);
    }
    mSuperview = superviewOf(view());
    if (mSuperview) {
        mSuperview->installEventFilter(this);
    }
}

/// Takes the place that somebody else gave the view as its frame. A hidden view does not hear of
/// that when it happens, and hears late of the places that it was given here.
bool FrameKeeper::adoptGeometry()
{
    if (mPlacing || view()->geometry() == mPlaced) {
        return false;
    }
    mPlaced = view()->geometry();
    const QRectF frame = frameFromGeometry(view());
    mFrame = mSuperview ? frame : QRectF(mFrame.topLeft(), frame.size());
    return true;
}

bool FrameKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mSuperview && event->type() == QEvent::Resize) {
        follow();
    } else if (watched == parent() && event->type() == QEvent::ParentChange) {
        watchSuperview();
        place();
    } else if (watched == parent()
               && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) {
        adoptGeometry();
    }
    return false;
}

} // namespace

QRectF frame(const QWidget *view)
{
    if (!view) {
        return {};
    }
    FrameKeeper *keeper = FrameKeeper::of(view);
    return keeper ? keeper->frame() : frameFromGeometry(view);
}

void setFrame(QWidget *view, const QRectF &frame)
{
    if (!view) {
        return;
    }
    const QRectF kept(frame.x(), frame.y(), std::max(frame.width(), 0.0),
                      std::max(frame.height(), 0.0));
    FrameKeeper *keeper = FrameKeeper::of(view);
    if (!keeper) {
        keeper = new FrameKeeper(view, kept);
    }
    keeper->setFrame(kept);
}

void setFrameOrigin(QWidget *view, const QPointF &origin)
{
    setFrame(view, QRectF(origin, frame(view).size()));
}

void setFrameSize(QWidget *view, const QSizeF &size)
{
    if (view && !superviewOf(view) && !FrameKeeper::of(view)) {
        view->resize(size.expandedTo(QSizeF(0, 0)).toSize());
        placeSubviews(view);
        return;
    }
    setFrame(view, QRectF(frame(view).topLeft(), size));
}

void replaceSubview(QWidget *superview, QWidget *old, QWidget *with)
{
    if (!superview || !old || !with || superviewOf(old) != superview) {
        return;
    }
    const QRectF kept = frame(with);
    with->setParent(superview);
    with->stackUnder(old);
    setFrame(with, kept);
    with->show();
    delete old;
}

} // namespace platform
