// SPDX-License-Identifier: Apache-2.0
#include "tools/LineReader.h"

#include <QTemporaryFile>

#include <gmock/gmock.h>

using testing::ElementsAre;
using tools::LineReader;

namespace {

std::vector<std::string> linesOf(const QByteArray &content)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    file.write(content);
    file.seek(0);
    LineReader reader(file.handle());
    std::vector<std::string> lines;
    while (const auto line = reader.next()) {
        lines.push_back(line->tooLong ? "(too long)" : line->text.toStdString());
    }
    return lines;
}

TEST(LineReader, ReadsEachLineWithoutItsEnd)
{
    EXPECT_THAT(linesOf("one\n\nthree\n"), ElementsAre("one", "", "three"));
}

TEST(LineReader, WhatStandsBehindTheLastLineEndIsALineWhenThereIsAnything)
{
    EXPECT_THAT(linesOf("one\ntwo"), ElementsAre("one", "two"));
    EXPECT_THAT(linesOf(""), ElementsAre());
    EXPECT_THAT(linesOf("\n"), ElementsAre(""));
}

TEST(LineReader, ZeroBytesAreBytesOfTheLine)
{
    EXPECT_THAT(linesOf(QByteArray("a\0b\nc", 5)), ElementsAre(std::string("a\0b", 3), "c"));
}

TEST(LineReader, LongLinesComeWhole)
{
    const QByteArray line(1024 * 1024, 'x');
    EXPECT_THAT(linesOf(line + "\nnext\n"), ElementsAre(line.toStdString(), "next"));
}

TEST(LineReader, ALineBeyondTheLimitIsSkippedToItsEnd)
{
    const QByteArray most(LineReader::kLongestLine, 'x');
    EXPECT_THAT(linesOf(most + "\nnext\n"), ElementsAre(most.toStdString(), "next"));
    EXPECT_THAT(linesOf(most + "x\nnext\n"), ElementsAre("(too long)", "next"));
    EXPECT_THAT(linesOf("first\n" + most + most + "x"), ElementsAre("first", "(too long)"));
}

TEST(LineReader, ADescriptorThatCannotBeReadHasNoLines)
{
    EXPECT_FALSE(LineReader(-1).next());
}

} // namespace
