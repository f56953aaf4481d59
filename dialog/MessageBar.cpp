// SPDX-License-Identifier: Apache-2.0
#include "dialog/MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace dialog {

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , mIcon(new QLabel(this))
    , mText(new QLabel(this))
    , mAction(new QToolButton(this))
    , mClose(new QToolButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setObjectName(QStringLiteral("messageBar"));
    mText->setObjectName(QStringLiteral("messageText"));
    mAction->setObjectName(QStringLiteral("messageAction"));
    mText->setWordWrap(true);
    mText->setTextFormat(Qt::PlainText);
    mText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mClose->setAutoRaise(true);
    mClose->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
    mClose->setAccessibleName(tr("Close this message"));
    mClose->setToolTip(tr("Close this message"));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(mIcon, 0, Qt::AlignTop);
    row->addWidget(mText, 1);
    row->addWidget(mAction);
    row->addWidget(mClose, 0, Qt::AlignTop);
    connect(mClose, &QToolButton::clicked, this, &MessageBar::close);
    connect(mAction, &QToolButton::clicked, this, [this] {
        // The action may show the next message, so this one goes first.
        const std::function<void()> run = std::exchange(mRun, nullptr);
        close();
        if (run) {
            run();
        }
    });
    hide();
}

void MessageBar::show(Kind kind, const QString &text)
{
    show(kind, text, QString(), nullptr);
}

void MessageBar::show(Kind kind, const QString &text, const QString &actionText,
                      std::function<void()> action)
{
    mShowsStanding = false;
    display({kind, text, actionText, std::move(action)});
}

void MessageBar::setStanding(Kind kind, const QString &text, const QString &actionText,
                             std::function<void()> action)
{
    const bool isNew = text != mStanding.text || actionText != mStanding.actionText;
    mStanding = {kind, text, actionText, std::move(action)};
    if (!isNew) {
        mRun = mShowsStanding ? mStanding.action : mRun;
        return;
    }
    mStandingIsClosed = false;
    if (mShowsStanding || this->text().isEmpty()) {
        displayStanding();
    }
}

void MessageBar::display(const Message &message)
{
    mRun = message.action;
    mAction->setText(message.actionText);
    mAction->setVisible(!message.actionText.isEmpty());
    const auto icon = message.kind == Kind::Warning ? QStyle::SP_MessageBoxWarning
                                                    : QStyle::SP_MessageBoxInformation;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    mIcon->setPixmap(style()->standardIcon(icon).pixmap(size, size));
    mText->setText(message.text);
    setVisible(!message.text.isEmpty());
    if (!message.text.isEmpty()) {
        QAccessibleEvent event(mText, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void MessageBar::displayStanding()
{
    mShowsStanding = !mStanding.text.isEmpty() && !mStandingIsClosed;
    display(mShowsStanding ? mStanding : Message());
}

void MessageBar::close()
{
    mStandingIsClosed = mStandingIsClosed || mShowsStanding;
    displayStanding();
}

void MessageBar::clear()
{
    if (!mShowsStanding) {
        displayStanding();
    }
}

QString MessageBar::text() const
{
    return mText->text();
}

} // namespace dialog
