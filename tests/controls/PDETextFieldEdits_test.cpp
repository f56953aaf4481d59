// SPDX-License-Identifier: Apache-2.0
#include "controls/PDETextField.h"

#include "controls/TextFieldFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The field lets digits through, three at most.
class PDETextFieldEdits : public TextFieldTest
{
protected:
    PDETextFieldEdits()
    {
        formatter->setMaxLength(3);
        field.setFormatter(formatter);
        focusField();
    }

    void fill(const char *text, int start, int length = 0)
    {
        field.setText(QString::fromUtf8(text));
        length == 0 ? field.setCursorPosition(start) : field.setSelection(start, length);
    }

    /// As the panel writes the level of a slider.
    void setSilently(const char *text)
    {
        const QSignalBlocker silent(&field);
        field.setText(QString::fromUtf8(text));
    }

    void expectRefused()
    {
        EXPECT_THAT(takeRefusals(), ElementsAre("InvalidCharacterNotification"));
        EXPECT_EQ(beeps, 1);
        EXPECT_EQ(refused.count(), 1);
        EXPECT_EQ(takePosts(), 0);
        beeps = 0;
        refused.clear();
    }

    std::shared_ptr<PDEFormatter> formatter = std::make_shared<PDEFormatter>(2);
    QSignalSpy refused{&field, &PDETextField13_v300_::editRefused};
};

TEST_F(PDETextFieldEdits, KeysThatTheFormatterAcceptsStay)
{
    type("12");
    EXPECT_EQ(marked(), "12|");
    EXPECT_EQ(takePosts(), 2);
    EXPECT_THAT(takeRefusals(), IsEmpty());
    EXPECT_EQ(refused.count(), 0);
}

TEST_F(PDETextFieldEdits, ARefusedKeyChangesNothing)
{
    fill("12", 1);
    type("x");
    EXPECT_EQ(marked(), "1|2");
    expectRefused();
}

TEST_F(PDETextFieldEdits, ARefusedKeyKeepsTheSelectionThatItWouldReplace)
{
    fill("1234", 1, 2);
    type("x");
    EXPECT_EQ(marked(), "1[23]4");
    expectRefused();
}

TEST_F(PDETextFieldEdits, ASelectionMadeBackwardsKeepsItsCaret)
{
    fill("1234", 3, -2);
    type("x");
    EXPECT_EQ(marked(), "1[23]4");
    EXPECT_EQ(field.cursorPosition(), 1);
    expectRefused();
}

TEST_F(PDETextFieldEdits, ASelectionThatWasGivenUpDoesNotComeBack)
{
    fill("1234", 1, 2);
    field.deselect();
    type("x");
    EXPECT_EQ(marked(), "123|4");
    expectRefused();
}

TEST_F(PDETextFieldEdits, EachKeyIsJudgedAfterTheLast)
{
    type("1x2y3z4");
    EXPECT_EQ(marked(), "123|");
    EXPECT_EQ(beeps, 4);
    EXPECT_EQ(takePosts(), 3);
}

TEST_F(PDETextFieldEdits, TheCaretBeforeTheEditIsWhereItWasMovedTo)
{
    fill("99", 2);
    key(Qt::Key_Home);
    type("x");
    EXPECT_EQ(marked(), "|99");
    expectRefused();
    key(Qt::Key_End, Qt::ShiftModifier);
    type("x");
    EXPECT_EQ(marked(), "[99]");
    expectRefused();
}

TEST_F(PDETextFieldEdits, ARefusedPasteChangesNothing)
{
    fill("12", 1);
    paste("7x");
    EXPECT_EQ(marked(), "1|2");
    expectRefused();
    paste("7");
    EXPECT_EQ(marked(), "17|2");
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(PDETextFieldEdits, APasteFromTheMenuIsJudgedToo)
{
    QApplication::clipboard()->setText(QStringLiteral("x"));
    field.paste();
    EXPECT_EQ(text(), "");
    expectRefused();
}

TEST_F(PDETextFieldEdits, ARefusedDropChangesNothing)
{
    fill("12", 0, 1);
    drop("x", 2);
    EXPECT_EQ(text(), "12");
    expectRefused();
    fill("12", 2);
    drop("x", 0);
    EXPECT_EQ(text(), "12");
    expectRefused();
    drop("7", 1);
    EXPECT_EQ(text(), "172");
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(PDETextFieldEdits, ARefusedCommitOfAnInputMethodChangesNothing)
{
    fill("12", 1);
    commit("\xE3\x81\x82");
    EXPECT_EQ(marked(), "1|2");
    expectRefused();
    commit("7");
    EXPECT_EQ(marked(), "17|2");
    EXPECT_THAT(takeRefusals(), IsEmpty());
    EXPECT_EQ(takePosts(), 1);
}

TEST_F(PDETextFieldEdits, DeletingCuttingAndClearingPass)
{
    fill("abc", 3);
    key(Qt::Key_Backspace);
    EXPECT_EQ(text(), "ab");
    fill("abcd", 1, 2);
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(marked(), "a|d");
    fill("abcd", 0, 4);
    key(Qt::Key_Delete);
    EXPECT_EQ(text(), "");
    EXPECT_EQ(takePosts(), 3);
    EXPECT_EQ(beeps, 0);
}

TEST_F(PDETextFieldEdits, UndoAndRedoAreJudgedByTheRulesOfTheMoment)
{
    type("12");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), "");
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text(), "12");
    EXPECT_EQ(beeps, 0);
    key(Qt::Key_Z, Qt::ControlModifier);
    takePosts();
    formatter->setMaxLength(1);
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text(), "");
    expectRefused();
}

TEST_F(PDETextFieldEdits, AfterARefusalUndoLeadsBackToWhatTheProgramSet)
{
    fill("5", 1);
    type("1x");
    EXPECT_EQ(marked(), "51|");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), "5");
}

TEST_F(PDETextFieldEdits, WhatTheProgramSetsIsNotJudgedAndIsTheNewStart)
{
    field.setText(QStringLiteral("abcdef"));
    EXPECT_EQ(text(), "abcdef");
    EXPECT_EQ(beeps, 0);
    type("7");
    EXPECT_EQ(text(), "abcdef");
    expectRefused();
}

TEST_F(PDETextFieldEdits, WhatTheProgramSetsSilentlyIsTheNewStartToo)
{
    fill("5", 1);
    setSilently("12");
    type("x");
    EXPECT_EQ(marked(), "12|");
    expectRefused();
    setSilently("34");
    commit("x");
    EXPECT_EQ(marked(), "34|");
    expectRefused();
    setSilently("56");
    drop("x", 1);
    EXPECT_EQ(text(), "56");
    expectRefused();
}

TEST_F(PDETextFieldEdits, AKeyThatWouldReplaceWhatTheProgramSetSilentlyIsJudged)
{
    fill("", 0);
    type("45");
    takePosts();
    setSilently("20");
    field.selectAll();
    type("x");
    EXPECT_EQ(marked(), "[20]");
    expectRefused();
}

TEST_F(PDETextFieldEdits, WithoutAFormatterEverythingPasses)
{
    field.setFormatter(nullptr);
    type("any text");
    EXPECT_EQ(text(), "any text");
    EXPECT_EQ(beeps, 0);
}

} // namespace
