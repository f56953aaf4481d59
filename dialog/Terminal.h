// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"

#include <QString>

namespace dialog {

/// Writes `text` to standard output as it stands, in UTF-8.
void say(const QString &text);

/// Writes "label-print: what: why" to standard error.
void complain(const Failure &failure);

} // namespace dialog
