// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsPpd.h"
#include "filter/OpenPpd.h"
#include "filter/SmallPpd.h"

#include <random>

#include <gtest/gtest.h>

// The leak checker's own functions; null in a build without it.
extern "C" void __lsan_disable() __attribute__((weak));
extern "C" void __lsan_enable() __attribute__((weak));

namespace {

using namespace filter;

/// libcups 2.4 leaves parts of a PPD behind that it gives up on.
class LeaksAllowed
{
public:
    LeaksAllowed()
    {
        if (__lsan_disable) {
            __lsan_disable();
        }
    }
    ~LeaksAllowed()
    {
        if (__lsan_enable) {
            __lsan_enable();
        }
    }
    LeaksAllowed(const LeaksAllowed &) = delete;
    LeaksAllowed &operator=(const LeaksAllowed &) = delete;
};

/// How many damaged PPDs were given the options, and how many refused.
struct Tally
{
    int added = 0;
    int refused = 0;

    void take(const std::string &text)
    {
        const LeaksAllowed untilTheEnd;
        const auto result = withGraphicsOptions(text, Colours::Black);
        if (const auto *refusal = std::get_if<Refusal>(&result)) {
            ++refused;
            EXPECT_FALSE(refusal->why.empty());
            EXPECT_EQ(refusal->why.find('\n'), std::string::npos);
            return;
        }
        ++added;
        const auto opened = openPpd(std::get<std::string>(result));
        ASSERT_TRUE(std::holds_alternative<OpenPpd>(opened));
        EXPECT_TRUE(ppdFindOption(std::get<OpenPpd>(opened).get(), "CvRedLevel"));
    }
};

TEST(DamagedPpd, CutAtEveryByteGivesAPpdOrASentence)
{
    const std::string text = smallPpd();
    Tally tally;
    for (std::size_t size = 0; size < text.size(); ++size) {
        tally.take(text.substr(0, size));
    }
    // Both outcomes are met: cut within an option, and cut behind all of them.
    EXPECT_GT(tally.refused, 0);
    EXPECT_GT(tally.added, 0);
}

TEST(DamagedPpd, WithBytesChangedGivesAPpdOrASentence)
{
    const std::string text = smallPpd();
    std::mt19937 random(20240229);
    std::uniform_int_distribution<std::size_t> place(0, text.size() - 1);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> count(1, 8);
    Tally tally;
    constexpr int kRounds = 1500;
    for (int i = 0; i < kRounds; ++i) {
        std::string damaged = text;
        for (int j = count(random); j > 0; --j) {
            damaged[place(random)] = static_cast<char>(byte(random));
        }
        tally.take(damaged);
    }
    EXPECT_GT(tally.refused, 0);
    EXPECT_GT(tally.added, 0);
}

TEST(DamagedPpd, WithPiecesRepeatedOrLeftOutGivesAPpdOrASentence)
{
    const std::string text = smallPpd();
    std::mt19937 random(20240301);
    std::uniform_int_distribution<std::size_t> place(0, text.size() - 1);
    std::uniform_int_distribution<std::size_t> length(1, 200);
    Tally tally;
    constexpr int kRounds = 500;
    for (int i = 0; i < kRounds; ++i) {
        std::string damaged = text;
        damaged.insert(place(random), text.substr(place(random), length(random)));
        damaged.erase(place(random), length(random));
        tally.take(damaged);
    }
    EXPECT_GT(tally.refused, 0);
    EXPECT_GT(tally.added, 0);
}

} // namespace
