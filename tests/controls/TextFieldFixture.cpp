// SPDX-License-Identifier: Apache-2.0
#include "controls/TextFieldFixture.h"

#include "platform/Beep.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

#include <utility>

using platform::NotificationCenter;

TextFieldTest::TextFieldTest()
{
    first.setGeometry(10, 10, 200, 30);
    field.setGeometry(10, 50, 200, 30);
    last.setGeometry(10, 90, 200, 30);
    window.resize(220, 130);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    first.setFocus();
    platform::setBeep([this] { ++beeps; });
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this](const platform::Notification &posted) {
            if (posted.name == QLatin1String("TextFieldResignFirstResponderNotification")) {
                EXPECT_EQ(posted.object, platform::NotificationObject(&field));
                EXPECT_EQ(posted.userInfo, std::nullopt);
                ++mPosts;
            } else {
                mRefusals.push_back(posted.name.toStdString());
            }
        },
        std::nullopt);
}

TextFieldTest::~TextFieldTest()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    platform::setBeep({});
}

void TextFieldTest::focusField()
{
    field.setFocus();
    ASSERT_TRUE(field.hasFocus());
}

void TextFieldTest::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void TextFieldTest::type(const char *text)
{
    QTest::keyClicks(&field, QString::fromUtf8(text));
}

void TextFieldTest::drop(const char *text, int place)
{
    QMimeData data;
    data.setText(QString::fromUtf8(text));
    const int caret = field.cursorPosition();
    const bool selected = field.hasSelectedText();
    const int start = field.selectionStart();
    const int length = field.selectionLength();
    field.setCursorPosition(place);
    const QPointF there = field.inputMethodQuery(Qt::ImCursorRectangle).toRectF().center();
    selected ? field.setSelection(start, length) : field.setCursorPosition(caret);
    QDragEnterEvent enter(there.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field, &enter);
    QDropEvent event(there, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&field, &event);
}

void TextFieldTest::commit(const char *text)
{
    QInputMethodEvent composing(QStringLiteral("..."), {});
    QApplication::sendEvent(&field, &composing);
    QInputMethodEvent done;
    done.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(&field, &done);
}

void TextFieldTest::paste(const char *text)
{
    QApplication::clipboard()->setText(QString::fromUtf8(text));
    key(Qt::Key_V, Qt::ControlModifier);
}

std::string TextFieldTest::text() const
{
    return field.text().toStdString();
}

std::string TextFieldTest::marked() const
{
    QString text = field.text();
    if (field.hasSelectedText()) {
        text.insert(field.selectionEnd(), QLatin1Char(']'));
        text.insert(field.selectionStart(), QLatin1Char('['));
    } else {
        text.insert(field.cursorPosition(), QLatin1Char('|'));
    }
    return text.toStdString();
}

int TextFieldTest::takePosts()
{
    return std::exchange(mPosts, 0);
}

std::vector<std::string> TextFieldTest::takeRefusals()
{
    return std::exchange(mRefusals, {});
}
