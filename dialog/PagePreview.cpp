// SPDX-License-Identifier: Apache-2.0
#include "dialog/PagePreview.h"

#include "dialog/DotBar.h"
#include "dialog/DotCanvas.h"
#include "dialog/DotRenderer.h"
#include "dialog/PageCanvas.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace dialog {

namespace {

void describe(QWidget *widget, const QString &description)
{
    if (description != widget->accessibleDescription()) {
        widget->setAccessibleDescription(description);
        QAccessibleEvent changed(widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&changed);
    }
}

} // namespace

PagePreview::PagePreview(QWidget *parent)
    : QWidget(parent)
    , mStack(new QStackedLayout)
    , mCanvas(new PageCanvas(this))
    , mLarge(new DotCanvas(this))
    , mBar(new DotBar(this))
    , mDots(new DotRenderer(this))
    , mFoot(new QHBoxLayout)
    , mPrevious(new QToolButton(this))
    , mNumber(new QLabel(this))
    , mNext(new QToolButton(this))
{
    setFocusProxy(mCanvas);
    connect(mCanvas, &PageCanvas::shown, this, [this] {
        setTexts();
        if (isUpToDate()) {
            Q_EMIT pageShown();
        }
    });
    connect(mPrevious, &QToolButton::clicked, this, [this] { setCurrentPage(mPage - 1); });
    connect(mNext, &QToolButton::clicked, this, [this] { setCurrentPage(mPage + 1); });
    buildRow();
    buildDots();
    refresh();
}

void PagePreview::buildRow()
{
    mPrevious->setObjectName(QStringLiteral("previousPage"));
    mNext->setObjectName(QStringLiteral("nextPage"));
    mNumber->setObjectName(QStringLiteral("pageNumber"));
    const bool fromRight = isRightToLeft();
    mPrevious->setArrowType(fromRight ? Qt::RightArrow : Qt::LeftArrow);
    mNext->setArrowType(fromRight ? Qt::LeftArrow : Qt::RightArrow);
    for (QToolButton *button : {mPrevious, mNext}) {
        button->setAutoRaise(true);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::TabFocus);
    }
    mNumber->setAlignment(Qt::AlignCenter);
    mNumber->setTextFormat(Qt::PlainText);

    mFoot->addStretch(1);
    mFoot->addWidget(mPrevious);
    mFoot->addWidget(mNumber);
    mFoot->addWidget(mNext);
    mFoot->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    mStack->addWidget(mCanvas);
    mStack->addWidget(mLarge);
    column->addLayout(mStack, 1);
    column->addWidget(mBar);
    column->addLayout(mFoot);
}

void PagePreview::addToFoot(QWidget *widget)
{
    mFoot->addWidget(widget);
}

void PagePreview::setDocument(std::shared_ptr<const DocumentPages> document)
{
    mDocument = std::move(document);
    const int before = std::exchange(mPage, 0);
    refresh();
    if (before != 0) {
        Q_EMIT currentPageChanged(mPage);
    }
}

void PagePreview::setSheet(const Sheet &sheet, const std::optional<DotForm> &form)
{
    mSheet = sheet;
    const bool hasDots = form && !form->dots.isEmpty() && !sheet.size.isEmpty();
    mForm = hasDots ? form : std::nullopt;
    if (!mForm) {
        mZoom = kFitted;
    }
    refresh();
}

void PagePreview::setScaling(Scaling scaling)
{
    mScaling = scaling;
    refresh();
}

int PagePreview::pageCount() const
{
    return mDocument ? mDocument->pageCount() : 0;
}

void PagePreview::setCurrentPage(int page)
{
    const int nearest = std::max(0, std::min(page, pageCount() - 1));
    if (nearest == mPage) {
        return;
    }
    mPage = nearest;
    refresh();
    Q_EMIT currentPageChanged(mPage);
}

bool PagePreview::isUpToDate() const
{
    if (!showsDots()) {
        return mCanvas->isUpToDate();
    }
    return mShownDots.request == wantedDots() && (!mStandIn || mCanvas->isUpToDate());
}

void PagePreview::refresh()
{
    if (mShownDots.request.document != mDocument || mShownDots.request.page != mPage) {
        mShownDots = {};
        mLarge->setDots({});
    }
    mCanvas->setPageWanted(!showsDots() || mStandIn);
    mCanvas->setRequest({mDocument, mPage, mSheet, mScaling, {}}, mForm);
    showCanvas();
    refreshDots();
    mPrevious->setEnabled(mPage > 0);
    mNext->setEnabled(mPage + 1 < pageCount());
    setTexts();
}

void PagePreview::setTexts()
{
    const QString number =
        mDocument ? tr("Page %L1 of %L2").arg(mPage + 1).arg(pageCount()) : QString();
    mNumber->setText(number);
    for (const auto &[button, text] :
         {std::pair(mPrevious, tr("Previous page")), std::pair(mNext, tr("Next page"))}) {
        button->setAccessibleName(text);
        button->setToolTip(text);
    }
    const QString message = mCanvas->message();
    const QString description = message.isEmpty() || number.isEmpty()
        ? number + message
        : tr("%1: %2", "page number, what is wrong with it").arg(number, message);
    for (QWidget *canvas : {static_cast<QWidget *>(mCanvas), static_cast<QWidget *>(mLarge)}) {
        canvas->setAccessibleName(tr("Preview of the document"));
        describe(canvas, message.isEmpty() ? withZoom(description) : description);
    }
}

bool PagePreview::turnByKey(int key)
{
    const bool fromRight = isRightToLeft();
    switch (key) {
    case Qt::Key_PageUp:
    case Qt::Key_Up:
        setCurrentPage(mPage - 1);
        return true;
    case Qt::Key_PageDown:
    case Qt::Key_Down:
        setCurrentPage(mPage + 1);
        return true;
    case Qt::Key_Left:
        setCurrentPage(mPage + (fromRight ? 1 : -1));
        return true;
    case Qt::Key_Right:
        setCurrentPage(mPage + (fromRight ? -1 : 1));
        return true;
    case Qt::Key_Home:
        setCurrentPage(0);
        return true;
    case Qt::Key_End:
        setCurrentPage(pageCount() - 1);
        return true;
    default:
        return false;
    }
}

void PagePreview::keyPressEvent(QKeyEvent *event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool stops = plain && event->key() == Qt::Key_Escape && stopDots();
    if (!stops && (!plain || !turnByKey(event->key()))) {
        QWidget::keyPressEvent(event);
    }
}

// One step for each notch; fine wheels and touch pads send parts of one.
void PagePreview::wheelEvent(QWheelEvent *event)
{
    constexpr int kNotch = 120;
    mWheelSteps += event->angleDelta().y();
    const int steps = mWheelSteps / kNotch;
    mWheelSteps -= steps * kNotch;
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        stepZoom(steps, event->globalPosition());
    } else if (!isLarge()) {
        setCurrentPage(mPage - steps);
    }
    event->accept();
}

void PagePreview::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        mCanvas->update();
    }
    QWidget::changeEvent(event);
}

} // namespace dialog
