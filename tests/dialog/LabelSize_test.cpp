// SPDX-License-Identifier: Apache-2.0
#include "dialog/LabelSize.h"
#include "support/QtPrinters.h"

#include <QLocale>

#include <gmock/gmock.h>

using dialog::LabelSize;

namespace {

LabelSize sizeInPoints(double width, double height)
{
    return {QStringLiteral("DC62x100"), QStringLiteral("Shipping"), width, height};
}

QString choiceOf(const char *text)
{
    const auto size = LabelSize::fromText(QString::fromUtf8(text));
    return size ? size.value().pageSizeChoice() : QStringLiteral("failure");
}

TEST(LabelSize, SizeOfThePpdGoesByItsNameExactly)
{
    EXPECT_EQ(sizeInPoints(175.75, 283.46).pageSizeChoice(), QStringLiteral("DC62x100"));
}

TEST(LabelSize, OwnSizeGoesInMillimetresWithoutLoss)
{
    const LabelSize size = LabelSize::custom(60, 100.25);
    EXPECT_TRUE(size.isCustom());
    EXPECT_EQ(size.pageSizeChoice(), QStringLiteral("Custom.60x100.25mm"));
    EXPECT_NEAR(size.height, 284.173, 0.001);
    EXPECT_EQ(LabelSize::custom(1234.5, 99999).pageSizeChoice(),
              QStringLiteral("Custom.1234.5x99999mm"));
}

TEST(LabelSize, MillimetresForPeopleAreWholeWhereThePpdMeantIt)
{
    EXPECT_EQ(sizeInPoints(175.75, 283.46).millimetres(), QStringLiteral("62 × 100 mm"));
    EXPECT_EQ(sizeInPoints(176, 82).millimetres(), QStringLiteral("62 × 29 mm"));
    EXPECT_EQ(sizeInPoints(162, 95).millimetres(), QStringLiteral("57 × 33.5 mm"));
    EXPECT_EQ(LabelSize::custom(1000, 12.5).millimetres(), QStringLiteral("1000 × 12.5 mm"));
    EXPECT_EQ(sizeInPoints(0, 0).millimetres(), QString());
}

TEST(LabelSize, MillimetresForPeopleUseTheUsersDecimalSeparator)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(sizeInPoints(95, 100).millimetres(), QStringLiteral("33,5 × 35,3 mm"));
    EXPECT_EQ(LabelSize::custom(1031.75, 63.5).pageSizeChoice(),
              QStringLiteral("Custom.1031.75x63.5mm"));
    QLocale::setDefault(before);
}

TEST(LabelSize, TextIsReadInTheUnitThatItNames)
{
    EXPECT_EQ(choiceOf("60x100"), QStringLiteral("Custom.60x100mm"));
    EXPECT_EQ(choiceOf(" 60,5 × 100 mm "), QStringLiteral("Custom.60.5x100mm"));
    EXPECT_EQ(choiceOf("6x10cm"), QStringLiteral("Custom.60x100mm"));
    EXPECT_EQ(choiceOf("2x4in"), QStringLiteral("Custom.50.8x101.6mm"));
    EXPECT_EQ(choiceOf("72x144pt"), QStringLiteral("Custom.25.4x50.8mm"));
}

TEST(LabelSize, BadTextGetsASentenceThatNamesIt)
{
    for (const char *text : {"", "60", "x", "60x", "0x10", "-5x10", "6e3x10", "60x100yd", "1x2x3",
                             "60x100mm; rm", "99999999x1"}) {
        const auto size = LabelSize::fromText(QString::fromUtf8(text));
        ASSERT_FALSE(size) << text;
        EXPECT_EQ(size.failure().why,
                  QStringLiteral("is no label size; write width and height like 60x100mm"));
        EXPECT_TRUE(size.failure().what.contains(QString::fromUtf8(text)));
    }
}

} // namespace
