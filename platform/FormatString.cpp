// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatString.h"

#include "platform/FormatNumbers.h"
#include "platform/IntegerValue.h"
#include "platform/TextEncodings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace platform {
namespace {

/// The most that a width or a precision can ask for: a slip in a format must not cost the memory of
/// the desktop. It is what C promises at least.
constexpr int kLargestNumber = 4095;

template <class... Cases> struct Overloaded : Cases...
{
    using Cases::operator()...;
};
template <class... Cases> Overloaded(Cases...) -> Overloaded<Cases...>;

struct Integer
{
    quint64 bits = 0;
    bool isNegative = false;
};

/// Towards zero; what is out of range becomes the nearest limit, what is no number 0.
qint64 truncated(double value)
{
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= limit) {
        return std::numeric_limits<qint64>::max();
    }
    return value <= -limit ? std::numeric_limits<qint64>::min() : qint64(value);
}

quint64 integerOf(const FormatArgument &argument)
{
    return std::visit(Overloaded{[](std::monostate) { return quint64(0); },
                                 [](qint64 value) { return quint64(value); },
                                 [](quint64 value) { return value; },
                                 [](double value) { return quint64(truncated(value)); },
                                 [](const QString &text) { return quint64(integerValue(text)); }},
                      argument);
}

double realOf(const FormatArgument &argument)
{
    return std::visit(
        Overloaded{[](std::monostate) { return 0.0; }, [](qint64 value) { return double(value); },
                   [](quint64 value) { return double(value); }, [](double value) { return value; },
                   [](const QString &text) { return realValue(text); }},
        argument);
}

/// A number's text has 16 digits at most, so that 0.1 + 0.2 is 0.3.
QString shortText(double value)
{
    std::array<char, 32> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::general, 16);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

QString textOf(const FormatArgument &argument)
{
    return std::visit(Overloaded{[](std::monostate) { return QStringLiteral("(null)"); },
                                 [](qint64 value) { return QString::number(value); },
                                 [](quint64 value) { return QString::number(value); },
                                 [](double value) { return shortText(value); },
                                 [](const QString &text) { return text; }},
                      argument);
}

QString characterOfNumber(quint64 number, const FormatDirective &directive)
{
    if (directive.letter == u'C') {
        return QString(QChar(char16_t(number)));
    }
    if (directive.length == FormatLength::Long) {
        const auto codePoint = char32_t(number);
        return codePoint > 0x10FFFF ? QString(QChar(QChar::ReplacementCharacter))
                                    : QString::fromUcs4(&codePoint, 1);
    }
    const char byte = char(number);
    if (byte == '\0') {
        return QString(QChar(u'\0'));
    }
    const char text[] = {byte, '\0'};
    return decodeSystem(text).value_or(QString(QChar(QChar::ReplacementCharacter)));
}

QString characterOf(const FormatArgument &argument, const FormatDirective &directive)
{
    if (std::holds_alternative<std::monostate>(argument)) {
        return {};
    }
    if (const auto *text = std::get_if<QString>(&argument)) {
        const bool pair =
            text->size() > 1 && text->at(0).isHighSurrogate() && text->at(1).isLowSurrogate();
        return text->left(pair ? 2 : 1);
    }
    return characterOfNumber(integerOf(argument), directive);
}

int bitsOf(const FormatDirective &directive)
{
    if (directive.letter == u'p') {
        return CHAR_BIT * sizeof(void *);
    }
    switch (directive.length) {
    case FormatLength::Char:
        return CHAR_BIT;
    case FormatLength::Short:
        return CHAR_BIT * sizeof(short);
    case FormatLength::Long:
        return CHAR_BIT * sizeof(long);
    case FormatLength::LongLong:
        return CHAR_BIT * sizeof(long long);
    case FormatLength::IntMax:
        return CHAR_BIT * sizeof(std::intmax_t);
    case FormatLength::Size:
        return CHAR_BIT * sizeof(std::size_t);
    case FormatLength::Difference:
        return CHAR_BIT * sizeof(std::ptrdiff_t);
    case FormatLength::Int:
    case FormatLength::LongDouble:
        break;
    }
    return CHAR_BIT * sizeof(int);
}

/// The low bits of a number, as many as the conversion's type has, as magnitude and sign.
Integer narrowed(quint64 value, const FormatDirective &directive)
{
    const int spare = 64 - bitsOf(directive);
    if (!isSignedInteger(directive.letter)) {
        return {(value << spare) >> spare, false};
    }
    const qint64 number = qint64(value << spare) >> spare;
    return number < 0 ? Integer{0 - quint64(number), true} : Integer{quint64(number), false};
}

class Formatting
{
public:
    explicit Formatting(const FormatArguments &arguments)
        : mArguments(arguments)
    { }

    QString text(const FormatDirective &directive) const;

private:
    const FormatArgument &argument(int place) const;
    std::optional<qint64> value(const FormatNumber &number) const;
    QString body(const FormatDirective &directive, int zerosTo) const;
    std::optional<int> precision(const FormatDirective &directive) const;

    const FormatArguments &mArguments;
};

const FormatArgument &Formatting::argument(int place) const
{
    static const FormatArgument missing;
    const bool there = place >= 0 && size_t(place) < mArguments.size();
    return there ? mArguments[size_t(place)] : missing;
}

std::optional<qint64> Formatting::value(const FormatNumber &number) const
{
    if (number.argument) {
        return qint32(integerOf(argument(*number.argument)));
    }
    return number.value;
}

/// A negative one counts as none.
std::optional<int> Formatting::precision(const FormatDirective &directive) const
{
    const std::optional<qint64> given = value(directive.precision);
    return given && *given >= 0 ? std::optional(int(std::min<qint64>(*given, kLargestNumber)))
                                : std::nullopt;
}

QString Formatting::body(const FormatDirective &directive, int zerosTo) const
{
    const FormatArgument &given = argument(directive.argument);
    const char16_t letter = directive.letter;
    if (letter == u'n') {
        return {};
    }
    if (letter == u'c' || letter == u'C') {
        return characterOf(given, directive);
    }
    const std::optional<int> digits = precision(directive);
    const bool real = isReal(letter);
    if (!real && !isSignedInteger(letter) && !isUnsignedInteger(letter) && letter != u'p') {
        return textOf(given).left(digits.value_or(-1));
    }
    const Integer integer = narrowed(integerOf(given), directive);
    const NumberText number = real
        ? realText(realOf(given), directive, digits)
        : integerText(integer.bits, integer.isNegative, directive, digits);
    const qsizetype zeros = number.takesZeros ? zerosTo - number.prefix.size() : 0;
    return number.prefix + number.digits.rightJustified(zeros, u'0');
}

QString Formatting::text(const FormatDirective &directive) const
{
    const qint64 given = value(directive.width).value_or(0);
    const int width = int(std::min<qint64>(std::abs(given), kLargestNumber));
    const bool left = directive.leftAligned || given < 0;
    const QString text = body(directive, directive.zeroPadded && !left ? width : 0);
    if (directive.letter == u'n') {
        return text;
    }
    return left ? text.leftJustified(width) : text.rightJustified(width);
}

} // namespace

QString formatted(const QString &format, const FormatArguments &arguments)
{
    const Formatting formatting(arguments);
    QString result;
    for (const FormatPiece &piece : parseFormat(format)) {
        if (const auto *literal = std::get_if<QStringView>(&piece)) {
            result += *literal;
        } else {
            result += formatting.text(std::get<FormatDirective>(piece));
        }
    }
    return result;
}

} // namespace platform
