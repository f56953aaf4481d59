// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Diagnostics.h"
#include "diagnostics/Texts.h"
#include "platform/SystemLog.h"

using namespace diagnostics;

namespace {

void trace(const char *tag, const PDEObject *object, const char *format, va_list arguments)
{
    quietly([&] {
        std::optional<platform::FormatArgument> traced;
        if (object) {
            const std::optional<QString> description = describe(object);
            traced =
                description ? platform::FormatArgument(*description) : platform::FormatArgument();
        }
        const std::optional<QString> text = textFromC(format);
        platform::systemLog(
            traceLine(QString::fromLatin1(tag), traced, text, passedArguments(text, arguments)));
    });
}

} // namespace

void _PDEProlog(const PDEObject *object, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    trace("BEGIN", object, format, arguments);
    va_end(arguments);
}

void _PDEEpilog(const PDEObject *object, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    trace("END", object, format, arguments);
    va_end(arguments);
}

void _PDELog(const PDEObject *object, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    trace("LOG", object, format, arguments);
    va_end(arguments);
}
