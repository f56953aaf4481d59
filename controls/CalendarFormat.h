// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace controls {

/// Keys of a calendar locale. Weekdays begin with Sunday; names are lists of texts.
inline constexpr QLatin1String kWeekDayNames("NSWeekDayNameArray");
inline constexpr QLatin1String kShortWeekDayNames("NSShortWeekDayNameArray");
inline constexpr QLatin1String kMonthNames("NSMonthNameArray");
inline constexpr QLatin1String kShortMonthNames("NSShortMonthNameArray");
/// Before and after noon.
inline constexpr QLatin1String kAmPmNames("NSAMPMDesignation");
/// Calendar formats.
inline constexpr QLatin1String kTimeFormat("NSTimeFormatString");
inline constexpr QLatin1String kDateFormat("NSDateFormatString");
inline constexpr QLatin1String kTimeDateFormat("NSTimeDateFormatString");

/// Describes `date` in its own time zone.
///
/// Conversions: %a %A weekday, %b %B month (short, full); %d %e day, %e without leading zero; %m
/// month; %y %Y year; %j day of the year; %w weekday, Sunday 0; %H %I hour of 24 and of 12; %p
/// before or after noon; %M minute; %S second; %F milliseconds; %Z %z zone as name and as offset;
/// %X %x %c time, date, both as the locale has them; %%. A digit after the per cent sign is the
/// number of places that a number is filled up to with zeros. Anything else stays as it stands.
///
/// No format is "%Y-%m-%d %H:%M:%S %z". What the locale lacks is English; a list that is too short
/// gives the number.
QString descriptionWithCalendarFormat(const QDateTime &date, const std::optional<QString> &format,
                                      const std::optional<QVariantMap> &locale);

} // namespace controls
