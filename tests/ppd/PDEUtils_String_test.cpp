// SPDX-License-Identifier: Apache-2.0
#include "platform/TextEncodings.h"
#include "ppd/PDEUtilsMethod.h"

#include <gmock/gmock.h>

using platform::setSystemEncoding;
using platform::TextEncoding;

namespace {

class PDEUtils_String : public testing::Test
{
protected:
    ~PDEUtils_String() override { setSystemEncoding(TextEncoding::Utf8); }

    static quint32 length(const std::optional<QString> &text)
    {
        return PDEUtilsMethod13::stringLengthConvertedToEncoding(text);
    }
    static bool scan(const std::optional<QString> &text, const std::optional<QString> &pattern)
    {
        return PDEUtilsMethod13::scanString(text, pattern);
    }
    static std::optional<QString> without(const std::optional<QString> &text,
                                          const std::optional<QString> &pattern)
    {
        return PDEUtilsMethod13::deleteString(text, pattern);
    }
};

TEST_F(PDEUtils_String, LengthOfNothingAndOfEmptyTextIsZero)
{
    EXPECT_EQ(length(std::nullopt), 0U);
    EXPECT_EQ(length(QString()), 0U);
}

TEST_F(PDEUtils_String, LengthIsThatOfTheSystemEncodingWhenTheTextFits)
{
    EXPECT_EQ(length(QStringLiteral("abc")), 3U);
    EXPECT_EQ(length(QStringLiteral("é")), 2U);
    EXPECT_EQ(length(QStringLiteral("€")), 3U);
    EXPECT_EQ(length(QStringLiteral("あ")), 3U);
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(length(QStringLiteral("abc")), 3U);
    EXPECT_EQ(length(QStringLiteral("é")), 1U);
    EXPECT_EQ(length(QStringLiteral("€")), 1U);
}

TEST_F(PDEUtils_String, LengthFallsBackToTheFirstEncodingThatHoldsTheText)
{
    const QString lone(QChar(0xD83D));
    EXPECT_EQ(length(lone), 4U) << "UTF-16: byte order mark and one unit";
    setSystemEncoding(TextEncoding::MacRoman);
    EXPECT_EQ(length(QStringLiteral("あ")), 2U) << "Shift-JIS";
    EXPECT_EQ(length(lone), 4U);
}

TEST_F(PDEUtils_String, ScanFindsThePatternUnitByUnit)
{
    EXPECT_TRUE(scan(QStringLiteral("CvMultiColor"), QStringLiteral("Multi")));
    EXPECT_TRUE(scan(QStringLiteral("abc"), QStringLiteral("abc")));
    EXPECT_FALSE(scan(QStringLiteral("abc"), QStringLiteral("B"))) << "letter case counts";
    EXPECT_FALSE(scan(QStringLiteral("ab"), QStringLiteral("abc")));
    EXPECT_TRUE(scan(QStringLiteral("e\u0301"), QStringLiteral("e"))) << "no normalisation";
    EXPECT_FALSE(scan(QStringLiteral("é"), QStringLiteral("e\u0301"))) << "no normalisation";
}

TEST_F(PDEUtils_String, EmptyOrMissingPatternOccursNowhere)
{
    EXPECT_FALSE(scan(QStringLiteral("abc"), QString()));
    EXPECT_FALSE(scan(QString(), QString()));
    EXPECT_FALSE(scan(QStringLiteral("abc"), std::nullopt));
    EXPECT_FALSE(scan(std::nullopt, QStringLiteral("a")));
    EXPECT_EQ(without(QStringLiteral("abc"), QString()), std::nullopt);
    EXPECT_EQ(without(QStringLiteral("abc"), std::nullopt), std::nullopt);
    EXPECT_EQ(without(std::nullopt, QStringLiteral("a")), std::nullopt);
}

TEST_F(PDEUtils_String, DeleteTakesOnlyTheFirstOccurrence)
{
    EXPECT_EQ(without(QStringLiteral("ABAB"), QStringLiteral("B")), QStringLiteral("AAB"));
}

TEST_F(PDEUtils_String, DeleteLeavesTheTextThatItWasGivenAlone)
{
    const QString text = QStringLiteral("ABAB");
    const auto rest = without(text, QStringLiteral("A"));
    EXPECT_EQ(text, QStringLiteral("ABAB"));
    EXPECT_EQ(rest, QStringLiteral("BAB"));
}

TEST_F(PDEUtils_String, DeleteOfTheWholeTextIsEmptyAndNotNothing)
{
    const std::optional<QString> rest = without(QStringLiteral("abc"), QStringLiteral("abc"));
    ASSERT_TRUE(rest.has_value());
    EXPECT_TRUE(rest->isEmpty());
}

TEST_F(PDEUtils_String, DeleteOfWhatDoesNotOccurIsNothing)
{
    EXPECT_EQ(without(QStringLiteral("abc"), QStringLiteral("x")), std::nullopt);
    EXPECT_EQ(without(QStringLiteral("abc"), QStringLiteral("B")), std::nullopt);
    EXPECT_EQ(without(QStringLiteral("é"), QStringLiteral("e\u0301")), std::nullopt);
}

} // namespace
