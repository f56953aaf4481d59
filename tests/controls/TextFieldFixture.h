// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/PDETextField.h"

#include <QWidget>

#include <string>
#include <vector>

#include <gmock/gmock.h>

/// A window with the keyboard: the field under test between two others.
///
/// Everything that is posted from the field is counted; other posts are an error of the test.
class TextFieldTest : public testing::Test
{
protected:
    TextFieldTest();
    ~TextFieldTest() override;

    /// Gives the keyboard to the field, as a program does.
    void focusField();
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const char *text);
    /// Drops `text` from elsewhere before the character at `place`.
    void drop(const char *text, int place);
    /// What an input method hands over when the composition is done.
    void commit(const char *text);
    void paste(const char *text);
    std::string text() const;
    /// The text with the selection in brackets, or a bar for the caret.
    std::string marked() const;

    /// Posts of the field since the last call.
    int takePosts();
    std::vector<std::string> takeRefusals();

    QWidget window;
    QLineEdit first{&window};
    PDETextField13_v300_ field{&window};
    QLineEdit last{&window};
    int beeps = 0;

private:
    int mPosts = 0;
    std::vector<std::string> mRefusals;
};
