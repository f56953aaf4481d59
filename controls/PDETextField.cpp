// SPDX-License-Identifier: Apache-2.0
#include "controls/PDETextField.h"

#include "platform/NSException.h"

#include <QFocusEvent>

#include <utility>

namespace {

constexpr QLatin1String kTextDidChange("NSTextDidChangeNotification");
constexpr QLatin1String kTextDidEndEditing("NSTextDidEndEditingNotification");

bool isKeyboardNavigation(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

PDETextField13_v300_::PDETextField13_v300_(QWidget *parent)
    : QLineEdit(parent)
    , mEdits(*this)
{
    connect(this, &QLineEdit::textEdited, this, &PDETextField13_v300_::judgeEdit);
    connect(this, &QLineEdit::editingFinished, this, [this] {
        textDidEndEditing({kTextDidEndEditing, this, {}});
    });
}

PDETextField13_v300_::~PDETextField13_v300_() = default;

void PDETextField13_v300_::sendFirstResponderNotification(bool become)
{
    // Meant: despite its name it tells that the field is worked in, not that it is left.
    if (!become) {
        platform::NotificationCenter::defaultCenter().post(kTextFieldNotification,
                                                           static_cast<const void *>(this));
    }
}

bool PDETextField13_v300_::becomeFirstResponder()
{
    const bool takesTheKeyboard = isEnabled();
    if (takesTheKeyboard) {
        sendFirstResponderNotification(true);
    }
    return takesTheKeyboard;
}

void PDETextField13_v300_::selectText(QWidget * /*sender*/)
{
    // Meant: nothing is selected.
    sendFirstResponderNotification(false);
}

void PDETextField13_v300_::textDidChange(const platform::Notification & /*notification*/)
{
    sendFirstResponderNotification(false);
}

void PDETextField13_v300_::textDidEndEditing(const platform::Notification & /*notification*/)
{
    // The line edit has ended the edit before it tells of it, and it never keeps the keyboard.
    try {
        sendFirstResponderNotification(true);
    } catch (const NSException &exception) {
        exception.raise();
    }
}

void PDETextField13_v300_::setFormatter(std::shared_ptr<PDEFormatter> formatter)
{
    mFormatter = std::move(formatter);
}

void PDETextField13_v300_::focusInEvent(QFocusEvent *event)
{
    const bool navigated = isKeyboardNavigation(event->reason());
    // For its own reasons the line edit would select the text.
    QFocusEvent entered(event->type(), navigated ? Qt::OtherFocusReason : event->reason());
    QLineEdit::focusInEvent(&entered);
    becomeFirstResponder();
    if (navigated) {
        selectText(this);
    }
}

void PDETextField13_v300_::judgeEdit()
{
    if (formatterAccepts()) {
        mEdits.accept();
        textDidChange({kTextDidChange, this, {}});
    } else {
        mEdits.restore();
        Q_EMIT editRefused();
    }
}

bool PDETextField13_v300_::formatterAccepts() const
{
    if (!mFormatter) {
        return true;
    }
    const controls::EditHook::State after = mEdits.current();
    std::optional<QString> proposed = after.text;
    TextRange selection = after.selection;
    std::optional<QString> error;
    return mFormatter->isPartialStringValid(&proposed, &selection, mEdits.before().text,
                                            mEdits.before().selection, &error);
}
