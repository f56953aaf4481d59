// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/EditHook.h"
#include "controls/PDEFormatter.h"
#include "platform/NotificationCenter.h"

#include <QLineEdit>

#include <memory>

/// Posted by a text field, as the field's address and without user information, when a person works
/// in it: for each change of its text, and when the keyboard enters it.
inline constexpr QLatin1String kTextFieldNotification("TextFieldResignFirstResponderNotification");

/// A text field that announces that somebody works in it, and whose edits a formatter may refuse.
///
/// An interface description may name it, see controls/InputControls.h. Entering it with Tab or a
/// shortcut posts the notification and leaves the selection alone; clicking into it and leaving it
/// post nothing. The interface thread only.
class PDETextField13_v300_ : public QLineEdit
{
    Q_OBJECT
public:
    explicit PDETextField13_v300_(QWidget *parent = nullptr);
    ~PDETextField13_v300_() override;

    /// Posts the notification for false, nothing for true.
    virtual void sendFirstResponderNotification(bool become);

    /// The field has been given the keyboard. Answers whether it takes it.
    virtual bool becomeFirstResponder();
    /// The keyboard's navigation enters the field.
    virtual void selectText(QWidget *sender);
    /// A person has changed the text.
    virtual void textDidChange(const platform::Notification &notification);
    /// Return, Tab or another field; may come twice for one edit.
    virtual void textDidEndEditing(const platform::Notification &notification);

    /// Asked about each edit of a person, before anybody is told of it. Without one all pass.
    const std::shared_ptr<PDEFormatter> &formatter() const { return mFormatter; }
    void setFormatter(std::shared_ptr<PDEFormatter> formatter);

Q_SIGNALS:
    /// The formatter has refused an edit; text and selection are as before it. Qt's own textEdited
    /// and textChanged are sent with the refused text all the same.
    void editRefused();

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void judgeEdit();
    bool formatterAccepts() const;

    std::shared_ptr<PDEFormatter> mFormatter;
    controls::EditHook mEdits;
};
