// SPDX-License-Identifier: Apache-2.0
#include "platform/PointFromString.h"

#include <gmock/gmock.h>

using platform::pointFromString;

namespace {

struct Text
{
    const char16_t *text;
    QPointF point;
};

void PrintTo(const Text &text, std::ostream *out)
{
    *out << QStringView(text.text).toUtf8().constData();
}

class PointFromString : public testing::TestWithParam<Text>
{ };

TEST_P(PointFromString, TakesTheFirstTwoNumbers)
{
    EXPECT_EQ(pointFromString(GetParam().text), GetParam().point);
}

INSTANTIATE_TEST_SUITE_P(Texts, PointFromString,
                         testing::Values(Text{u"{10, 20}", {10, 20}}, Text{u"{10,20}", {10, 20}},
                                         Text{u"10 20", {10, 20}}, Text{u"{10}", {10, 0}},
                                         Text{u"{ 10.5 , -20 }", {10.5, -20}},
                                         Text{u"10,5 20", {10, 5}}, Text{u"", {0, 0}},
                                         Text{u"abc", {0, 0}}, Text{u"-", {0, 0}},
                                         Text{u"inf nan -inf", {0, 0}}, Text{u"{a, 5}", {5, 0}},
                                         Text{u"1e2 3", {100, 3}},
                                         Text{u"{{1, 2}, {3, 4}}", {1, 2}}, Text{u"あ7、8", {7, 8}},
                                         Text{u"--4 5", {-4, 5}}, Text{u"1e 2", {1, 2}},
                                         Text{u"1e999 2", {0, 2}}));

} // namespace
