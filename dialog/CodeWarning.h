// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CodeCheck.h"
#include "dialog/Failure.h"

#include <QCoreApplication>

namespace dialog {

/// What the user is told about a code that nobody will read.
class CodeWarning
{
    Q_DECLARE_TR_FUNCTIONS(dialog::CodeWarning)

public:
    /// The longest text of a code that is shown, in characters.
    static constexpr int kLongestText = 24;

    /// Which code it is, and what to do.
    static Failure failureOf(const LostCode &code);

    /// The text of the button that does it; empty when no button can.
    static QString actionOf(CodeRemedy remedy);

    /// The text of a code for people: on one line, cut to a sensible length, without characters
    /// that act on what stands around them.
    static QString shown(const QString &text);

private:
    static QString whatToDo(const LostCode &code);
};

} // namespace dialog
