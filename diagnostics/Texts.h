// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "diagnostics/Diagnostics.h"
#include "platform/FormatString.h"

#include <QString>

#include <cstdarg>
#include <optional>

// What the exported functions are made of, at the level of QString.

namespace diagnostics {

/// A text that came from C; nothing for a null pointer.
std::optional<QString> textFromC(const char *utf8);

/// The description of a PDEObject that is not null.
std::optional<QString> describe(const void *object);

/// The arguments that a caller passed for `format`; none without a format.
platform::FormatArguments passedArguments(const std::optional<QString> &format, va_list arguments);

/// The text of a trace: `object` is the description of the traced object, nothing without one.
QString traceLine(const QString &tag, const std::optional<platform::FormatArgument> &object,
                  const std::optional<QString> &format, const platform::FormatArguments &arguments);

/// Runs `work` for a caller in C, which could not catch what it throws.
template <class Work> void quietly(Work work) noexcept
{
    try {
        work();
    } catch (...) {
        // A trace must not end the program that it traces.
    }
}

} // namespace diagnostics
