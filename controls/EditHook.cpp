// SPDX-License-Identifier: Apache-2.0
#include "controls/EditHook.h"

#include <QEvent>
#include <QSignalBlocker>

namespace controls {
namespace {

bool mayBringAnEdit(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

EditHook::EditHook(QLineEdit &field)
    : mField(field)
    , mBefore(current())
    , mSetByProgram(field.text())
{
    // The field tells of the text last; an input method moves the caret before that.
    const auto selected = [this] {
        if (mField.text() == mBefore.text) {
            follow();
        }
    };
    connect(&field, &QLineEdit::cursorPositionChanged, this, selected);
    connect(&field, &QLineEdit::selectionChanged, this, selected);
    connect(&field, &QLineEdit::textChanged, this, &EditHook::follow);
    field.installEventFilter(this);
}

bool EditHook::eventFilter(QObject *watched, QEvent *event)
{
    // The program may have set the text with the field's signals blocked.
    if (watched == &mField && mayBringAnEdit(event->type()) && !mField.isModified()) {
        follow();
    }
    return false;
}

EditHook::State EditHook::current() const
{
    const bool selected = mField.hasSelectedText();
    const TextRange selection{selected ? mField.selectionStart() : mField.cursorPosition(),
                              selected ? mField.selectionLength() : 0};
    return {mField.text(), selection, mField.cursorPosition()};
}

void EditHook::follow()
{
    mBefore = current();
    if (!mField.isModified()) {
        mSetByProgram = mBefore.text;
    }
}

void EditHook::accept()
{
    follow();
}

void EditHook::restore()
{
    const QSignalBlocker silent(mField);
    mField.setText(mSetByProgram);
    if (mBefore.text != mSetByProgram) {
        mField.selectAll();
        mField.insert(mBefore.text);
    }
    const int start = int(mBefore.selection.location);
    const int length = int(mBefore.selection.length);
    if (length == 0) {
        mField.setCursorPosition(start);
    } else if (mBefore.caret == start) {
        mField.setSelection(start + length, -length);
    } else {
        mField.setSelection(start, length);
    }
}

} // namespace controls
