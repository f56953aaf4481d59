// SPDX-License-Identifier: Apache-2.0
#include "dialog/ColourBadge.h"

#include "dialog/PrinterSetup.h"
#include "platform/NotificationCenter.h"

#include <QPainter>

namespace dialog {
namespace {

// In points.
constexpr int kDot = 10;
constexpr int kGap = 4;
constexpr int kEdge = 7;
const QColor kRed(0xc8, 0x10, 0x2e);

int dotsOf(ColourMode mode)
{
    return mode == ColourMode::BlackAndRed ? 2 : 1;
}

} // namespace

ColourBadge::ColourBadge(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("colourBadge"));
    setTextFormat(Qt::PlainText);
    hide();
}

ColourBadge::~ColourBadge()
{
    setSetup(nullptr);
}

void ColourBadge::setSetup(PrinterSetup *setup)
{
    auto &center = platform::NotificationCenter::defaultCenter();
    center.removeObserver(this);
    const bool hasColours = setup && setup->ppd() && setup->ppd()->hasOption(kColourOption);
    mSetup = hasColours ? setup : nullptr;
    mChoice.reset();
    show({});
    if (hasColours) {
        center.addObserver(
            this, [this](const platform::Notification &notification) { announced(notification); },
            kNotification);
        showMark();
    }
}

void ColourBadge::showMark()
{
    if (!mSetup) {
        return;
    }
    const std::optional<QString> choice = mSetup->ppd()->markedChoice(kColourOption);
    if (choice != mChoice) {
        mChoice = choice;
        show(colourModeOf(choice));
    }
}

// A panel announces one change twice; the second time shows the same.
void ColourBadge::announced(const platform::Notification &notification)
{
    const auto *sender = std::get_if<const void *>(&notification.object);
    if (!sender || !mSetup || !mSetup->panels().isHost(*sender) || !notification.userInfo) {
        return;
    }
    const QVariant blackAndRed = notification.userInfo->value(kColourOption);
    if (blackAndRed.typeId() == QMetaType::Bool) {
        show(blackAndRed.toBool() ? ColourMode::BlackAndRed : ColourMode::Black);
    }
}

void ColourBadge::show(std::optional<ColourMode> mode)
{
    mMode = mode;
    if (mode) {
        const bool red = *mode == ColourMode::BlackAndRed;
        const QString sentence =
            red ? tr("The label is printed in black and red") : tr("The label is printed in black");
        setText(red ? tr("black and red") : tr("black"));
        setToolTip(sentence);
        setAccessibleName(sentence);
        setContentsMargins(kEdge + dotsOf(*mode) * (kDot + kGap), 2, kEdge, 2);
    } else {
        clear();
    }
    setVisible(mode.has_value());
    update();
}

void ColourBadge::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.5F);
    painter.setPen(line);
    painter.setBrush(palette().brush(QPalette::Base));
    painter.drawRoundedRect(frame, frame.height() / 2, frame.height() / 2);
    // The outline keeps the black dot apart from a dark ground.
    painter.setPen(palette().color(QPalette::WindowText));
    const bool fromRight = isRightToLeft();
    for (int i = 0; mMode && i < dotsOf(*mMode); ++i) {
        const int from = kEdge + i * (kDot + kGap);
        const QRectF dot(fromRight ? width() - from - kDot : from, (height() - kDot) / 2.0, kDot,
                         kDot);
        painter.setBrush(i == 0 ? QColor(Qt::black) : kRed);
        painter.drawEllipse(dot.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter.end();
    QLabel::paintEvent(event);
}

} // namespace dialog
