// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/PDEFormatter.h"

#include <QLineEdit>
#include <QObject>
#include <QString>

namespace controls {

/// Knows what a line edit held before each edit of a person, and can put that back.
///
/// An edit is a key, a paste, a drop, a cut, an undo, a redo, or what an input method commits; what
/// the program sets is none. Follows the field from its construction on and lives no longer.
class EditHook : public QObject
{
public:
    /// The field's text and selection. Without selected text the selection is the caret.
    struct State
    {
        QString text;
        TextRange selection;
        int caret = 0;
    };

    explicit EditHook(QLineEdit &field);

    /// While the field tells of an edit: what it held before.
    const State &before() const { return mBefore; }
    State current() const;

    /// Takes the edit that the field tells of for good.
    void accept();
    /// Puts text and selection back. The field's signals are silent meanwhile; one undo leads from
    /// here to the text that the program set last.
    void restore();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();

    QLineEdit &mField;
    State mBefore;
    QString mSetByProgram;
};

} // namespace controls
