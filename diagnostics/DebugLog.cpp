// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Diagnostics.h"
#include "diagnostics/Output.h"
#include "diagnostics/Texts.h"

using namespace diagnostics;

namespace {

/// The filled format in UTF-8, or nothing without a format. A lone surrogate becomes "?".
std::optional<QByteArray> message(const char *format, va_list arguments)
{
    const std::optional<QString> text = textFromC(format);
    if (!text) {
        return std::nullopt;
    }
    return platform::formatted(*text, passedArguments(text, arguments)).toUtf8();
}

} // namespace

void debugLog(int level, const char *format, ...)
{
    if (level > 0) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    quietly([&] {
        StandardErrorOutput output;
        output.print("DEBUG: ", "", "");
        if (const std::optional<QByteArray> bytes = message(format, arguments)) {
            output.print("", *bytes, "\n");
        }
    });
    va_end(arguments);
}

void debugLogFd(int level, int descriptor, const char *format, ...)
{
    if (level > 0) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    quietly([&] {
        if (const std::optional<QByteArray> bytes = message(format, arguments)) {
            DescriptorOutput output(descriptor);
            output.write(*bytes);
            output.write("\n");
        }
    });
    va_end(arguments);
}
