// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatNumbers.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace platform {
namespace {

/// A real of the largest precision, with its digits in front of the point.
using RealBuffer = std::array<char, 4500>;

bool isUpperCase(char16_t letter)
{
    return QChar(letter).isUpper();
}

char16_t lowerCase(char16_t letter)
{
    return QChar(letter).toLower().unicode();
}

QString signText(bool negative, const FormatDirective &directive)
{
    if (negative) {
        return QStringLiteral("-");
    }
    if (directive.plusSign) {
        return QStringLiteral("+");
    }
    return directive.blankSign ? QStringLiteral(" ") : QString();
}

int baseOf(char16_t letter)
{
    switch (lowerCase(letter)) {
    case u'x':
    case u'p':
        return 16;
    case u'o':
        return 8;
    default:
        return 10;
    }
}

std::to_chars_result convert(double value, char16_t letter, std::optional<int> precision,
                             RealBuffer *buffer)
{
    char *const first = buffer->data();
    char *const last = first + buffer->size();
    switch (letter) {
    case u'a':
        return precision ? std::to_chars(first, last, value, std::chars_format::hex, *precision)
                         : std::to_chars(first, last, value, std::chars_format::hex);
    case u'e':
        return std::to_chars(first, last, value, std::chars_format::scientific,
                             precision.value_or(6));
    case u'g':
        return std::to_chars(first, last, value, std::chars_format::general, precision.value_or(6));
    default:
        return std::to_chars(first, last, value, std::chars_format::fixed, precision.value_or(6));
    }
}

/// The flag # of reals: a point always stands, and g keeps the zeros that it drops otherwise.
void addPointAndZeros(QString *digits, char16_t letter, std::optional<int> precision)
{
    const QChar exponentSign = letter == u'a' ? u'p' : u'e';
    const qsizetype exponent = digits->indexOf(exponentSign);
    const qsizetype end = exponent < 0 ? digits->size() : exponent;
    const bool hasPoint = digits->contains(u'.');
    QString addition = hasPoint ? QString() : QStringLiteral(".");
    if (letter == u'g') {
        const QStringView mantissa = QStringView(*digits).first(end);
        const auto isSignificant = [](QChar c) { return c != u'0' && c != u'.'; };
        const auto first = std::find_if(mantissa.begin(), mantissa.end(), isSignificant);
        // All of a zero's digits count, the one in front of the point too.
        const auto start = first == mantissa.end() ? mantissa.begin() : first;
        const auto significant =
            std::count_if(start, mantissa.end(), [](QChar c) { return c != u'.'; });
        const qsizetype wanted = std::max(1, precision.value_or(6));
        addition += QString(std::max<qsizetype>(0, wanted - significant), u'0');
    }
    digits->insert(end, addition);
}

/// Of a number that is either too small or too large: whether it is the former.
bool isTiny(std::string_view number)
{
    const std::string_view whole = number.substr(0, number.find('.'));
    return number.find('-') != number.npos || whole.find_first_not_of('0') == whole.npos;
}

} // namespace

NumberText integerText(quint64 value, bool negative, const FormatDirective &directive,
                       std::optional<int> precision)
{
    NumberText text;
    const int base = baseOf(directive.letter);
    text.digits = precision == 0 && value == 0 ? QString() : QString::number(value, base);
    text.digits = text.digits.rightJustified(precision.value_or(0), u'0');
    text.takesZeros = !precision;
    if (isSignedInteger(directive.letter)) {
        text.prefix = signText(negative, directive);
    }
    const bool address = directive.letter == u'p';
    if (base == 16 && (address || (directive.alternateForm && value != 0))) {
        text.prefix = QStringLiteral("0x");
    }
    if (base == 8 && directive.alternateForm && !text.digits.startsWith(u'0')) {
        text.digits.prepend(u'0');
    }
    if (isUpperCase(directive.letter)) {
        text.digits = text.digits.toUpper();
        text.prefix = text.prefix.toUpper();
    }
    return text;
}

NumberText realText(double value, const FormatDirective &directive, std::optional<int> precision)
{
    const char16_t letter = lowerCase(directive.letter);
    NumberText text;
    text.takesZeros = std::isfinite(value);
    text.prefix = signText(std::signbit(value), directive);
    RealBuffer buffer;
    const auto result = convert(std::abs(value), letter, precision, &buffer);
    text.digits = QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
    if (std::isfinite(value)) {
        if (letter == u'a') {
            text.prefix += QStringLiteral("0x");
        }
        if (directive.alternateForm) {
            addPointAndZeros(&text.digits, letter, precision);
        }
    }
    if (isUpperCase(directive.letter)) {
        text.digits = text.digits.toUpper();
        text.prefix = text.prefix.toUpper();
    }
    return text;
}

double realValue(QStringView text)
{
    const QByteArray latin1 = text.trimmed().toLatin1();
    const char *first = latin1.constData();
    const char *const last = first + latin1.size();
    const bool negative = first != last && *first == '-';
    if (first != last && (*first == '-' || *first == '+')) {
        ++first;
    }
    // Not "inf", "nan" or a second sign.
    if (first == last || (*first != '.' && (*first < '0' || *first > '9'))) {
        return 0.0;
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (error == std::errc::result_out_of_range) {
        value =
            isTiny({first, size_t(end - first)}) ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return negative ? -value : value;
}

} // namespace platform
