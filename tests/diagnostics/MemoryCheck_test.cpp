// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Captured.h"
#include "diagnostics/Diagnostics.h"

#include <numeric>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string kFirst16 = "000102030405060708090a0b0c0d0e0f";
const std::string kSecond16 = "101112131415161718191a1b1c1d1e1f";

/// 0, 1, 2, ...
std::vector<unsigned char> bytes(size_t count)
{
    std::vector<unsigned char> result(count);
    std::iota(result.begin(), result.end(), static_cast<unsigned char>(0));
    return result;
}

std::string dumped(const std::vector<unsigned char> &data)
{
    return standardErrorOf([&data] { memoryCheck(0, data.data(), int(data.size())); });
}

std::vector<std::string> dumpedToFd(const std::vector<unsigned char> &data)
{
    PacketPipe pipe;
    memoryCheckFd(0, pipe.in(), data.data(), int(data.size()));
    return pipe.writes();
}

TEST(MemoryCheck, OneByte)
{
    EXPECT_EQ(dumped({0xAB}), "DEBUG:ab");
}

TEST(MemoryCheck, FullLineIsFollowedByABarePrefix)
{
    EXPECT_EQ(dumped(bytes(16)), "DEBUG:" + kFirst16 + "DEBUG:");
    EXPECT_EQ(dumped(bytes(32)), "DEBUG:" + kFirst16 + "DEBUG:" + kSecond16 + "DEBUG:");
}

TEST(MemoryCheck, RestHasItsOwnPrefix)
{
    EXPECT_EQ(dumped(bytes(20)), "DEBUG:" + kFirst16 + "DEBUG:10111213");
    EXPECT_EQ(dumped(bytes(15)), "DEBUG:" + kFirst16.substr(0, 30));
    EXPECT_EQ(dumped(bytes(17)), "DEBUG:" + kFirst16 + "DEBUG:10");
}

TEST(MemoryCheck, NothingToDumpWritesNothing)
{
    const unsigned char byte = 0;
    EXPECT_EQ(standardErrorOf([&byte] {
                  memoryCheck(0, &byte, 0);
                  memoryCheck(0, &byte, -1);
                  memoryCheck(0, &byte, INT_MIN);
                  memoryCheck(0, nullptr, 16);
              }),
              "");
}

TEST(MemoryCheck, LevelsOfZeroAndLessWrite)
{
    const unsigned char byte = 0xFF;
    EXPECT_EQ(standardErrorOf([&byte] { memoryCheck(1, &byte, 1); }), "");
    EXPECT_EQ(standardErrorOf([&byte] { memoryCheck(-1, &byte, 1); }), "DEBUG:ff");
}

TEST(MemoryCheckFd, OneByte)
{
    EXPECT_THAT(dumpedToFd({0xAB}), ElementsAre("ab", "\n"));
}

TEST(MemoryCheckFd, FullLineHasNothingBehindIt)
{
    EXPECT_THAT(dumpedToFd(bytes(16)), ElementsAre(kFirst16, "\n"));
    EXPECT_THAT(dumpedToFd(bytes(32)), ElementsAre(kFirst16, "\n", kSecond16, "\n"));
}

TEST(MemoryCheckFd, RestIsALineOfItsOwn)
{
    EXPECT_THAT(dumpedToFd(bytes(20)), ElementsAre(kFirst16, "\n", "10111213", "\n"));
    EXPECT_THAT(dumpedToFd(bytes(15)), ElementsAre(kFirst16.substr(0, 30), "\n"));
}

TEST(MemoryCheckFd, NothingToDumpWritesNothing)
{
    const unsigned char byte = 0;
    PacketPipe pipe;
    memoryCheckFd(0, pipe.in(), &byte, 0);
    memoryCheckFd(0, pipe.in(), &byte, -1);
    memoryCheckFd(0, pipe.in(), nullptr, 16);
    memoryCheckFd(1, pipe.in(), &byte, 1);
    EXPECT_THAT(pipe.writes(), IsEmpty());
    memoryCheckFd(-1, pipe.in(), &byte, 1);
    EXPECT_THAT(pipe.writes(), ElementsAre("00", "\n"));
}

TEST(MemoryCheckFd, NothingReachesTheStandardErrorStream)
{
    PacketPipe pipe;
    const unsigned char byte = 0;
    EXPECT_EQ(standardErrorOf([&] { memoryCheckFd(0, pipe.in(), &byte, 1); }), "");
}

} // namespace
