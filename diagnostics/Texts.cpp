// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Texts.h"

using platform::FormatArgument;
using platform::FormatArguments;

namespace diagnostics {
namespace {

FormatArgument orMissing(const std::optional<QString> &text)
{
    return text ? FormatArgument(*text) : FormatArgument();
}

} // namespace

std::optional<QString> textFromC(const char *utf8)
{
    return utf8 ? std::optional(QString::fromUtf8(utf8)) : std::nullopt;
}

std::optional<QString> describe(const void *object)
{
    const auto *described = static_cast<const PDEObject *>(object);
    return described->description ? textFromC(described->description(described)) : std::nullopt;
}

FormatArguments passedArguments(const std::optional<QString> &format, va_list arguments)
{
    return format ? platform::fetchArguments(*format, arguments, &describe) : FormatArguments();
}

QString traceLine(const QString &tag, const std::optional<FormatArgument> &object,
                  const std::optional<QString> &format, const FormatArguments &arguments)
{
    // Meant: the description becomes part of the format, and its per-cent signs conversions.
    const QString whole = object
        ? platform::formatted(QStringLiteral("%@ self(%@) %@"), {tag, *object, orMissing(format)})
        : platform::formatted(QStringLiteral("%@ %@"), {tag, orMissing(format)});
    return platform::formatted(whole, arguments);
}

} // namespace diagnostics
