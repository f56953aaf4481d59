// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1String>
#include <QtGlobal>

namespace controls {

/// The text styles that do more than name a set of characters.
inline constexpr qint32 kFreeText = 0;
inline constexpr qint32 kInteger = 2;
inline constexpr qint32 kDecimal = 4;
inline constexpr qint32 kCalendarDate = 5;

/// In a format: the value as it is, whatever the style.
inline constexpr QLatin1String kTheValueItself("%@");

/// Whether `style` lets the UTF-16 unit through. Free text has no set: it lets everything through.
bool styleAccepts(qint32 style, char16_t unit);

} // namespace controls
