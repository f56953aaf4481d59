// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEFormatter.h"

#include "controls/FormatterFixture.h"
#include "platform/TextEncodings.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PDEFormatterEdit : public FormatterTest
{ };

TEST(PDEFormatter, StartsAsFreeTextThatShowsTheValueItself)
{
    const PDEFormatter formatter;
    EXPECT_EQ(formatter.formatString(), QStringLiteral("%@"));
    EXPECT_EQ(formatter.textStyle(), 0);
    EXPECT_EQ(formatter.maxLength(), 0);
    EXPECT_FALSE(formatter.isValidityMaxValue());
    EXPECT_FALSE(formatter.isValidityMinValue());
    EXPECT_EQ(formatter.maxValue(), 0);
    EXPECT_EQ(formatter.minValue(), 0);
    EXPECT_EQ(formatter.notificationObject(), platform::NotificationObject());
    EXPECT_FALSE(formatter.isInvalidCharacter(QStringLiteral("A")));
    EXPECT_EQ(formatter.calendarDate(), std::nullopt);
    EXPECT_EQ(formatter.calendarLocale(), std::nullopt);
}

TEST(PDEFormatter, EachInitialiserSetsItsOwnFields)
{
    EXPECT_EQ(PDEFormatter(7).textStyle(), 7);
    EXPECT_EQ(PDEFormatter(7).formatString(), QStringLiteral("%@"));
    const PDEFormatter formatted(QStringLiteral("%d mm"));
    EXPECT_EQ(formatted.formatString(), QStringLiteral("%d mm"));
    EXPECT_EQ(formatted.textStyle(), 0);
    const PDEFormatter both(QString(), -3);
    EXPECT_EQ(both.formatString(), QString(QLatin1String("")));
    EXPECT_EQ(both.textStyle(), -3);
    EXPECT_EQ(PDEFormatter(std::optional<QString>()).formatString(), QStringLiteral("%@"));
    EXPECT_EQ(PDEFormatter(std::optional<QString>(), 2).formatString(), QStringLiteral("%@"));
}

TEST(PDEFormatter, TheDateInitialiserLeavesTheFormatUnset)
{
    const QDateTime date(QDate(2009, 3, 5), QTime(7, 8));
    const QVariantMap locale{{QStringLiteral("NSDateFormatString"), QStringLiteral("%Y")}};
    const PDEFormatter formatter(date, locale);
    EXPECT_EQ(formatter.formatString(), std::nullopt);
    EXPECT_EQ(formatter.textStyle(), 5);
    EXPECT_EQ(formatter.calendarDate(), date);
    EXPECT_EQ(formatter.calendarLocale(), locale);
}

TEST(PDEFormatter, SettersReplaceAndClear)
{
    PDEFormatter formatter;
    formatter.setFormatString(QStringLiteral("x"));
    EXPECT_EQ(formatter.formatString(), QStringLiteral("x"));
    formatter.setFormatString(std::nullopt);
    EXPECT_EQ(formatter.formatString(), QStringLiteral("%@"));
    formatter.setCalendarDate(QDateTime(QDate(2009, 3, 5), QTime()));
    formatter.setCalendarDate(std::nullopt);
    EXPECT_EQ(formatter.calendarDate(), std::nullopt);
    formatter.setCalendarLocale(QVariantMap());
    EXPECT_EQ(formatter.calendarLocale(), QVariantMap());
    formatter.setCalendarLocale(std::nullopt);
    EXPECT_EQ(formatter.calendarLocale(), std::nullopt);
    formatter.setNotificationObject(QStringLiteral("panel"));
    EXPECT_EQ(formatter.notificationObject(),
              platform::NotificationObject(QStringLiteral("panel")));
    formatter.setNotificationObject({});
    EXPECT_EQ(formatter.notificationObject(), platform::NotificationObject());
}

TEST(PDEFormatter, SettingABoundPutsItInForceUntilItIsSwitchedOff)
{
    PDEFormatter formatter;
    formatter.setMaxValue(255);
    EXPECT_EQ(formatter.maxValue(), 255);
    EXPECT_TRUE(formatter.isValidityMaxValue());
    EXPECT_FALSE(formatter.isValidityMinValue());
    formatter.setMinValue(-7);
    EXPECT_EQ(formatter.minValue(), -7);
    EXPECT_TRUE(formatter.isValidityMinValue());
    formatter.setValidityMaxValue(false);
    formatter.setValidityMinValue(false);
    EXPECT_FALSE(formatter.isValidityMaxValue());
    EXPECT_FALSE(formatter.isValidityMinValue());
    EXPECT_EQ(formatter.maxValue(), 255);
    formatter.setValidityMaxValue(true);
    EXPECT_TRUE(formatter.isValidityMaxValue());
}

TEST(PDEFormatter, TheForbiddenListComparesCanonicallyAndMindsCase)
{
    PDEFormatter formatter;
    formatter.addInvalidCharacter(std::nullopt);
    EXPECT_FALSE(formatter.isInvalidCharacter(std::nullopt));
    formatter.addInvalidCharacter(QStringLiteral("\u00E9"));
    formatter.addInvalidCharacter(QStringLiteral("\u2126"));
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("e\u0301")));
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("\u03A9")));
    EXPECT_FALSE(formatter.isInvalidCharacter(QStringLiteral("\u00C9")));
    formatter.addInvalidCharacter(QStringLiteral("\uFB01"));
    EXPECT_FALSE(formatter.isInvalidCharacter(QStringLiteral("fi")));
    // Nothing is equal to any entry.
    EXPECT_TRUE(formatter.isInvalidCharacter(std::nullopt));
}

TEST(PDEFormatter, RemovingDropsTheFirstEqualEntryAndItsLikeInSpelling)
{
    PDEFormatter formatter;
    formatter.removeInvalidCharacter(QStringLiteral("x"));
    for (const char16_t *entry : {u"\u00E9", u"x", u"e\u0301", u"\u00E9"}) {
        formatter.addInvalidCharacter(QString::fromUtf16(entry));
    }
    formatter.removeInvalidCharacter(QStringLiteral("e\u0301"));
    // The decomposed entry is still there, the two composed ones are gone.
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("\u00E9")));
    formatter.removeInvalidCharacter(QStringLiteral("\u00E9"));
    EXPECT_FALSE(formatter.isInvalidCharacter(QStringLiteral("\u00E9")));
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("x")));
    formatter.removeInvalidCharacter(QStringLiteral("y"));
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("x")));
    formatter.removeInvalidCharacter(std::nullopt);
    EXPECT_FALSE(formatter.isInvalidCharacter(QStringLiteral("x")));
}

TEST_F(PDEFormatterEdit, DeletingMovingAndClearingAreAlwaysAccepted)
{
    formatter.setTextStyle(2);
    formatter.setMaxLength(-1);
    EXPECT_TRUE(edit(QStringLiteral("xyz"), {1, 1}, QString()));
    EXPECT_TRUE(edit(QStringLiteral("xyz"), {0, 3}, QString()));
    std::optional<QString> moved = QStringLiteral("xyz");
    TextRange back{1, 0};
    EXPECT_TRUE(formatter.isPartialStringValid(&moved, &back, moved, {2, 0}, nullptr));
    TextRange same{2, 0};
    EXPECT_TRUE(formatter.isPartialStringValid(&moved, &same, moved, {2, 0}, nullptr));
    EXPECT_EQ(beeps, 0);
    EXPECT_THAT(takeRefusals(), IsEmpty());
}

TEST_F(PDEFormatterEdit, WhatIsMissingIsAccepted)
{
    formatter.setTextStyle(2);
    std::optional<QString> proposed = QStringLiteral("x");
    std::optional<QString> nothing;
    TextRange range{1, 0};
    EXPECT_TRUE(formatter.isPartialStringValid(nullptr, &range, QString(), {}, nullptr));
    EXPECT_TRUE(formatter.isPartialStringValid(&nothing, &range, QString(), {}, nullptr));
    EXPECT_TRUE(formatter.isPartialStringValid(&proposed, nullptr, QString(), {}, nullptr));
    EXPECT_FALSE(formatter.isPartialStringValid(&proposed, &range, std::nullopt, {}, nullptr));
}

TEST_F(PDEFormatterEdit, ASelectionBeyondTheTextPutsNothingIn)
{
    formatter.setTextStyle(2);
    std::optional<QString> proposed = QStringLiteral("x");
    TextRange beyond{2, 0};
    EXPECT_TRUE(formatter.isPartialStringValid(&proposed, &beyond, QString(), {}, nullptr));
    EXPECT_TRUE(formatter.isPartialStringValid(&proposed, &beyond, QString(), {1, 0}, nullptr));
    TextRange end{1, 0};
    EXPECT_TRUE(formatter.isPartialStringValid(&proposed, &end, QString(), {-1, 0}, nullptr));
}

TEST_F(PDEFormatterEdit, WhatReplacesASelectionIsWhatIsTyped)
{
    formatter.addInvalidCharacter(QStringLiteral("x"));
    EXPECT_FALSE(edit(QStringLiteral("abcd"), {1, 2}, QStringLiteral("x")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"x\"")));
    EXPECT_TRUE(edit(QStringLiteral("xxxd"), {1, 2}, QStringLiteral("y")));
}

TEST_F(PDEFormatterEdit, ALimitedNumberIsCheckedWhenItIsFull)
{
    formatter.setTextStyle(2);
    formatter.setMaxLength(3);
    formatter.setMinValue(1);
    formatter.setMaxValue(255);
    EXPECT_TRUE(type({}, QStringLiteral("2")));
    EXPECT_TRUE(type(QStringLiteral("2"), QStringLiteral("5")));
    EXPECT_TRUE(type({}, QStringLiteral("0")));
    EXPECT_FALSE(type(QStringLiteral("25"), QStringLiteral("6")));
    EXPECT_THAT(takeRefusals(), ElementsAre(formatError()));
    EXPECT_EQ(beeps, 1);
    EXPECT_TRUE(type(QStringLiteral("25"), QStringLiteral("5")));
    EXPECT_TRUE(type(QStringLiteral("00"), QStringLiteral("1")));
    EXPECT_FALSE(type(QStringLiteral("00"), QStringLiteral("0")));
    formatter.setNotificationObject(QStringLiteral("panel"));
    EXPECT_FALSE(type(QStringLiteral("25"), QStringLiteral("6")));
    EXPECT_THAT(takeRefusals(), ElementsAre(formatError(), formatError("\"panel\"")));
}

TEST_F(PDEFormatterEdit, AnUnlimitedNumberIsCheckedAtEveryKey)
{
    formatter.setTextStyle(2);
    formatter.setMinValue(10);
    formatter.setMaxValue(255);
    EXPECT_FALSE(type({}, QStringLiteral("1")));
    EXPECT_TRUE(type({}, QStringLiteral("25")));
    EXPECT_FALSE(type(QStringLiteral("25"), QStringLiteral("6")));
    EXPECT_THAT(takeRefusals(), ElementsAre(formatError(), formatError()));
    // The last failing character decides.
    EXPECT_FALSE(type({}, QStringLiteral("2x")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid()));
    EXPECT_FALSE(type({}, QStringLiteral("x2")));
    EXPECT_THAT(takeRefusals(), ElementsAre(formatError()));
    EXPECT_EQ(beeps, 4);
}

TEST_F(PDEFormatterEdit, BoundsAreInclusiveAndOnlyThoseInForceCount)
{
    formatter.setTextStyle(4);
    formatter.setMinValue(10);
    formatter.setMaxValue(20);
    EXPECT_TRUE(type(QStringLiteral("1"), QStringLiteral("0")));
    EXPECT_TRUE(type(QStringLiteral("2"), QStringLiteral("0")));
    EXPECT_TRUE(type(QStringLiteral("20."), QStringLiteral("9")));
    EXPECT_FALSE(type(QStringLiteral("2"), QStringLiteral("1")));
    EXPECT_FALSE(type({}, QStringLiteral("9")));
    formatter.setValidityMinValue(false);
    EXPECT_TRUE(type({}, QStringLiteral("9")));
    EXPECT_FALSE(type({}, QStringLiteral("99999999999")));
    formatter.setMaxValue(2147483647);
    EXPECT_TRUE(type({}, QStringLiteral("99999999999")));
    formatter.setMaxValue(20);
    formatter.setValidityMaxValue(false);
    EXPECT_TRUE(type({}, QStringLiteral("99999999999")));
}

TEST_F(PDEFormatterEdit, OtherStylesHaveNoBounds)
{
    formatter.setMaxValue(5);
    formatter.setMinValue(5);
    for (const qint32 style : {0, 1, 3, 5, 6, 7, 8, 9, 10, 11, 12, -1}) {
        formatter.setTextStyle(style);
        EXPECT_TRUE(type({}, QStringLiteral("9"))) << style;
    }
}

TEST_F(PDEFormatterEdit, TheSecondFullStopIsRefused)
{
    formatter.setTextStyle(4);
    EXPECT_TRUE(type(QStringLiteral("1"), QStringLiteral(".")));
    EXPECT_FALSE(type(QStringLiteral("1.5"), QStringLiteral(".")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid()));
    // The text before the edit decides, not what is put in.
    EXPECT_TRUE(type({}, QStringLiteral("1.2.3")));
    EXPECT_FALSE(edit(QStringLiteral("1.5"), {0, 3}, QStringLiteral("2.5")));
}

TEST_F(PDEFormatterEdit, ACharacterBeyondMacRomanIsTheObjectItself)
{
    formatter.setTextStyle(1);
    formatter.setNotificationObject(QStringLiteral("panel"));
    EXPECT_FALSE(type({}, QStringLiteral("\u3042")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"\u3042\"")));
    // The whole run cannot be converted, so its last character is blamed.
    EXPECT_FALSE(type({}, QStringLiteral("a\u3042b")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"b\"")));
    EXPECT_EQ(beeps, 2);
}

TEST_F(PDEFormatterEdit, APairOfSurrogatesLeavesTheSecondAsTheObject)
{
    formatter.setTextStyle(1);
    platform::NotificationObject object;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(
        &object, [&object](const platform::Notification &posted) { object = posted.object; },
        std::nullopt);
    EXPECT_FALSE(type({}, QString::fromUcs4(U"\U0001F600", 1)));
    center.removeObserver(&object);
    EXPECT_EQ(object, platform::NotificationObject(QString(QChar(0xDE00))));
}

TEST_F(PDEFormatterEdit, AMacRomanCharacterThatIsNotAsciiIsNotTheObject)
{
    formatter.setTextStyle(10);
    EXPECT_FALSE(type({}, QStringLiteral("\u00E9")));
    EXPECT_FALSE(type({}, QStringLiteral("e\u0301")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid(), invalid()));
    formatter.setNotificationObject(QStringLiteral("panel"));
    EXPECT_FALSE(type({}, QStringLiteral("\u20AC")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"panel\"")));
}

TEST_F(PDEFormatterEdit, AForbiddenEntryIsComparedWithTheWholeInsertion)
{
    formatter.addInvalidCharacter(QStringLiteral("A"));
    EXPECT_FALSE(type({}, QStringLiteral("A")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"A\"")));
    EXPECT_TRUE(type({}, QStringLiteral("AB")));
    EXPECT_TRUE(type(QStringLiteral("A"), QStringLiteral("B")));
    EXPECT_TRUE(type({}, QStringLiteral("a")));
    formatter.addInvalidCharacter(QStringLiteral("xyz"));
    formatter.addInvalidCharacter(QString(QLatin1String("")));
    EXPECT_FALSE(type({}, QStringLiteral("xyz")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"z\"")));
    EXPECT_TRUE(type({}, QStringLiteral("x")));
}

TEST_F(PDEFormatterEdit, AForbiddenEntryStopsItsOtherSpelling)
{
    formatter.addInvalidCharacter(QStringLiteral("e\u0301"));
    EXPECT_FALSE(type({}, QStringLiteral("\u00E9")));
    formatter.addInvalidCharacter(QStringLiteral("\u03A9"));
    EXPECT_FALSE(type({}, QStringLiteral("\u2126")));
    EXPECT_TRUE(type({}, QStringLiteral("e")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"\u00E9\""), invalid("\"\u2126\"")));
}

TEST_F(PDEFormatterEdit, OneRefusalIsOneBeepAndOneNotification)
{
    formatter.setTextStyle(2);
    EXPECT_FALSE(type({}, QStringLiteral("1x3")));
    EXPECT_FALSE(type({}, QStringLiteral("xyz")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid(), invalid()));
    EXPECT_EQ(beeps, 2);
}

TEST_F(PDEFormatterEdit, TheLengthCountsBytesOfTheSystemEncoding)
{
    formatter.setMaxLength(3);
    EXPECT_TRUE(type(QStringLiteral("ab"), QStringLiteral("c")));
    EXPECT_FALSE(type(QStringLiteral("ab"), QStringLiteral("\u00E9")));
    EXPECT_FALSE(type(QStringLiteral("abc"), QStringLiteral("d")));
    EXPECT_TRUE(type({}, QStringLiteral("\u20AC")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid(), invalid()));
    platform::setSystemEncoding(platform::TextEncoding::MacRoman);
    EXPECT_TRUE(type(QStringLiteral("ab"), QStringLiteral("\u00E9")));
    EXPECT_TRUE(type({}, QStringLiteral("\u20AC\u20AC\u20AC")));
    EXPECT_FALSE(type({}, QStringLiteral("\u20AC\u20AC\u20AC\u20AC")));
}

TEST_F(PDEFormatterEdit, WhatTheSystemEncodingCannotHoldIsCountedInUnits)
{
    formatter.setMaxLength(3);
    platform::setSystemEncoding(platform::TextEncoding::MacRoman);
    EXPECT_TRUE(type({}, QStringLiteral("\u3042\u3042\u3042")));
    EXPECT_FALSE(type({}, QStringLiteral("\u3042\u3042\u3042\u3042")));
    platform::setSystemEncoding(platform::TextEncoding::Utf8);
    EXPECT_TRUE(type(QStringLiteral("ab"), QString(QChar(0xD83D))));
}

TEST_F(PDEFormatterEdit, ANegativeLimitRefusesEveryInsertion)
{
    formatter.setMaxLength(-1);
    EXPECT_FALSE(type({}, QStringLiteral("a")));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid()));
}

TEST_F(PDEFormatterEdit, TheRangeIsCheckedAtExactlyTheLimitInBytes)
{
    formatter.setTextStyle(2);
    formatter.setMaxLength(4);
    formatter.setMaxValue(5);
    EXPECT_TRUE(type(QStringLiteral("9"), QStringLiteral("9")));
    // A text that was there before may hold more bytes than units.
    EXPECT_FALSE(edit(QStringLiteral("\u00E9"), {0, 0}, QStringLiteral("99")));
    EXPECT_THAT(takeRefusals(), ElementsAre(formatError()));
}

TEST_F(PDEFormatterEdit, AHugePasteIsJudgedInOneGo)
{
    formatter.setTextStyle(2);
    EXPECT_TRUE(type({}, QString(1 << 20, QLatin1Char('7'))));
    EXPECT_FALSE(type({}, QString(1 << 20, QChar(0x3042))));
    EXPECT_THAT(takeRefusals(), ElementsAre(invalid("\"\u3042\"")));
    EXPECT_EQ(beeps, 1);
}

} // namespace
