// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelFormatter.h"

#include "platform/Beep.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LevelFormatter : public testing::Test
{
protected:
    LevelFormatter()
    {
        platform::setBeep([this] { ++beeps; });
        platform::NotificationCenter::defaultCenter().addObserver(
            this,
            [this](const platform::Notification &posted) {
                const auto *text = std::get_if<QString>(&posted.object);
                refusals.push_back(posted.name.toStdString() + ' '
                                   + (text ? text->toStdString() : "formatter"));
            },
            std::nullopt);
    }
    ~LevelFormatter() override
    {
        platform::NotificationCenter::defaultCenter().removeObserver(this);
        platform::setBeep({});
    }

    /// Puts `typed` into `before` at `place`, over `length` characters.
    bool accepts(const char *before, int place, const char *typed, int length = 0)
    {
        const QString original = QLatin1String(before);
        std::optional<QString> proposed = original;
        proposed->replace(place, length, QString::fromUtf8(typed));
        TextRange after{place + QString::fromUtf8(typed).size(), 0};
        return formatter.isPartialStringValid(&proposed, &after, original, {place, length},
                                              nullptr);
    }

    graphics::LevelFormatter formatter;
    int beeps = 0;
    std::vector<std::string> refusals;
};

TEST_F(LevelFormatter, LetsThroughWhatALevelCanBeWhileItIsTyped)
{
    EXPECT_TRUE(accepts("", 0, "-"));
    EXPECT_TRUE(accepts("-", 1, "2"));
    EXPECT_TRUE(accepts("-2", 2, "0"));
    EXPECT_TRUE(accepts("", 0, "-20"));
    EXPECT_TRUE(accepts("20", 0, "-"));
    EXPECT_TRUE(accepts("", 0, "007"));
    EXPECT_TRUE(accepts("-5", 0, "9", 1));
    EXPECT_TRUE(accepts("abc", 0, "1", 3));
    EXPECT_EQ(beeps, 0);
    EXPECT_THAT(refusals, IsEmpty());
}

TEST_F(LevelFormatter, AWrongCharacterIsRefusedOnceAndIsTheObject)
{
    EXPECT_FALSE(accepts("1", 1, "x"));
    EXPECT_FALSE(accepts("1", 1, "-"));
    EXPECT_FALSE(accepts("-", 1, "-"));
    EXPECT_FALSE(accepts("", 0, "+5"));
    EXPECT_FALSE(accepts("", 0, "1 2"));
    EXPECT_FALSE(accepts("-5", 0, "3"));
    EXPECT_THAT(refusals,
                ElementsAre("InvalidCharacterNotification x", "InvalidCharacterNotification -",
                            "InvalidCharacterNotification -", "InvalidCharacterNotification +",
                            "InvalidCharacterNotification  ", "InvalidCharacterNotification 3"));
    EXPECT_EQ(beeps, 6);
}

TEST_F(LevelFormatter, AFourthCharacterIsRefusedByTheFormatter)
{
    EXPECT_FALSE(accepts("-20", 3, "0"));
    EXPECT_FALSE(accepts("", 0, "1234"));
    EXPECT_THAT(refusals,
                ElementsAre("InvalidCharacterNotification formatter",
                            "InvalidCharacterNotification formatter"));
    EXPECT_EQ(beeps, 2);
}

TEST_F(LevelFormatter, WhatNoAsciiHoldsIsRefusedOnce)
{
    EXPECT_FALSE(accepts("", 0, "\xE2\x88\x92"));
    EXPECT_FALSE(accepts("", 0, "\xC3\xA9"));
    EXPECT_EQ(refusals.size(), 2U);
    EXPECT_EQ(beeps, 2);
}

TEST_F(LevelFormatter, DeletingAndClearingPassWhateverIsLeft)
{
    EXPECT_TRUE(accepts("1x-", 0, "", 1));
    EXPECT_TRUE(accepts("abc", 0, "", 3));
    EXPECT_EQ(beeps, 0);
}

} // namespace
