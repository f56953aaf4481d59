// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotBar.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QProgressBar>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace dialog {

namespace {

constexpr int kProgressWidth = 60;
constexpr int kProgressHeight = 8;
constexpr int kIconSide = 16;

/// A drop of each ink. The outline keeps black apart from a dark ground.
QIcon iconOf(Plates plates, const QPalette &colours)
{
    constexpr double kFine = 4;
    QPixmap pixmap(QSize(kIconSide, kIconSide) * kFine);
    pixmap.setDevicePixelRatio(kFine);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours.color(QPalette::ButtonText));
    const auto drop = [&painter](double middle, const QColor &ink) {
        painter.setBrush(ink);
        painter.drawEllipse(QPointF(middle, kIconSide / 2.0), 4.5, 4.5);
    };
    const bool both = plates == Plates::Both;
    if (plates != Plates::Red) {
        drop(both ? 5.5 : 8, Qt::black);
    }
    if (plates != Plates::Black) {
        drop(both ? 10.5 : 8, Qt::red);
    }
    return pixmap;
}

} // namespace

DotBar::DotBar(QWidget *parent)
    : QWidget(parent)
    , mRow(new QHBoxLayout(this))
    , mZoomBox(new QComboBox(this))
    , mPlates(new QButtonGroup(this))
    , mProgress(new QProgressBar(this))
{
    setObjectName(QStringLiteral("dotBar"));
    mRow->setContentsMargins(0, 0, 0, 0);
    buildZoom();
    buildPlates();
    mShowDots = addButton("showDots");
    connect(mShowDots, &QToolButton::clicked, this, &DotBar::dotsWished);
    mRow->addStretch(1);
    buildProgress();
    setTexts();
    showStates();
}

QToolButton *DotBar::addButton(const char *name, const QString &text)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setText(text);
    mRow->addWidget(button);
    return button;
}

void DotBar::buildZoom()
{
    mSmaller = addButton("zoomOut", QStringLiteral("\u2212"));
    mZoomBox->setObjectName(QStringLiteral("zoom"));
    mZoomBox->addItem(QString(), kFitted);
    for (const int zoom : kDotZooms) {
        mZoomBox->addItem(QStringLiteral("%1:1").arg(zoom), zoom);
    }
    mRow->addWidget(mZoomBox);
    mLarger = addButton("zoomIn", QStringLiteral("+"));
    for (QToolButton *button : {mSmaller, mLarger}) {
        button->setAutoRepeat(true);
    }
    connect(mSmaller, &QToolButton::clicked, this, [this] { Q_EMIT zoomStepped(-1); });
    connect(mLarger, &QToolButton::clicked, this, [this] { Q_EMIT zoomStepped(1); });
    connect(mZoomBox, &QComboBox::activated, this,
            [this](int row) { Q_EMIT zoomPicked(mZoomBox->itemData(row).toInt()); });
}

void DotBar::buildPlates()
{
    for (const auto &[plates, name] :
         {std::pair(Plates::Both, "bothPlates"), std::pair(Plates::Black, "blackPlate"),
          std::pair(Plates::Red, "redPlate")}) {
        QToolButton *button = addButton(name);
        button->setCheckable(true);
        button->setIconSize(QSize(kIconSide, kIconSide));
        mPlates->addButton(button, int(plates));
    }
    mPlates->button(int(Plates::Both))->setChecked(true);
    connect(mPlates, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked) {
            Q_EMIT platesPicked(Plates(id));
        }
    });
}

void DotBar::buildProgress()
{
    mProgress->setObjectName(QStringLiteral("dotProgress"));
    mProgress->setTextVisible(false);
    mProgress->setFixedSize(kProgressWidth, kProgressHeight);
    mRow->addWidget(mProgress);
    mStop = addButton("stopDots");
    connect(mStop, &QToolButton::clicked, this, &DotBar::stopped);
    mProgress->hide();
    mStop->hide();
}

void DotBar::setTexts()
{
    const auto name = [](QWidget *widget, const QString &text) {
        widget->setAccessibleName(text);
        widget->setToolTip(text);
    };
    mZoomBox->setItemText(0, tr("Fit", "the whole label fits into the preview"));
    name(mZoomBox, tr("Zoom: pixels of the screen for each printed dot"));
    name(mSmaller, tr("Smaller"));
    name(mLarger, tr("Larger"));
    name(mPlates->button(int(Plates::Both)), tr("Show the black and the red dots"));
    name(mPlates->button(int(Plates::Black)), tr("Show the black dots alone"));
    name(mPlates->button(int(Plates::Red)), tr("Show the red dots alone"));
    name(mProgress, tr("The dots are being made"));
    name(mStop, tr("Stop, and show the page without dots"));
    mShowDots->setText(tr("Show dots"));
    name(mShowDots, tr("Show dots"));
    mShowDots->setToolTip(tr("Show the dots that will be printed"));
    for (const Plates plates : {Plates::Both, Plates::Black, Plates::Red}) {
        mPlates->button(int(plates))->setIcon(iconOf(plates, palette()));
    }
    mStop->setIcon(style()->standardIcon(QStyle::SP_BrowserStop));
    keepHeight();
}

void DotBar::showStates()
{
    for (QWidget *widget : {static_cast<QWidget *>(mSmaller), static_cast<QWidget *>(mZoomBox),
                            static_cast<QWidget *>(mLarger)}) {
        widget->setVisible(mDotsOn);
    }
    for (QAbstractButton *button : mPlates->buttons()) {
        button->setVisible(mDotsOn && mTwoColours);
    }
    mShowDots->setVisible(!mDotsOn);
}

// What comes and goes must not move the preview above.
void DotBar::keepHeight()
{
    int height = 0;
    for (const QWidget *widget : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        height = std::max(height, widget->sizeHint().height());
    }
    setFixedHeight(height);
}

void DotBar::setZoom(int zoom)
{
    mZoomBox->setCurrentIndex(mZoomBox->findData(zoom));
    mSmaller->setEnabled(zoom != kFitted);
    mLarger->setEnabled(zoom != kDotZooms.back());
}

void DotBar::setPlates(Plates plates)
{
    mPlates->button(int(plates))->setChecked(true);
}

void DotBar::setTwoColours(bool two)
{
    mTwoColours = two;
    showStates();
}

void DotBar::setDotsOn(bool on)
{
    mDotsOn = on;
    showStates();
}

void DotBar::setProgress(std::optional<int> percent)
{
    mProgress->setVisible(percent.has_value());
    mStop->setVisible(percent.has_value());
    mProgress->setValue(percent.value_or(0));
}

bool DotBar::showsProgress() const
{
    return !mProgress->isHidden();
}

void DotBar::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::LanguageChange:
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        setTexts();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

} // namespace dialog
