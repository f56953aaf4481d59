// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>

#include <optional>
#include <variant>
#include <vector>

namespace platform {

/// The C type that a length stands for. Int is also the type without a length.
enum class FormatLength
{
    Char,
    Short,
    Int,
    Long,
    LongLong,
    IntMax,
    Size,
    Difference,
    LongDouble,
};

/// A width or a precision: given in the format, taken from an argument, or neither.
struct FormatNumber
{
    std::optional<int> value;
    /// The argument's place, counted from 0.
    std::optional<int> argument;

    bool isGiven() const { return value || argument; }
};

/// One conversion of a format.
struct FormatDirective
{
    bool leftAligned = false;
    bool plusSign = false;
    bool blankSign = false;
    bool zeroPadded = false;
    bool alternateForm = false;
    FormatNumber width;
    FormatNumber precision;
    FormatLength length = FormatLength::Int;
    /// One of "@dDiuUxXoOcCsSpnfFeEgGaA".
    char16_t letter = 0;
    /// The argument's place, counted from 0; -1 for %0$, which is no argument's place.
    int argument = 0;
};

/// What a format is made of: plain text, which is part of the format itself, and conversions.
using FormatPiece = std::variant<QStringView, FormatDirective>;

std::vector<FormatPiece> parseFormat(QStringView format);

bool isSignedInteger(char16_t letter);
bool isUnsignedInteger(char16_t letter);
bool isReal(char16_t letter);

} // namespace platform
