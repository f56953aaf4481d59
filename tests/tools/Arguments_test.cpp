// SPDX-License-Identifier: Apache-2.0
#include "tools/Arguments.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using tools::Arguments;

namespace {

auto read(const QStringList &words)
{
    return Arguments::read(QStringList(QStringLiteral("panel-session")) + words);
}

std::string complaintAbout(const QStringList &words)
{
    const auto result = read(words);
    const auto *complaint = std::get_if<Arguments::Complaint>(&result);
    return complaint ? complaint->text.toStdString() : std::string();
}

TEST(Arguments, WithoutAnyThePlugInIsTheDialogs)
{
    const auto result = read({});
    ASSERT_TRUE(std::holds_alternative<Arguments>(result));
    EXPECT_EQ(std::get<Arguments>(result).plugIn, QString());
}

TEST(Arguments, PluginNamesAFolder)
{
    const auto result = read({QStringLiteral("--plugin"), QStringLiteral("some/folder")});
    ASSERT_TRUE(std::holds_alternative<Arguments>(result));
    EXPECT_EQ(std::get<Arguments>(result).plugIn, QLatin1String("some/folder"));
}

TEST(Arguments, HelpListsTheOptionAndTheExitStatus)
{
    const auto result = read({QStringLiteral("--help")});
    ASSERT_TRUE(std::holds_alternative<Arguments::Text>(result));
    const std::string help = std::get<Arguments::Text>(result).text.toStdString();
    EXPECT_THAT(help, HasSubstr("--plugin <folder>"));
    EXPECT_THAT(help, HasSubstr("Exit status: 0"));
}

TEST(Arguments, UnusableOnesAreNamed)
{
    EXPECT_THAT(complaintAbout({QStringLiteral("--bogus")}), HasSubstr("bogus"));
    EXPECT_THAT(complaintAbout({QStringLiteral("--plugin")}), HasSubstr("plugin"));
    EXPECT_THAT(complaintAbout({QStringLiteral("--plugin"), QString()}), HasSubstr("--plugin"));
    EXPECT_THAT(complaintAbout({QStringLiteral("session.jsonl")}),
                HasSubstr("session.jsonl: requests are read from standard input"));
}

} // namespace
