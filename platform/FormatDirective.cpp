// SPDX-License-Identifier: Apache-2.0
#include "platform/FormatDirective.h"

#include <algorithm>
#include <limits>

namespace platform {
namespace {

bool isOneOf(char16_t unit, QStringView units)
{
    return units.contains(QChar(unit));
}

class FormatParser
{
public:
    explicit FormatParser(QStringView format)
        : mFormat(format)
    { }

    std::vector<FormatPiece> pieces();

private:
    bool atEnd() const { return mAt == mFormat.size(); }
    char16_t current() const { return atEnd() ? u'\0' : mFormat.at(mAt).unicode(); }
    bool skip(char16_t unit);
    std::optional<int> number();
    std::optional<int> position();
    int nextArgument() { return mNextArgument++; }

    void literal();
    void conversion();
    void flags(FormatDirective *directive);
    FormatNumber widthOrPrecision();
    FormatLength length();

    QStringView mFormat;
    qsizetype mAt = 0;
    int mNextArgument = 0;
    std::vector<FormatPiece> mPieces;
};

bool FormatParser::skip(char16_t unit)
{
    if (atEnd() || current() != unit) {
        return false;
    }
    ++mAt;
    return true;
}

/// Numbers too large for an int are cut to the largest.
std::optional<int> FormatParser::number()
{
    std::optional<int> result;
    for (; isOneOf(current(), u"0123456789"); ++mAt) {
        const qint64 value = result.value_or(0) * qint64(10) + (current() - u'0');
        result = int(std::min<qint64>(value, std::numeric_limits<int>::max()));
    }
    return result;
}

/// The "n$" of an argument, as its place counted from 0.
std::optional<int> FormatParser::position()
{
    const qsizetype start = mAt;
    const std::optional<int> result = number();
    if (result && skip(u'$')) {
        return *result - 1;
    }
    mAt = start;
    return std::nullopt;
}

void FormatParser::flags(FormatDirective *directive)
{
    for (; isOneOf(current(), u"-+ 0#'"); ++mAt) {
        directive->leftAligned |= current() == u'-';
        directive->plusSign |= current() == u'+';
        directive->blankSign |= current() == u' ';
        directive->zeroPadded |= current() == u'0';
        directive->alternateForm |= current() == u'#';
    }
}

FormatNumber FormatParser::widthOrPrecision()
{
    if (!skip(u'*')) {
        return {number(), std::nullopt};
    }
    const std::optional<int> given = position();
    return {std::nullopt, given ? *given : nextArgument()};
}

FormatLength FormatParser::length()
{
    if (skip(u'h')) {
        return skip(u'h') ? FormatLength::Char : FormatLength::Short;
    }
    if (skip(u'l')) {
        return skip(u'l') ? FormatLength::LongLong : FormatLength::Long;
    }
    if (skip(u'q')) {
        return FormatLength::LongLong;
    }
    if (skip(u'j')) {
        return FormatLength::IntMax;
    }
    if (skip(u'z')) {
        return FormatLength::Size;
    }
    if (skip(u't')) {
        return FormatLength::Difference;
    }
    return skip(u'L') ? FormatLength::LongDouble : FormatLength::Int;
}

void FormatParser::literal()
{
    const qsizetype start = mAt;
    const qsizetype sign = mFormat.indexOf(u'%', start);
    mAt = sign < 0 ? mFormat.size() : sign;
    if (mAt > start) {
        mPieces.emplace_back(mFormat.sliced(start, mAt - start));
    }
}

void FormatParser::conversion()
{
    FormatDirective directive;
    const std::optional<int> given = position();
    flags(&directive);
    directive.width = widthOrPrecision();
    if (skip(u'.')) {
        directive.precision = widthOrPrecision();
        if (!directive.precision.isGiven()) {
            directive.precision.value = 0;
        }
    }
    directive.length = length();
    if (atEnd()) {
        return;
    }
    directive.letter = current();
    ++mAt;
    if (!isOneOf(directive.letter, u"@dDiuUxXoOcCsSpnfFeEgGaA")) {
        // Also "%%". A conversion that nobody knows takes no argument.
        mPieces.emplace_back(mFormat.sliced(mAt - 1, 1));
        return;
    }
    directive.argument = given ? *given : nextArgument();
    mPieces.emplace_back(directive);
}

std::vector<FormatPiece> FormatParser::pieces()
{
    while (!atEnd()) {
        literal();
        if (skip(u'%')) {
            conversion();
        }
    }
    return std::move(mPieces);
}

} // namespace

std::vector<FormatPiece> parseFormat(QStringView format)
{
    return FormatParser(format).pieces();
}

bool isSignedInteger(char16_t letter)
{
    return isOneOf(letter, u"dDi");
}

bool isUnsignedInteger(char16_t letter)
{
    return isOneOf(letter, u"uUxXoO");
}

bool isReal(char16_t letter)
{
    return isOneOf(letter, u"fFeEgGaA");
}

} // namespace platform
