// SPDX-License-Identifier: Apache-2.0
#include "tools/Members.h"

#include "tools/RequestError.h"

#include <QJsonDocument>

#include <gmock/gmock.h>

using testing::ElementsAre;
using tools::Members;
using tools::RequestError;

namespace {

Members members(const char *json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json;
    return Members(document.object());
}

/// What is wrong with the member; empty when nothing is.
template <class Read> std::string complaint(Read read)
{
    try {
        read();
    } catch (const RequestError &error) {
        return error.text.toStdString();
    }
    return {};
}

TEST(Members, AMissingMemberIsNamed)
{
    const Members none = members("{}");
    EXPECT_EQ(complaint([&] { none.text("option"); }), "member \"option\" is missing");
    EXPECT_EQ(complaint([&] { none.textOrNull("option"); }), "member \"option\" is missing");
    EXPECT_EQ(complaint([&] { none.integer("bits"); }), "member \"bits\" is missing");
    EXPECT_EQ(complaint([&] { none.objectOrNull("paper"); }), "member \"paper\" is missing");
}

TEST(Members, AMissingMemberWithADefaultIsTheDefault)
{
    const Members none = members("{}");
    EXPECT_EQ(none.text("type", QStringLiteral("x")), QLatin1String("x"));
    EXPECT_TRUE(none.truth("reports", true));
}

TEST(Members, NullIsNothingOnlyWhereItMayBe)
{
    const Members null = members(R"({"a": null})");
    EXPECT_EQ(null.textOrNull("a"), std::nullopt);
    EXPECT_EQ(null.numberOrNull("a"), std::nullopt);
    EXPECT_FALSE(null.objectOrNull("a"));
    EXPECT_NE(complaint([&] { null.text("a"); }), "");
    EXPECT_NE(complaint([&] { null.text("a", QString()); }), "");
    EXPECT_NE(complaint([&] { null.truth("a", true); }), "");
    EXPECT_NE(complaint([&] { null.integer("a"); }), "");
    EXPECT_NE(complaint([&] { null.number("a"); }), "");
}

TEST(Members, TruthValuesAreNoIntegersAndIntegersNoTruthValues)
{
    const Members both = members(R"({"truth": true, "one": 1})");
    EXPECT_NE(complaint([&] { both.integer("truth"); }), "");
    EXPECT_NE(complaint([&] { both.textOrInteger("truth"); }), "");
    EXPECT_NE(complaint([&] { both.truth("one"); }), "");
    EXPECT_NE(complaint([&] { both.truth("one", true); }), "");
    EXPECT_EQ(both.integer("one"), 1);
    EXPECT_TRUE(both.truth("truth"));
}

TEST(Members, IntegersHave32Bits)
{
    const Members numbers = members(R"({"least": -2147483648, "most": 2147483647,
        "below": -2147483649, "above": 2147483648, "huge": 1e300, "half": 0.5, "whole": 3.0})");
    EXPECT_EQ(numbers.integer("least"), std::numeric_limits<qint32>::min());
    EXPECT_EQ(numbers.integer("most"), std::numeric_limits<qint32>::max());
    EXPECT_EQ(numbers.integer("whole"), 3);
    for (const char *name : {"below", "above", "huge", "half"}) {
        EXPECT_EQ(complaint([&] { numbers.integer(name); }),
                  "member \"" + std::string(name) + "\" must be a whole number of 32 bits");
    }
}

TEST(Members, AVersionHasThreeNumbersOrNulls)
{
    const Members versions = members(R"({"v": [10, null, 3], "two": [10, 5], "text": [1, "2", 3],
        "none": {}})");
    EXPECT_THAT(versions.integersOrNulls("v", 3),
                ElementsAre(std::optional(10), std::nullopt, std::optional(3)));
    for (const char *name : {"two", "text", "none"}) {
        EXPECT_NE(complaint([&] { versions.integersOrNulls(name, 3); }), "") << name;
    }
}

TEST(Members, AFormattersValueIsATextOrAWholeNumber)
{
    const Members values = members(R"({"text": "5", "number": 5, "big": 9007199254740992,
        "half": 0.5, "huge": 1e17, "list": [1]})");
    EXPECT_EQ(values.textOrInteger("text"), QVariant(QStringLiteral("5")));
    EXPECT_EQ(values.textOrInteger("number"), QVariant(qint64(5)));
    EXPECT_EQ(values.textOrInteger("big"), QVariant(qint64(9007199254740992)));
    for (const char *name : {"half", "huge", "list"}) {
        EXPECT_NE(complaint([&] { values.textOrInteger(name); }), "") << name;
    }
}

} // namespace
