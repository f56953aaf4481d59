// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Captured.h"
#include "diagnostics/Diagnostics.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const char *panelText(const PDEObject *)
{
    return "Panel";
}

const PDEObject kPanel{&panelText};

TEST(DebugLog, WritesPrefixTextAndLineFeed)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "a%d", 5); }), "DEBUG: a5\n");
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "%@ %s", &kPanel, "é"); }), "DEBUG: Panel é\n");
}

TEST(DebugLog, LevelsOfZeroAndLessWrite)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(-1, "x"); }), "DEBUG: x\n");
    EXPECT_EQ(standardErrorOf([] { debugLog(INT_MIN, "x"); }), "DEBUG: x\n");
    EXPECT_EQ(standardErrorOf([] { debugLog(1, "x"); }), "");
    EXPECT_EQ(standardErrorOf([] { debugLog(INT_MAX, "x"); }), "");
}

TEST(DebugLog, EmptyTextIsALine)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(-1, "%s", ""); }), "DEBUG: \n");
}

TEST(DebugLog, NoFormatIsThePrefixAlone)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(0, nullptr); }), "DEBUG: ");
}

TEST(DebugLog, LoneSurrogateIsAQuestionMark)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "a%Cb", 0xDE00); }), "DEBUG: a?b\n");
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "a%C%Cb", 0xD83D, 0xDE00); }),
              "DEBUG: a\xF0\x9F\x98\x80"
              "b\n");
}

TEST(DebugLog, TextEndsAtAZeroUnit)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "a%cb", 0); }), "DEBUG: a\n");
}

TEST(DebugLog, PercentSignsInTheTextStay)
{
    EXPECT_EQ(standardErrorOf([] { debugLog(0, "100%% %s", "%n%s"); }), "DEBUG: 100% %n%s\n");
}

TEST(DebugLog, LongTextIsWhole)
{
    const std::string text(100000, 'x');
    EXPECT_EQ(standardErrorOf([&text] { debugLog(0, "%s", text.c_str()); }),
              "DEBUG: " + text + "\n");
}

TEST(DebugLogFd, WritesTextAndLineFeedApart)
{
    PacketPipe pipe;
    debugLogFd(0, pipe.in(), "a%d", 5);
    EXPECT_THAT(pipe.writes(), ElementsAre("a5", "\n"));
}

TEST(DebugLogFd, LevelsOfZeroAndLessWrite)
{
    PacketPipe pipe;
    debugLogFd(1, pipe.in(), "x");
    EXPECT_THAT(pipe.writes(), IsEmpty());
    debugLogFd(-1, pipe.in(), "x");
    EXPECT_THAT(pipe.writes(), ElementsAre("x", "\n"));
}

TEST(DebugLogFd, EmptyTextIsALine)
{
    PacketPipe pipe;
    debugLogFd(0, pipe.in(), "%s", "");
    EXPECT_THAT(pipe.writes(), ElementsAre("\n"));
}

TEST(DebugLogFd, NoFormatWritesNothing)
{
    PacketPipe pipe;
    debugLogFd(0, pipe.in(), nullptr);
    EXPECT_THAT(pipe.writes(), IsEmpty());
}

TEST(DebugLogFd, ZeroUnitsAreWritten)
{
    PacketPipe pipe;
    debugLogFd(0, pipe.in(), "a%cb", 0);
    EXPECT_THAT(pipe.writes(), ElementsAre(std::string("a\0b", 3), "\n"));
}

TEST(DebugLogFd, LoneSurrogateIsAQuestionMark)
{
    PacketPipe pipe;
    debugLogFd(0, pipe.in(), "a%Cb", 0xD83D);
    EXPECT_THAT(pipe.writes(), ElementsAre("a?b", "\n"));
}

TEST(DebugLogFd, NothingReachesTheStandardErrorStream)
{
    PacketPipe pipe;
    EXPECT_EQ(standardErrorOf([&pipe] { debugLogFd(0, pipe.in(), "x"); }), "");
}

} // namespace
