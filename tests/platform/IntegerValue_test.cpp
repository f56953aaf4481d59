// SPDX-License-Identifier: Apache-2.0
#include "platform/IntegerValue.h"

#include <QString>

#include <gmock/gmock.h>

using platform::integerValue;

namespace {

TEST(IntegerValue, ReadsDigitsAfterBlanksAndASign)
{
    EXPECT_EQ(integerValue(u"  12"), 12);
    EXPECT_EQ(integerValue(u"\t\n12"), 12);
    EXPECT_EQ(integerValue(u"07"), 7);
    EXPECT_EQ(integerValue(u"+7"), 7);
    EXPECT_EQ(integerValue(u"-5"), -5);
}

TEST(IntegerValue, StopsAtTheFirstOtherCharacter)
{
    EXPECT_EQ(integerValue(u"7 mm"), 7);
    EXPECT_EQ(integerValue(u"1.5"), 1);
    EXPECT_EQ(integerValue(u"1e3"), 1);
    EXPECT_EQ(integerValue(u"1,000"), 1);
    EXPECT_EQ(integerValue(u"0x10"), 0);
}

TEST(IntegerValue, TextWithoutDigitsIsZero)
{
    for (const QStringView text : {u"", u"abc", u"-", u"+-5", u"--5"}) {
        EXPECT_EQ(integerValue(text), 0) << text.toString().toStdString();
    }
    EXPECT_EQ(integerValue(QString(QChar(0x0663))), 0) << "only ASCII digits count";
}

TEST(IntegerValue, StaysAtTheLimitsOf32Bits)
{
    EXPECT_EQ(integerValue(u"2147483647"), 2147483647);
    EXPECT_EQ(integerValue(u"2147483648"), 2147483647);
    EXPECT_EQ(integerValue(u"-2147483648"), -2147483647 - 1);
    EXPECT_EQ(integerValue(u"-2147483649"), -2147483647 - 1);
    EXPECT_EQ(integerValue(u"99999999999999999999"), 2147483647);
}

} // namespace
