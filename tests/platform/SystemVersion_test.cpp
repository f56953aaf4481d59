// SPDX-License-Identifier: Apache-2.0
#include "platform/SystemVersion.h"

#include <gmock/gmock.h>

using namespace platform;

namespace {

std::vector<std::optional<qint32>> version()
{
    return {systemVersion(SystemVersionPart::Major), systemVersion(SystemVersionPart::Minor),
            systemVersion(SystemVersionPart::BugFix)};
}

TEST(SystemVersion, IsTheLevelOfTheDialogsInterface)
{
    EXPECT_THAT(version(), testing::ElementsAre(11, 0, 0));
}

TEST(SystemVersion, AnotherQueryAnswersPartByPartUntilItIsTakenBack)
{
    setSystemVersionQuery([](SystemVersionPart part) -> std::optional<qint32> {
        return part == SystemVersionPart::Minor ? std::nullopt : std::optional(10 + int(part));
    });
    EXPECT_THAT(version(), testing::ElementsAre(10, std::nullopt, 12));
    setSystemVersionQuery({});
    EXPECT_THAT(version(), testing::ElementsAre(11, 0, 0));
}

} // namespace
