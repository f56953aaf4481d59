// SPDX-License-Identifier: Apache-2.0
// Any format with any arguments: it ends, in a text of bounded length, and the arguments of a real
// call are read without reading others.
//
// An input is the number of arguments (one byte), for each its type (0 none, 1 signed, 2 unsigned,
// 3 real, 4 text) and value (eight bytes; of a text a length and as many bytes), and then the
// format.
#include "fuzz/Require.h"
#include "platform/FormatString.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

using namespace platform;

namespace {

constexpr std::size_t kMostArguments = 7;
/// What one unit of a format can give without an argument's text: the largest width, or the digits
/// of the largest real with the largest precision.
constexpr qsizetype kMostOfAUnit = 4500;

class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : mData(reinterpret_cast<const char *>(data))
        , mLeft(size)
    { }

    QByteArray take(std::size_t wanted)
    {
        const std::size_t size = std::min(wanted, mLeft);
        const QByteArray bytes(mData, qsizetype(size));
        mData += size;
        mLeft -= size;
        return bytes;
    }

    QByteArray rest() { return take(mLeft); }

    std::size_t number() { return std::uint8_t(take(1).append('\0').at(0)); }

    template <class Value> Value value()
    {
        std::array<char, sizeof(Value)> bytes{};
        const QByteArray taken = take(bytes.size());
        std::copy(taken.begin(), taken.end(), bytes.begin());
        Value result;
        std::memcpy(&result, bytes.data(), bytes.size());
        return result;
    }

    FormatArgument argument()
    {
        switch (number() % 5) {
        case 1:
            return value<qint64>();
        case 2:
            return value<quint64>();
        case 3:
            return value<double>();
        case 4:
            return QString::fromUtf8(take(number()));
        default:
            return {};
        }
    }

private:
    const char *mData;
    std::size_t mLeft;
};

std::optional<QString> describe(const void *object)
{
    return QString::fromLatin1(static_cast<const char *>(object));
}

/// As a caller of a variadic function would pass them; each argument is a pointer to a text that is
/// zero-terminated in every width, so that it may stand for any type.
FormatArguments passed(const QString *format, ...)
{
    va_list list;
    va_start(list, format);
    const FormatArguments result = fetchArguments(*format, list, &describe);
    va_end(list);
    return result;
}

void readPassed(const QString &format)
{
    // More would be the caller's own mistake; a long double takes two places and a gap.
    if (format.count(u'%') + format.count(u'*') > 6) {
        return;
    }
    static const char32_t text[] = U"text";
    const auto p = static_cast<const void *>(text);
    const FormatArguments arguments =
        passed(&format, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p, p);
    formatted(format, arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    FormatArguments arguments(input.number() % (kMostArguments + 1));
    std::generate(arguments.begin(), arguments.end(), [&input] { return input.argument(); });
    const QString format = QString::fromUtf8(input.rest());
    const QString text = formatted(format, arguments);
    require(text.size() <= kMostOfAUnit * format.size());
    require(text == formatted(format, arguments));
    readPassed(format);
    return 0;
}
