// SPDX-License-Identifier: Apache-2.0
#include "controls/CalendarFormat.h"

#include <QTimeZone>

#include <gmock/gmock.h>

using controls::descriptionWithCalendarFormat;

namespace {

constexpr int kHour = 3600;

/// Thursday.
QDateTime sample(QTime time = QTime(7, 8, 9, 45))
{
    return QDateTime(QDate(2009, 3, 5), time, Qt::OffsetFromUTC, 9 * kHour);
}

std::string described(const char *format, const std::optional<QVariantMap> &locale = {},
                      const QDateTime &date = sample())
{
    return descriptionWithCalendarFormat(date, QString::fromUtf8(format), locale).toStdString();
}

QVariantMap with(const char *key, const QVariant &value)
{
    return {{QLatin1String(key), value}};
}

TEST(CalendarFormat, NoFormatIsDateTimeAndOffset)
{
    EXPECT_EQ(descriptionWithCalendarFormat(sample(), std::nullopt, std::nullopt),
              QStringLiteral("2009-03-05 07:08:09 +0900"));
}

TEST(CalendarFormat, DaysMonthsAndYearsComeShortAndLong)
{
    EXPECT_EQ(described("%e.%1m.%y"), "5.3.09");
    EXPECT_EQ(described("%d/%m/%Y"), "05/03/2009");
    EXPECT_EQ(described("%a %d %b"), "Thu 05 Mar");
    EXPECT_EQ(described("%A, %B"), "Thursday, March");
    EXPECT_EQ(described("%j %w"), "064 4");
    EXPECT_EQ(described("%w %a", {}, sample().addDays(3)), "0 Sun");
}

TEST(CalendarFormat, TimesCountInTwoWays)
{
    EXPECT_EQ(described("%I:%M %p"), "07:08 AM");
    EXPECT_EQ(described("%H:%M:%S,%F"), "07:08:09,045");
    EXPECT_EQ(described("%I %p", {}, sample(QTime(0, 0))), "12 AM");
    EXPECT_EQ(described("%I %p", {}, sample(QTime(12, 0))), "12 PM");
    EXPECT_EQ(described("%H %I %p", {}, sample(QTime(13, 0))), "13 01 PM");
    EXPECT_EQ(described("%F"), "045");
}

TEST(CalendarFormat, ADigitSetsThePlacesOfANumber)
{
    EXPECT_EQ(described("%1d %3d %1H %0M %2e %4w"), "5 005 7 8 05 0004");
    EXPECT_EQ(described("%1y %6Y %1F %1j"), "9 002009 45 64");
    EXPECT_EQ(described("%3a %2B"), "Thu March");
}

TEST(CalendarFormat, TheZoneIsAnOffsetAndAName)
{
    EXPECT_EQ(described("%z"), "+0900");
    QDateTime west = sample();
    west.setOffsetFromUtc(-(3 * kHour + kHour / 2));
    EXPECT_EQ(described("%z", {}, west), "-0330");
    const QDateTime berlin(QDate(2009, 3, 5), QTime(7, 8), QTimeZone("Europe/Berlin"));
    EXPECT_EQ(described("%Z %z", {}, berlin), "CET +0100");
}

TEST(CalendarFormat, WhatIsNoConversionStaysAsItStands)
{
    EXPECT_EQ(described("%q"), "%q");
    EXPECT_EQ(described("%3q|%12m|%-d"), "%3q|%12m|%-d");
    EXPECT_EQ(described("100%%"), "100%");
    EXPECT_EQ(described("100%"), "100%");
    EXPECT_EQ(described("100%3"), "100%3");
    EXPECT_EQ(described("%\xC3\xA9 %s %n %@"), "%\xC3\xA9 %s %n %@");
    EXPECT_EQ(described(""), "");
}

TEST(CalendarFormat, TimeAndDateOfTheLocaleAreEnglishWithoutOne)
{
    EXPECT_EQ(described("%X"), "07:08:09");
    EXPECT_EQ(described("%x"), "Thursday, March 5, 2009");
    EXPECT_EQ(described("%c"), "07:08:09 Thursday, March 5, 2009");
}

TEST(CalendarFormat, NamesComeFromTheLocale)
{
    const QStringList french{QStringLiteral("dimanche"), QStringLiteral("lundi"),
                             QStringLiteral("mardi"),    QStringLiteral("mercredi"),
                             QStringLiteral("jeudi"),    QStringLiteral("vendredi"),
                             QStringLiteral("samedi")};
    EXPECT_EQ(described("%A", with("NSWeekDayNameArray", french)), "jeudi");
    EXPECT_EQ(described("%a", with("NSWeekDayNameArray", french)), "Thu");
    EXPECT_EQ(described("%a", with("NSShortWeekDayNameArray", french)), "jeudi");
    const QVariantList months{QStringLiteral("janvier"), QStringLiteral("f\u00E9vrier"),
                              QStringLiteral("mars")};
    EXPECT_EQ(described("%B", with("NSMonthNameArray", months)), "mars");
    EXPECT_EQ(described("%b", with("NSShortMonthNameArray", months)), "mars");
    EXPECT_EQ(described("%p", with("NSAMPMDesignation", QStringList{QStringLiteral("vorm.")})),
              "vorm.");
}

TEST(CalendarFormat, FormatsComeFromTheLocale)
{
    EXPECT_EQ(described("%X|%x", with("NSTimeFormatString", QStringLiteral("%H.%M"))),
              "07.08|Thursday, March 5, 2009");
    EXPECT_EQ(described("%x", with("NSDateFormatString", QStringLiteral("%e.%1m."))), "5.3.");
    EXPECT_EQ(described("%c", with("NSTimeDateFormatString", QStringLiteral("%x!"))),
              "Thursday, March 5, 2009!");
}

TEST(CalendarFormat, AListThatIsTooShortGivesTheNumber)
{
    const QStringList one{QStringLiteral("one")};
    EXPECT_EQ(described("%A", with("NSWeekDayNameArray", one)), "4");
    EXPECT_EQ(described("%B", with("NSMonthNameArray", one)), "3");
    EXPECT_EQ(described("%p", with("NSAMPMDesignation", QStringList())), "0");
    EXPECT_EQ(described("%A", with("NSWeekDayNameArray", 7)), "4");
}

TEST(CalendarFormat, AFormatThatNamesItselfEnds)
{
    EXPECT_EQ(described("%c", with("NSTimeDateFormatString", QStringLiteral("a%c"))), "a%c");
    EXPECT_EQ(described("%x", with("NSDateFormatString", QStringLiteral("<%x>"))), "<%x>");
    QVariantMap each{{QStringLiteral("NSDateFormatString"), QStringLiteral("%X")},
                     {QStringLiteral("NSTimeFormatString"), QStringLiteral("%x")}};
    EXPECT_EQ(described("%c", each), "%x %X");
}

TEST(CalendarFormat, ADateThatIsNoneDoesNoHarm)
{
    EXPECT_EQ(described("%A %B %q", {}, QDateTime()), "0 0 %q");
}

} // namespace
