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
    connect(mClose, &QToolButton::clicked, this, &MessageBar::clear);
    connect(mAction, &QToolButton::clicked, this, [this] {
        // The action may show the next message, so this one goes first.
        const std::function<void()> run = std::exchange(mRun, nullptr);
        clear();
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
    mRun = std::move(action);
    mAction->setText(actionText);
    mAction->setVisible(!actionText.isEmpty());
    const auto icon =
        kind == Kind::Warning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    mIcon->setPixmap(style()->standardIcon(icon).pixmap(size, size));
    mText->setText(text);
    setVisible(true);
    QAccessibleEvent event(mText, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::clear()
{
    mText->clear();
    setVisible(false);
}

QString MessageBar::text() const
{
    return mText->text();
}

} // namespace dialog
