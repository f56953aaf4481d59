// SPDX-License-Identifier: Apache-2.0
#include "dialog/PagePreview.h"

#include "dialog/DotBar.h"
#include "dialog/DotCanvas.h"
#include "dialog/DotRenderer.h"
#include "dialog/PageCanvas.h"

#include <QAction>
#include <QStackedLayout>

#include <algorithm>

namespace dialog {

void PagePreview::buildDots()
{
    connect(mCanvas, &PageCanvas::laidOut, this, &PagePreview::askForDots);
    connect(mDots, &DotRenderer::rendered, this, &PagePreview::dotsRendered);
    connect(mDots, &DotRenderer::progressed, this, &PagePreview::dotsProgressed);
    connect(mBar, &DotBar::zoomPicked, this, &PagePreview::setZoom);
    connect(mBar, &DotBar::zoomStepped, this, [this](int steps) { stepZoom(steps, middle()); });
    connect(mBar, &DotBar::platesPicked, this, &PagePreview::setPlates);
    connect(mBar, &DotBar::stopped, this, [this] { setDotsOn(false); });
    connect(mBar, &DotBar::dotsWished, this, [this] { setDotsOn(true); });

    const auto addKeys = [this](const QList<QKeySequence> &keys, const auto &act) {
        auto *action = new QAction(this);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, act);
        addAction(action);
    };
    addKeys({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { stepZoom(1, middle()); });
    addKeys({Qt::CTRL | Qt::Key_Minus}, [this] { stepZoom(-1, middle()); });
    addKeys({Qt::CTRL | Qt::Key_0}, [this] { setZoom(kFitted); });
    addKeys({Qt::CTRL | Qt::Key_1}, [this] { setZoom(1); });
}

bool PagePreview::showsDots() const
{
    return mDocument && mForm && mDotsOn;
}

/// It is known that this page has none, because it is damaged or has too many.
bool PagePreview::lacksDots() const
{
    return mShownDots.request.document && !mShownDots.dots;
}

/// Whatever stands in place of dots stands on the whole label.
bool PagePreview::isLarge() const
{
    return showsDots() && mZoom != kFitted && !lacksDots();
}

DotRequest PagePreview::wantedDots() const
{
    DotRequest request{mDocument, mPage, mSheet, mScaling, *mForm, Plates::Both, QSize()};
    if (!isLarge()) {
        request.plates = mPlates;
        request.pixels = mCanvas->dotPixels();
    }
    return request;
}

void PagePreview::refreshDots()
{
    mBar->setVisible(mForm.has_value());
    mBar->setEnabled(mDocument != nullptr);
    mBar->setDotsOn(mDotsOn);
    mBar->setZoom(mZoom);
    const bool twoColours = mForm && mForm->settings.colorMode == imaging::ColorMode::BlackRed;
    mBar->setTwoColours(twoColours);
    if (!twoColours && mPlates != Plates::Both) {
        setPlates(Plates::Both);
    }
    if (showsDots()) {
        mLarge->setLabel(mSheet, mScaling, *mForm);
        if (isLarge()) {
            askForDots();
        }
        return;
    }
    mAskedDots = {};
    mBar->setProgress({});
    if (mDocument && mForm) {
        mDots->cancel();
    } else {
        mDots->clear();
        mShownDots = {};
        mCanvas->setDots({});
        mLarge->setDots({});
    }
}

// The canvas says when the window is there and when its pixels change.
void PagePreview::askForDots()
{
    if (!showsDots()) {
        return;
    }
    const DotRequest request = wantedDots();
    if (request != mAskedDots) {
        mAskedDots = request;
        mDots->render(request);
    }
}

void PagePreview::dotsRendered(const DotPicture &picture)
{
    mShownDots = picture;
    mStandIn = lacksDots() && picture.why.isEmpty();
    mCanvas->setDots(picture);
    mCanvas->setPageWanted(mStandIn);
    mLarge->setDots(picture);
    showCanvas();
    // Another canvas wants another picture.
    askForDots();
    setTexts();
    if (picture.request == wantedDots()) {
        mBar->setProgress({});
    }
    if (isUpToDate()) {
        Q_EMIT pageShown();
    }
}

void PagePreview::dotsProgressed(int percent)
{
    mBar->setProgress(percent);
    if (!mShownDots.dots && !mStandIn) {
        mStandIn = true;
        mCanvas->setPageWanted(true);
    }
}

bool PagePreview::stopDots()
{
    if (!mBar->showsProgress()) {
        return false;
    }
    setDotsOn(false);
    return true;
}

void PagePreview::setDotsOn(bool on)
{
    mDotsOn = on;
    mStandIn = false;
    if (!on) {
        mZoom = kFitted;
    }
    refresh();
}

void PagePreview::showCanvas()
{
    QWidget *canvas = isLarge() ? static_cast<QWidget *>(mLarge) : mCanvas;
    QWidget *former = mStack->currentWidget();
    if (canvas == former) {
        return;
    }
    // At once, so that a place on it means something.
    canvas->setGeometry(former->geometry());
    mStack->setCurrentWidget(canvas);
    setFocusProxy(canvas);
}

void PagePreview::setPlates(Plates plates)
{
    mPlates = plates;
    mBar->setPlates(plates);
    mLarge->setPlates(plates);
    refresh();
}

QPointF PagePreview::middle() const
{
    const QWidget *canvas = mStack->currentWidget();
    return canvas->mapToGlobal(QRectF(canvas->rect()).center());
}

void PagePreview::setZoom(int zoom)
{
    setZoomAt(zoom, middle());
}

/// What is at `global` stays there.
void PagePreview::setZoomAt(int zoom, const QPointF &global)
{
    if (!showsDots() || zoom == mZoom) {
        mBar->setZoom(mZoom);
        return;
    }
    const bool wasLarge = isLarge();
    mZoom = zoom;
    if (wasLarge && isLarge()) {
        mLarge->setZoom(zoom, mLarge->viewport()->mapFromGlobal(global));
        refresh();
        return;
    }
    const QRectF fitted = mCanvas->dotRectangle();
    const QPointF place = mCanvas->mapFromGlobal(global);
    refresh();
    if (zoom != kFitted) {
        mLarge->setZoom(zoom, QPointF());
    }
    if (isLarge() && !fitted.isEmpty()) {
        const QPointF dot((place.x() - fitted.x()) / fitted.width() * mForm->dots.width(),
                          (place.y() - fitted.y()) / fitted.height() * mForm->dots.height());
        mLarge->showAt(dot, mLarge->viewport()->mapFromGlobal(global));
    }
}

void PagePreview::stepZoom(int steps, const QPointF &global)
{
    if (!showsDots() || steps == 0) {
        return;
    }
    if (mZoom == kFitted && steps > 0) {
        // The first one that shows the dots larger than they are fitted.
        const int fitted = mCanvas->dotPixels().width();
        const auto larger =
            std::find_if(kDotZooms.begin(), kDotZooms.end() - 1, [this, fitted](int zoom) {
                return pixelsOfDot(mForm->resolution, zoom).width() * mForm->dots.width() > fitted;
            });
        setZoomAt(*larger, global);
        return;
    }
    const auto now = std::find(kDotZooms.begin(), kDotZooms.end(), mZoom) - kDotZooms.begin();
    const auto next = std::min(now + steps, std::ptrdiff_t(kDotZooms.size()) - 1);
    setZoomAt(mZoom == kFitted || next < 0 ? kFitted : kDotZooms[std::size_t(next)], global);
}

/// The description of a page, with how its dots are shown.
QString PagePreview::withZoom(const QString &description) const
{
    if (!showsDots() || lacksDots()) {
        return description;
    }
    return mZoom == kFitted
        ? tr("%1, all of its dots", "page number").arg(description)
        : tr("%1, its dots %2:1", "page number, zoom").arg(description, QString::number(mZoom));
}

} // namespace dialog
