// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/FormatDirective.h"

#include <QString>

#include <optional>

namespace platform {

/// The digits of a number in two halves, so that zeros can be put between them.
struct NumberText
{
    /// Sign and "0x".
    QString prefix;
    QString digits;
    /// Whether the flag 0 applies to it.
    bool takesZeros = true;
};

/// `value` is the magnitude.
NumberText integerText(quint64 value, bool negative, const FormatDirective &directive,
                       std::optional<int> precision);
NumberText realText(double value, const FormatDirective &directive, std::optional<int> precision);

/// The real number that `text` begins with: white space, an optional sign, ASCII digits with a full
/// stop and an exponent; whatever follows is ignored. No digits are 0.
double realValue(QStringView text);

} // namespace platform
