// SPDX-License-Identifier: Apache-2.0
#include "platform/IntegerValue.h"

#include <algorithm>
#include <limits>

namespace platform {
namespace {

bool isBlank(char16_t unit)
{
    return unit < 0x21 || (unit >= 0x7F && unit <= 0xA0) || (unit >= 0x2000 && unit <= 0x200B)
        || unit == 0x3000;
}

QStringView withoutLeadingBlanks(QStringView text)
{
    const auto first = std::find_if_not(text.utf16(), text.utf16() + text.size(), isBlank);
    return text.mid(first - text.utf16());
}

} // namespace

qint32 integerValue(QStringView text)
{
    text = withoutLeadingBlanks(text);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text = withoutLeadingBlanks(text.mid(1));
    }
    constexpr qint64 limit = qint64(std::numeric_limits<qint32>::max()) + 1;
    qint64 magnitude = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9') {
            break;
        }
        magnitude = std::min(limit, magnitude * 10 + (digit.unicode() - u'0'));
    }
    return qint32(negative ? -magnitude : std::min(magnitude, limit - 1));
}

} // namespace platform
