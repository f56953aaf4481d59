// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatDirective.h"
#include "platform/FormatString.h"
#include "platform/TextEncodings.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <limits>
#include <map>
#include <type_traits>

namespace platform {
namespace {

using Pointer = const void *;

/// An argument as it was passed: what a pointer points at is not looked at yet.
using Passed = std::variant<qint64, quint64, double, Pointer>;

/// The arguments of a variadic call, one after the other.
class PassedArguments
{
public:
    explicit PassedArguments(va_list arguments) { va_copy(mArguments, arguments); }
    ~PassedArguments() { va_end(mArguments); }
    PassedArguments(const PassedArguments &) = delete;
    PassedArguments &operator=(const PassedArguments &) = delete;

    Passed next(const FormatDirective &directive);

private:
    qint64 signedInteger(FormatLength length);
    quint64 unsignedInteger(FormatLength length);

    va_list mArguments;
};

qint64 PassedArguments::signedInteger(FormatLength length)
{
    switch (length) {
    case FormatLength::Long:
        return va_arg(mArguments, long);
    case FormatLength::LongLong:
        return va_arg(mArguments, long long);
    case FormatLength::IntMax:
        return va_arg(mArguments, std::intmax_t);
    case FormatLength::Size:
    case FormatLength::Difference:
        return va_arg(mArguments, std::ptrdiff_t);
    default:
        return va_arg(mArguments, int);
    }
}

quint64 PassedArguments::unsignedInteger(FormatLength length)
{
    switch (length) {
    case FormatLength::Long:
        return va_arg(mArguments, unsigned long);
    case FormatLength::LongLong:
        return va_arg(mArguments, unsigned long long);
    case FormatLength::IntMax:
        return va_arg(mArguments, std::uintmax_t);
    case FormatLength::Size:
    case FormatLength::Difference:
        return va_arg(mArguments, std::size_t);
    default:
        return va_arg(mArguments, unsigned int);
    }
}

Passed PassedArguments::next(const FormatDirective &directive)
{
    if (isSignedInteger(directive.letter)) {
        return signedInteger(directive.length);
    }
    if (isUnsignedInteger(directive.letter)) {
        return unsignedInteger(directive.length);
    }
    if (isReal(directive.letter)) {
        return directive.length == FormatLength::LongDouble
            ? double(va_arg(mArguments, long double))
            : va_arg(mArguments, double);
    }
    switch (directive.letter) {
    case u'c':
        return directive.length == FormatLength::Long ? qint64(va_arg(mArguments, wint_t))
                                                      : qint64(va_arg(mArguments, int));
    case u'C':
        return qint64(va_arg(mArguments, int));
    default:
        return Pointer(va_arg(mArguments, void *));
    }
}

QString decoded(const char *text, size_t limit)
{
    const QByteArray bytes(text, qsizetype(strnlen(text, limit)));
    // A line is not lost for one bad byte.
    const std::optional<QString> strict = decodeSystem(bytes.constData());
    return strict ? *strict : QString::fromUtf8(bytes);
}

QString decoded(const wchar_t *text, size_t limit)
{
    return QString::fromWCharArray(text, qsizetype(wcsnlen(text, limit)));
}

QString decoded(const char16_t *text, size_t limit)
{
    size_t size = 0;
    while (size < limit && text[size] != u'\0') {
        ++size;
    }
    return QString::fromUtf16(text, qsizetype(size));
}

class Fetcher
{
public:
    Fetcher(const QString &format, DescribeObject describe);

    FormatArguments arguments(va_list list);

private:
    void name(const FormatDirective &directive);
    void pass(va_list list);
    size_t limit(const FormatDirective &directive) const;
    FormatArgument fromPointer(Pointer pointer, const FormatDirective &directive) const;

    DescribeObject mDescribe;
    std::vector<FormatPiece> mPieces;
    /// The conversion that gives an argument its type.
    std::map<int, FormatDirective> mNamings;
    std::vector<Passed> mPassed;
};

Fetcher::Fetcher(const QString &format, DescribeObject describe)
    : mDescribe(describe)
    , mPieces(parseFormat(format))
{
    for (const FormatPiece &piece : mPieces) {
        if (const auto *directive = std::get_if<FormatDirective>(&piece)) {
            name(*directive);
        }
    }
}

void Fetcher::name(const FormatDirective &directive)
{
    FormatDirective integer;
    integer.letter = u'd';
    for (const FormatNumber &number : {directive.width, directive.precision}) {
        if (number.argument) {
            mNamings.try_emplace(*number.argument, integer);
        }
    }
    mNamings.try_emplace(directive.argument, directive);
}

/// Up to the first argument that the format does not name: without its type, the place of those
/// behind it is unknown.
void Fetcher::pass(va_list list)
{
    PassedArguments passed(list);
    for (auto naming = mNamings.find(0); naming != mNamings.end(); ++naming) {
        if (size_t(naming->first) != mPassed.size()) {
            return;
        }
        mPassed.push_back(passed.next(naming->second));
    }
}

/// The units that may be read of a text: beyond its precision there may be no memory.
size_t Fetcher::limit(const FormatDirective &directive) const
{
    constexpr size_t none = std::numeric_limits<size_t>::max();
    std::optional<int> precision = directive.precision.value;
    if (const auto place = directive.precision.argument) {
        const bool there = *place >= 0 && size_t(*place) < mPassed.size();
        const qint64 *given = there ? std::get_if<qint64>(&mPassed[size_t(*place)]) : nullptr;
        precision = given ? int(*given) : 0;
    }
    return precision && *precision >= 0 ? size_t(*precision) : none;
}

FormatArgument Fetcher::fromPointer(Pointer pointer, const FormatDirective &directive) const
{
    if (directive.letter == u'p') {
        return quint64(reinterpret_cast<std::uintptr_t>(pointer));
    }
    if (!pointer || directive.letter == u'n') {
        return std::monostate();
    }
    if (directive.letter == u'@') {
        const std::optional<QString> description = mDescribe(pointer);
        return description ? FormatArgument(*description) : FormatArgument();
    }
    if (directive.letter == u'S') {
        return decoded(static_cast<const char16_t *>(pointer), limit(directive));
    }
    return directive.length == FormatLength::Long
        ? decoded(static_cast<const wchar_t *>(pointer), limit(directive))
        : decoded(static_cast<const char *>(pointer), limit(directive));
}

FormatArguments Fetcher::arguments(va_list list)
{
    pass(list);
    FormatArguments result;
    for (size_t place = 0; place < mPassed.size(); ++place) {
        const FormatDirective &directive = mNamings.at(int(place));
        result.push_back(std::visit(
            [&](auto value) -> FormatArgument {
                if constexpr (std::is_same_v<decltype(value), Pointer>) {
                    return fromPointer(value, directive);
                } else {
                    return value;
                }
            },
            mPassed[place]));
    }
    return result;
}

} // namespace

FormatArguments fetchArguments(const QString &format, va_list arguments, DescribeObject describe)
{
    return Fetcher(format, describe).arguments(arguments);
}

} // namespace platform
