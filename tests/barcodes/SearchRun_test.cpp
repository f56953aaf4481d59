// SPDX-License-Identifier: Apache-2.0
#include "barcodes/SearchRun.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

using barcodes::FoundCode;
using barcodes::SearchStep;

namespace {

constexpr char kCode[] = "bars\tCode 39\t1 2 3 4 5 6 7 8 \t416263\n";

SearchStep finding()
{
    return [] {
        FoundCode code{"Code 39", "Abc", {}, true};
        code.corners = {{{1, 2}, {3, 4}, {5, 6}, {7, 8}}};
        return std::vector<FoundCode>{code};
    };
}

SearchStep ending(void (*end)())
{
    return [end] {
        end();
        return std::vector<FoundCode>();
    };
}

void turnForEver()
{
    volatile bool isWanted = true;
    while (isWanted) { }
}

class SearchRun : public testing::Test
{
protected:
    bool run(const std::vector<SearchStep> &steps, const barcodes::StepLimits &limits = {})
    {
        char *text = nullptr;
        std::size_t size = 0;
        std::FILE *to = open_memstream(&text, &size);
        const bool isDone = barcodes::runSearch(steps, to, limits);
        std::fclose(to);
        said.assign(text, size);
        std::free(text);
        return isDone;
    }

    std::string said;
};

TEST_F(SearchRun, SaysWhatTheStepsFind)
{
    EXPECT_TRUE(run({finding(), finding()}));
    EXPECT_EQ(said, std::string(kCode) + kCode);
}

TEST_F(SearchRun, WithoutStepsIsDone)
{
    EXPECT_TRUE(run({}));
    EXPECT_EQ(said, "");
}

TEST_F(SearchRun, GoesOnBehindAStepThatAborts)
{
    EXPECT_TRUE(run({finding(), ending([] { std::abort(); }), finding()}));
    EXPECT_EQ(said, std::string(kCode) + kCode);
}

TEST_F(SearchRun, GoesOnBehindAStepThatEndsTheProcessInOrder)
{
    for (const auto end : {+[] { _exit(1); }, +[] { _exit(99); }}) {
        EXPECT_TRUE(run({finding(), ending(end), finding()}));
        EXPECT_EQ(said, std::string(kCode) + kCode);
    }
}

TEST_F(SearchRun, GoesOnAfterAStepThatThrows)
{
    EXPECT_TRUE(run({ending([] { throw std::runtime_error("no code"); }), finding()}));
    EXPECT_EQ(said, kCode);
}

TEST_F(SearchRun, GoesOnBehindAStepThatComputesForEver)
{
    EXPECT_TRUE(run({ending(turnForEver), finding()}, {1, 300}));
    EXPECT_EQ(said, kCode);
}

TEST_F(SearchRun, GoesOnBehindAStepThatHangs)
{
    EXPECT_TRUE(run({ending([] { pause(); }), finding()}, {20, 1}));
    EXPECT_EQ(said, kCode);
}

TEST_F(SearchRun, AStepMayTakeLongWhileItComputesLittle)
{
    const SearchStep slow = [] {
        usleep(1'500'000);
        return finding()();
    };
    EXPECT_TRUE(run({slow}, {1, 300}));
    EXPECT_EQ(said, kCode);
}

TEST_F(SearchRun, IsNotDoneWhenTooManyStepsEndBadly)
{
    std::vector<SearchStep> steps(40, ending([] { std::abort(); }));
    steps.push_back(finding());
    EXPECT_FALSE(run(steps));
}

TEST_F(SearchRun, IsNotDoneWithoutAChild)
{
    const std::vector<SearchStep> steps{finding()};
    std::FILE *to = std::tmpfile();
    ASSERT_TRUE(to);
    // No pipe can be had; the sanitizers need one for calls of the test itself.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    const int limited = setrlimit(RLIMIT_NOFILE, &none);
    const bool isDone = barcodes::runSearch(steps, to);
    const int freed = setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(limited, 0);
    ASSERT_EQ(freed, 0);
    EXPECT_FALSE(isDone);
    EXPECT_EQ(std::ftell(to), 0);
    std::fclose(to);
}

} // namespace
