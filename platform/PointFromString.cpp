// SPDX-License-Identifier: Apache-2.0
#include "platform/PointFromString.h"

#include <QByteArray>

#include <charconv>

namespace platform {
namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool numberStarts(const char *at, const char *end)
{
    if (at != end && *at == '-') {
        ++at;
    }
    if (at != end && *at == '.') {
        ++at;
    }
    return at != end && isDigit(*at);
}

/// Reads the next number and moves `at` behind it; 0 when there is none or none that fits.
double nextNumber(const char *&at, const char *end)
{
    while (at != end && !numberStarts(at, end)) {
        ++at;
    }
    double number = 0.0;
    const auto read = std::from_chars(at, end, number);
    at = read.ptr;
    return read.ec == std::errc() ? number : 0.0;
}

} // namespace

QPointF pointFromString(QStringView text)
{
    // Characters outside Latin-1 become question marks, which are no part of any number.
    const QByteArray bytes = text.toLatin1();
    const char *at = bytes.constData();
    const char *end = at + bytes.size();
    const double x = nextNumber(at, end);
    const double y = nextNumber(at, end);
    return {x, y};
}

} // namespace platform
