// SPDX-License-Identifier: Apache-2.0
#include "dialog/Terminal.h"

#include <cstdio>

namespace dialog {
namespace {

void write(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void say(const QString &text)
{
    write(stdout, text);
}

void complain(const Failure &failure)
{
    write(stderr, QStringLiteral("label-print: ") + failure.text() + u'\n');
}

} // namespace dialog
