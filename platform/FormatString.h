// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>

#include <cstdarg>
#include <optional>
#include <variant>
#include <vector>

// Texts made from a format and arguments: "%d of %@". Any thread. No format and no argument makes
// these fail; the locale has no part in them.
//
// A conversion is %[n$][flags][width][.precision][length]letter:
//   flags      - + blank 0 #, and ', which is read over: there is no grouping
//   width and precision  a number, * (the next argument) or *n$; counted in UTF-16 units, and cut
//              to 4095
//   length     hh h l ll q j z t, and L for long double
//   letters    @ an object's description; d D i u U x X o O integers, of 32 bits without a length;
//              f F e E g G a A reals; c a byte of the system encoding, lc a code point, C a UTF-16
//              unit; s S texts; p an address; n nothing at all; % a per-cent sign
// Any other character stands for itself, without the per-cent sign; a format that ends within a
// conversion ends before it.

namespace platform {

/// One value for a conversion; std::monostate is a missing object or text.
///
/// A value of another type than the conversion's is converted: a text counts as the number that it
/// begins with, and a number where a text is wanted as its digits. A missing value is 0 as a
/// number,
/// "(null)" as an object or text, and nothing as a character.
using FormatArgument = std::variant<std::monostate, qint64, quint64, double, QString>;
using FormatArguments = std::vector<FormatArgument>;

/// `format` with its conversions replaced by the arguments. An argument that the format names but
/// that is not there counts as missing; one too many is left out.
PLATFORM_EXPORT QString formatted(const QString &format, const FormatArguments &arguments);

/// The description of an object that was given for %@ and is not null, or nothing.
using DescribeObject = std::optional<QString> (*)(const void *object);

/// The arguments that `format` names, read from `arguments` with the types that it gives them: %@
/// takes a pointer for `describe`, %s a text in the system encoding (bytes that do not belong there
/// become U+FFFD), %ls wchar_t, %S UTF-16; %n takes a pointer, which is not written to. A text with
/// a precision need not be terminated. An argument named twice has the type of its first naming.
/// Arguments behind one that the format never names cannot be found and are left out.
PLATFORM_EXPORT FormatArguments fetchArguments(const QString &format, va_list arguments,
                                               DescribeObject describe);

} // namespace platform
