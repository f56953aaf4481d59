// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageCanvas.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QTimer>

#include <cmath>

namespace dialog {

namespace {

constexpr double kEdge = 16;
constexpr int kShadow = 9;

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

void paintShadow(QPainter &painter, const QRectF &sheet)
{
    painter.setPen(Qt::NoPen);
    for (int ring = kShadow; ring > 0; --ring) {
        painter.setBrush(QColor(0, 0, 0, 4 + 2 * (kShadow - ring)));
        const QRectF rectangle = sheet.translated(0, 2).adjusted(-ring, -ring, ring, ring);
        painter.drawRoundedRect(rectangle, ring, ring);
    }
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

void PageCanvas::setRequest(const PageRequest &request)
{
    if (request.document != mPicture.request.document || request.page != mPicture.request.page) {
        mPicture = {};
    }
    mRequest = request;
    ask();
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
    if (!mRequest.document) {
        mAsked = {};
        mRenderer.cancel();
        return;
    }
    const PageRequest request = wanted();
    if (mMayAsk && isVisible() && request != mAsked) {
        mAsked = request;
        mRenderer.render(request);
    }
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

QRectF PageCanvas::pageRectangle() const
{
    const Sheet label = sheet();
    const QRectF rectangle = sheetRectangle();
    if (mPicture.image.isNull() || rectangle.isEmpty()) {
        return {};
    }
    const PagePlacement place = SheetLayout::place(mPicture.pageSize, label, mRequest.scaling);
    const double factor = rectangle.width() / label.size.width();
    return onPixels(
        QRectF(place.page.topLeft() * factor + rectangle.topLeft(), place.page.size() * factor),
        devicePixelRatioF());
}

QString PageCanvas::message() const
{
    return mRequest.document ? mPicture.why : tr("No document");
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
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(112));
    paintSheet(painter);
    paintPage(painter);
    paintReach(painter);
    paintMessage(painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

void PageCanvas::paintSheet(QPainter &painter) const
{
    const QRectF rectangle = sheetRectangle();
    if (!rectangle.isEmpty()) {
        paintShadow(painter, rectangle);
        painter.fillRect(rectangle, Qt::white);
    }
}

void PageCanvas::paintPage(QPainter &painter) const
{
    const QRectF page = pageRectangle();
    if (page.isEmpty()) {
        return;
    }
    painter.save();
    painter.setClipRect(sheetRectangle());
    if (SheetLayout::place(mPicture.pageSize, sheet(), mRequest.scaling).turned) {
        painter.translate(page.bottomLeft());
        painter.rotate(-90);
        painter.drawImage(QRectF(0, 0, page.height(), page.width()), mPicture.image);
    } else {
        painter.drawImage(page, mPicture.image);
    }
    painter.restore();
}

// The edges that the printer does not reach, when something of the page stands there.
void PageCanvas::paintReach(QPainter &painter) const
{
    const QRectF rectangle = sheetRectangle();
    const QRectF page = pageRectangle();
    if (page.isEmpty()) {
        return;
    }
    const Sheet label = sheet();
    const double factor = rectangle.width() / label.size.width();
    const QRectF reach = label.imageableArea();
    const QRectF shown(reach.topLeft() * factor + rectangle.topLeft(), reach.size() * factor);
    if (reach.isEmpty() || shown.adjusted(-1, -1, 1, 1).contains(page)) {
        return;
    }
    QPainterPath edges;
    edges.addRect(rectangle);
    edges.addRect(shown);
    painter.fillPath(edges, QColor(255, 255, 255, 150));
    QPen pen(QColor(120, 120, 120), 1, Qt::DashLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(shown);
}

void PageCanvas::paintMessage(QPainter &painter) const
{
    const QString text = message();
    if (text.isEmpty()) {
        return;
    }
    const QRect room = rect().adjusted(24, 24, -24, -24);
    // Text is not measured while there is no pen.
    painter.setPen(palette().color(QPalette::Text));
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRectF place = painter.boundingRect(QRectF(room), kFlags, text).adjusted(-12, -8, 12, 8);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(place, 4, 4);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(room), kFlags, text);
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
