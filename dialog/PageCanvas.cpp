// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageCanvas.h"

#include "dialog/SheetPainting.h"

#include <QEvent>
#include <QPainter>
#include <QTimer>

#include <cmath>

namespace dialog {

namespace {

constexpr double kEdge = 16;

/// How long the first page waits for a window that is shown but not painted, in milliseconds: one
/// on another desktop may never be.
constexpr int kLongestWait = 250;

// To whole pixels of the screen, so that a rendered page is painted pixel by pixel.
QPointF onPixels(const QPointF &point, double ratio)
{
    return {std::round(point.x() * ratio) / ratio, std::round(point.y() * ratio) / ratio};
}

QRectF onPixels(const QRectF &rectangle, double ratio)
{
    return {onPixels(rectangle.topLeft(), ratio), onPixels(rectangle.bottomRight(), ratio)};
}

} // namespace

PageCanvas::PageCanvas(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("pageCanvas"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&mRenderer, &PageRenderer::rendered, this, &PageCanvas::show);
}

QSize PageCanvas::sizeHint() const
{
    return {320, 420};
}

void PageCanvas::setRequest(const PageRequest &request, const std::optional<DotForm> &form)
{
    const auto isOfAnotherPage = [&request](const auto &picture) {
        return request.document != picture.request.document || request.page != picture.request.page;
    };
    if (isOfAnotherPage(mPicture)) {
        mPicture = {};
    }
    if (isOfAnotherPage(mDots)) {
        mDots = {};
    }
    mRequest = request;
    mForm = form;
    ask();
    update();
}

void PageCanvas::setPageWanted(bool wanted)
{
    if (wanted != mPageWanted) {
        mPageWanted = wanted;
        ask();
        update();
    }
}

void PageCanvas::setDots(const DotPicture &picture)
{
    mDots = picture;
    update();
}

PageRequest PageCanvas::wanted() const
{
    PageRequest request = mRequest;
    const QSizeF room(width() - 2 * kEdge, height() - 2 * kEdge);
    request.pixels = (room.expandedTo(QSizeF(1, 1)) * devicePixelRatioF()).toSize();
    return request;
}

bool PageCanvas::isUpToDate() const
{
    return !mRequest.document || mPicture.request == wanted();
}

// Nothing is rendered for a window that nobody sees.
void PageCanvas::ask()
{
    if (!mRequest.document || !mPageWanted) {
        mAsked = {};
        mRenderer.cancel();
    }
    if (!mRequest.document || !mMayAsk || !isVisible()) {
        return;
    }
    const PageRequest request = wanted();
    if (mPageWanted && request != mAsked) {
        mAsked = request;
        mRenderer.render(request);
    }
    Q_EMIT laidOut();
}

void PageCanvas::beginAsking()
{
    mMayAsk = true;
    ask();
}

void PageCanvas::show(const PagePicture &picture)
{
    mPicture = picture;
    update();
    Q_EMIT shown();
}

Sheet PageCanvas::sheet() const
{
    return mRequest.sheet.size.isEmpty() ? Sheet{mPicture.pageSize, QMarginsF()} : mRequest.sheet;
}

QRectF PageCanvas::sheetRectangle() const
{
    const Sheet label = sheet();
    const QSizeF room(width() - 2 * kEdge, height() - 2 * kEdge);
    QRectF rectangle(QPointF(), label.size * PageRenderer::pixelsPerPoint(label, room));
    rectangle.moveCenter(QRectF(rect()).center());
    return rectangle.isEmpty() ? QRectF() : onPixels(rectangle, devicePixelRatioF());
}

double PageCanvas::pixelsPerPoint() const
{
    return sheetRectangle().width() / sheet().size.width();
}

QRectF PageCanvas::pageRectangle() const
{
    const Sheet label = sheet();
    const QRectF rectangle = sheetRectangle();
    const bool isThere = showsDots() ? mDots.dots != nullptr : !mPicture.image.isNull();
    if (!isThere || rectangle.isEmpty()) {
        return {};
    }
    const QSizeF size = showsDots() ? mDots.pageSize : mPicture.pageSize;
    const PagePlacement place = SheetLayout::place(size, label, mRequest.scaling);
    const double factor = pixelsPerPoint();
    return onPixels(
        QRectF(place.page.topLeft() * factor + rectangle.topLeft(), place.page.size() * factor),
        devicePixelRatioF());
}

QRectF PageCanvas::dotRectangle() const
{
    const QRectF rectangle = sheetRectangle();
    if (!mForm || rectangle.isEmpty()) {
        return {};
    }
    // In each direction by itself, so that rounding puts nothing outside of the label.
    const QRectF label = mForm->inDots(QRectF(QPointF(), sheet().size));
    const double across = rectangle.width() / label.width();
    const double down = rectangle.height() / label.height();
    return onPixels(QRectF(rectangle.x() - label.x() * across, rectangle.y() - label.y() * down,
                           mForm->dots.width() * across, mForm->dots.height() * down),
                    devicePixelRatioF());
}

QSize PageCanvas::dotPixels() const
{
    return (dotRectangle().size() * devicePixelRatioF()).toSize();
}

QString PageCanvas::message() const
{
    const QString &why = showsDots() ? mDots.why : mPicture.why;
    return mRequest.document ? why : tr("No document");
}

void PageCanvas::paintEvent(QPaintEvent *)
{
    if (mMayAsk) {
        // A window that moves to another screen gets no resize.
        ask();
    } else {
        QTimer::singleShot(0, this, &PageCanvas::beginAsking);
    }
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintGround(painter, *this);
    const QRectF rectangle = sheetRectangle();
    if (!rectangle.isEmpty()) {
        paintPaper(painter, rectangle);
    }
    const QRectF page = pageRectangle();
    if (!page.isEmpty()) {
        painter.save();
        painter.setClipRect(rectangle);
        showsDots() ? paintDots(painter) : paintPage(painter);
        painter.restore();
        const QRectF reach = sheet().imageableArea();
        const double factor = pixelsPerPoint();
        paintBeyondReach(
            painter, rectangle,
            QRectF(reach.topLeft() * factor + rectangle.topLeft(), reach.size() * factor), page);
    }
    if (const QString text = message(); !text.isEmpty()) {
        paintSentence(painter, rect().adjusted(24, 24, -24, -24), text, palette());
    }
    paintFocus(painter, *this, hasFocus());
}

void PageCanvas::paintPage(QPainter &painter) const
{
    const QRectF page = pageRectangle();
    if (SheetLayout::place(mPicture.pageSize, sheet(), mRequest.scaling).turned) {
        painter.translate(page.bottomLeft());
        painter.rotate(-90);
        painter.drawImage(QRectF(0, 0, page.height(), page.width()), mPicture.image);
    } else {
        painter.drawImage(page, mPicture.image);
    }
}

void PageCanvas::paintDots(QPainter &painter) const
{
    painter.drawImage(dotRectangle(), mDots.image);
}

void PageCanvas::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ask();
}

void PageCanvas::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!mMayAsk) {
        QTimer::singleShot(kLongestWait, this, &PageCanvas::beginAsking);
    }
    ask();
}

} // namespace dialog
