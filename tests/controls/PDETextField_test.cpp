// SPDX-License-Identifier: Apache-2.0
#include "controls/PDETextField.h"

#include "controls/TextFieldFixture.h"
#include "platform/NSException.h"

#include <QFocusEvent>
#include <QSignalSpy>
#include <QTest>

using testing::IsEmpty;

namespace {

class PDETextField : public TextFieldTest
{ };

TEST_F(PDETextField, AnnouncesForNoAndNotForYes)
{
    field.sendFirstResponderNotification(true);
    EXPECT_EQ(takePosts(), 0);
    field.sendFirstResponderNotification(false);
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(PDETextField, EachTypedCharacterIsAnnouncedOnce)
{
    focusField();
    type("a");
    EXPECT_EQ(takePosts(), 1);
    type("bcd");
    EXPECT_EQ(takePosts(), 3);
    key(Qt::Key_Backspace);
    EXPECT_EQ(takePosts(), 1);
    key(Qt::Key_Left);
    EXPECT_EQ(takePosts(), 0);
    EXPECT_EQ(text(), "abc");
}

TEST_F(PDETextField, PasteAndUndoAreAnnouncedOnceEach)
{
    focusField();
    paste("several words");
    EXPECT_EQ(takePosts(), 1);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(takePosts(), 1);
    EXPECT_EQ(text(), "");
}

TEST_F(PDETextField, WhatTheProgramSetsIsNotAnnounced)
{
    field.setText(QStringLiteral("abc"));
    field.clear();
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(PDETextField, ClickingIntoItAnnouncesNothing)
{
    field.setText(QStringLiteral("abc"));
    QTest::mouseClick(&field, Qt::LeftButton);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(PDETextField, TheProgramsFocusAnnouncesNothing)
{
    focusField();
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(PDETextField, EnteringWithTabAnnouncesAndSelectsNothing)
{
    field.setText(QStringLiteral("abc"));
    key(Qt::Key_Tab);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(takePosts(), 1);
    EXPECT_EQ(marked(), "abc|");
    last.setFocus();
    key(Qt::Key_Backtab);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(takePosts(), 1);
    EXPECT_EQ(marked(), "abc|");
}

TEST_F(PDETextField, EnteringWithAShortcutAnnouncesAndSelectsNothing)
{
    field.setText(QStringLiteral("abc"));
    field.setFocus(Qt::ShortcutFocusReason);
    EXPECT_EQ(takePosts(), 1);
    EXPECT_EQ(marked(), "abc|");
}

TEST_F(PDETextField, APlainLineEditWouldSelectOnTab)
{
    last.setText(QStringLiteral("abc"));
    focusField();
    key(Qt::Key_Tab);
    EXPECT_EQ(last.selectedText(), QStringLiteral("abc"));
}

TEST_F(PDETextField, SelectTextAnnouncesAndLeavesTheSelection)
{
    field.setText(QStringLiteral("abcd"));
    field.setSelection(1, 2);
    field.selectText(nullptr);
    EXPECT_EQ(takePosts(), 1);
    EXPECT_EQ(marked(), "a[bc]d");
}

TEST_F(PDETextField, EndingAnEditAnnouncesNothing)
{
    focusField();
    type("a");
    takePosts();
    key(Qt::Key_Return);
    EXPECT_EQ(takePosts(), 0);
    type("b");
    takePosts();
    key(Qt::Key_Tab);
    EXPECT_FALSE(field.hasFocus());
    EXPECT_EQ(takePosts(), 0);
}

TEST_F(PDETextField, OnlyAnEnabledFieldBecomesFirstResponder)
{
    EXPECT_TRUE(field.becomeFirstResponder());
    field.setEnabled(false);
    EXPECT_FALSE(field.becomeFirstResponder());
    EXPECT_EQ(takePosts(), 0);
}

/// Writes down what is sent to it; throws when it is to announce the end of an edit.
class LoudField : public PDETextField13_v300_
{
public:
    enum class Throws
    {
        Nothing,
        NSException,
        SomethingElse,
    };
    void sendFirstResponderNotification(bool become) override
    {
        sent.push_back(become);
        if (throws == Throws::NSException) {
            throw ::NSException(QStringLiteral("name"), QStringLiteral("reason"));
        }
        if (throws == Throws::SomethingElse) {
            throw 7;
        }
        PDETextField13_v300_::sendFirstResponderNotification(become);
    }
    void textDidChange(const platform::Notification &notification) override
    {
        changes.push_back(notification.name.toStdString());
        EXPECT_EQ(notification.object, platform::NotificationObject(this));
        PDETextField13_v300_::textDidChange(notification);
    }
    void textDidEndEditing(const platform::Notification &notification) override
    {
        ends.push_back(notification.name.toStdString());
        PDETextField13_v300_::textDidEndEditing(notification);
    }

    Throws throws = Throws::Nothing;
    std::vector<bool> sent;
    std::vector<std::string> changes;
    std::vector<std::string> ends;
};

TEST(PDETextFieldOrder, EachEventSendsItsOwnAnswer)
{
    LoudField field;
    field.becomeFirstResponder();
    EXPECT_EQ(field.sent, (std::vector<bool>{true}));
    QTest::keyClicks(&field, QStringLiteral("a"));
    EXPECT_EQ(field.sent, (std::vector<bool>{true, false}));
    EXPECT_EQ(field.changes, (std::vector<std::string>{"NSTextDidChangeNotification"}));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.sent, (std::vector<bool>{true, false, true}));
    EXPECT_EQ(field.ends, (std::vector<std::string>{"NSTextDidEndEditingNotification"}));
}

TEST(PDETextFieldOrder, AnNSExceptionAtTheEndOfAnEditIsRaisedAgain)
{
    LoudField field;
    field.throws = LoudField::Throws::NSException;
    try {
        field.textDidEndEditing({});
        FAIL() << "nothing was thrown";
    } catch (const NSException &exception) {
        EXPECT_EQ(exception.name(), QStringLiteral("name"));
    }
}

TEST(PDETextFieldOrder, AnyOtherExceptionPassesUnchanged)
{
    LoudField field;
    field.throws = LoudField::Throws::SomethingElse;
    EXPECT_THROW(field.textDidEndEditing({}), int);
}

} // namespace
