// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace loading {

/// Why a bundle is left out, for the user. `what` names it, `why` is the sentence that says what is
/// wrong with it and what to do; neither ends with a full stop.
struct Refusal
{
    QString what;
    QString why;

    QString text() const { return what + QStringLiteral(": ") + why; }
};

} // namespace loading
