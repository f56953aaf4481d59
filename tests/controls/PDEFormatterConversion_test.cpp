// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEFormatter.h"

#include <QTimeZone>

#include <gmock/gmock.h>

namespace {

std::string shown(const char *format, qint32 style, const QVariant &object)
{
    return PDEFormatter(QString::fromUtf8(format), style)
        .stringForObjectValue(object)
        .toStdString();
}

std::string taken(const char *format, qint32 style, const char *text)
{
    QVariant object;
    std::optional<QString> error;
    const PDEFormatter formatter(QString::fromUtf8(format), style);
    EXPECT_TRUE(formatter.getObjectValue(&object, QString::fromUtf8(text), &error));
    EXPECT_EQ(error, std::nullopt);
    EXPECT_EQ(object.typeId(), QMetaType::QString);
    return object.toString().toStdString();
}

QVariant text(const char *value)
{
    return QString::fromUtf8(value);
}

TEST(PDEFormatterConversion, TheValueItselfIsShownWhateverTheStyle)
{
    EXPECT_EQ(shown("%@", 2, text("07")), "07");
    EXPECT_EQ(shown("%@", 4, text("5.5")), "5.5");
    EXPECT_EQ(shown("%@ %%", 0, text("50")), "50 %");
    EXPECT_EQ(shown("%@", 0, 7), "7");
    EXPECT_EQ(shown("%@", 2, 7.9), "7.9");
    EXPECT_EQ(shown("%@", 0, 1.5), "1.5");
    EXPECT_EQ(shown("%@", 0, 2.0), "2");
    EXPECT_EQ(shown("%@", 0, true), "1");
    EXPECT_EQ(shown("%@", 0, QVariant()), "(null)");
}

TEST(PDEFormatterConversion, NumberStylesHandAnIntegerToTheFormat)
{
    EXPECT_EQ(shown("%d mm", 2, 7.9), "7 mm");
    EXPECT_EQ(shown("%d mm", 2, -7.9), "-7 mm");
    EXPECT_EQ(shown("%03d", 4, text("5.5")), "005");
    EXPECT_EQ(shown("%d", 2, text("12abc")), "12");
    EXPECT_EQ(shown("%d", 2, QVariant()), "0");
    EXPECT_EQ(shown("%d", 2, true), "1");
    EXPECT_EQ(shown("fixed", 2, 9), "fixed");
    EXPECT_EQ(shown("%d", 2, text("99999999999")), "2147483647");
    EXPECT_EQ(shown("%d", 2, -1e30), "-2147483648");
    EXPECT_EQ(shown("%d", 4, qlonglong(1) << 40), "2147483647");
}

TEST(PDEFormatterConversion, TheTestForTheValueItselfIsAPlainSearch)
{
    // Two per cent signs are one, so the value is not shown, yet the format counts as direct.
    EXPECT_EQ(shown("100%%@", 2, 5), "100%@");
    // Another place for the argument is no plain "%@".
    EXPECT_EQ(shown("%1$@", 2, text("5.5")), "5");
}

TEST(PDEFormatterConversion, OtherStylesConvertTheObjectToWhatTheFormatWants)
{
    EXPECT_EQ(shown("%d", 0, text("12abc")), "12");
    EXPECT_EQ(shown("%d", 0, 7.9), "7");
    EXPECT_EQ(shown("%.1f", 0, 1.5), "1.5");
    EXPECT_EQ(shown("%.1f", 0, text("1.5")), "1.5");
    EXPECT_EQ(shown("%s", 0, text("caf\xC3\xA9")), "caf\xC3\xA9");
}

TEST(PDEFormatterConversion, NoFormatCanDoHarm)
{
    EXPECT_EQ(shown("%n%@", 0, text("x")), "(null)");
    EXPECT_EQ(shown("%s %s", 2, 5), "5 (null)");
    EXPECT_EQ(shown("%d %d %d", 2, 5), "5 0 0");
    EXPECT_EQ(shown("%@ %@", 0, text("x")), "x (null)");
    EXPECT_EQ(shown("%", 0, text("x")), "");
    EXPECT_LE(shown("%2000000000d", 2, 5).size(), 5000U);
    EXPECT_LE(shown("%.2000000000f", 0, 5.0).size(), 5000U);
    std::string many;
    for (int i = 0; i < 10000; ++i) {
        many += "%s";
    }
    EXPECT_EQ(shown(many.c_str(), 0, text("x")).substr(0, 7), "x(null)");
}

TEST(PDEFormatterConversion, TheObjectOfATextIsAText)
{
    EXPECT_EQ(taken("%@", 0, "abc"), "abc");
    EXPECT_EQ(taken("%@", 2, "07"), "07");
    EXPECT_EQ(taken("%d mm", 2, "7.9"), "7 mm");
    EXPECT_EQ(taken("%03d", 4, "5.5"), "005");
    EXPECT_EQ(taken("<%@>", 6, ""), "<>");
}

TEST(PDEFormatterConversion, WithoutAPlaceOrATextNothingIsSet)
{
    const PDEFormatter formatter;
    QVariant object = 5;
    EXPECT_TRUE(formatter.getObjectValue(nullptr, QStringLiteral("x"), nullptr));
    EXPECT_TRUE(formatter.getObjectValue(&object, std::nullopt, nullptr));
    EXPECT_EQ(object, QVariant(5));
}

TEST(PDEFormatterConversion, TheDateStyleShowsTheDateInsteadOfTheValue)
{
    const QDateTime date(QDate(2009, 3, 5), QTime(7, 8, 9), Qt::OffsetFromUTC, 9 * 3600);
    PDEFormatter formatter(date, std::nullopt);
    EXPECT_EQ(formatter.stringForObjectValue(5), QStringLiteral("2009-03-05 07:08:09 +0900"));
    formatter.setFormatString(QStringLiteral("%e.%1m. %@"));
    EXPECT_EQ(formatter.stringForObjectValue(QVariant()), QStringLiteral("5.3. %@"));
    QVariant object;
    EXPECT_TRUE(formatter.getObjectValue(&object, QStringLiteral("typed"), nullptr));
    EXPECT_EQ(object, QVariant(QStringLiteral("5.3. %@")));
    formatter.setFormatString(QStringLiteral("%A"));
    formatter.setCalendarLocale(QVariantMap{
        {QStringLiteral("NSWeekDayNameArray"), QStringList(7, QStringLiteral("jour"))}});
    EXPECT_EQ(formatter.stringForObjectValue(5), QStringLiteral("jour"));
}

TEST(PDEFormatterConversion, ADateCountsInTheDateStyleOnlyAndTheStyleWithADateOnly)
{
    const QDateTime date(QDate(2009, 3, 5), QTime(7, 8, 9), Qt::UTC);
    PDEFormatter formatter(date, std::nullopt);
    formatter.setCalendarDate(std::nullopt);
    EXPECT_EQ(formatter.stringForObjectValue(5), QString(QLatin1String("")));
    formatter.setFormatString(QStringLiteral("%@"));
    EXPECT_EQ(formatter.stringForObjectValue(5), QStringLiteral("5"));
    formatter.setCalendarDate(date);
    formatter.setTextStyle(0);
    EXPECT_EQ(formatter.stringForObjectValue(5), QStringLiteral("5"));
}

} // namespace
