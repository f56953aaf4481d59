// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageRanges.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using dialog::FailureKind;
using dialog::PageRanges;

namespace {

QString readAndWritten(const char *text)
{
    const auto ranges = PageRanges::parse(QString::fromUtf8(text));
    return ranges ? ranges.value().text() : QStringLiteral("failure");
}

QString complaint(const char *text)
{
    const auto ranges = PageRanges::parse(QString::fromUtf8(text));
    return ranges ? QString() : ranges.failure().text();
}

TEST(PageRanges, EmptyTextIsEveryPage)
{
    const auto ranges = PageRanges::parse(QStringLiteral("  "));
    ASSERT_TRUE(ranges);
    EXPECT_TRUE(ranges.value().isAll());
    EXPECT_EQ(ranges.value().first(), 1U);
    EXPECT_EQ(ranges.value().last(), 4294967295U);
    EXPECT_EQ(ranges.value().text(), QString());
}

TEST(PageRanges, PagesAndRangesAreReadInAnyOrderAndJoined)
{
    EXPECT_EQ(readAndWritten("1-3,5"), QStringLiteral("1-3,5"));
    EXPECT_EQ(readAndWritten(" 7 , 2 - 4 "), QStringLiteral("2-4,7"));
    EXPECT_EQ(readAndWritten("1-3,2-5,6,9"), QStringLiteral("1-6,9"));
    EXPECT_EQ(readAndWritten("4,4,4-4"), QStringLiteral("4"));
    EXPECT_EQ(readAndWritten("1–3"), QStringLiteral("1-3"));
}

TEST(PageRanges, RangesMayBeOpenAtOneEnd)
{
    EXPECT_EQ(readAndWritten("4-"), QStringLiteral("4-"));
    EXPECT_EQ(readAndWritten("-3"), QStringLiteral("1-3"));
    EXPECT_EQ(readAndWritten("9,4-,12"), QStringLiteral("4-"));
    EXPECT_EQ(readAndWritten("1-,5"), QString());
}

TEST(PageRanges, BadTextGetsASentenceThatNamesIt)
{
    const char *form = "Pages “%1”: write page numbers and ranges like 1-3,5";
    for (const char *text :
         {"one", "1-3-5", "1,,2", ",", "-", "1;2", "1.5", "+3", "٣", "99999999999", "2147483648"}) {
        EXPECT_EQ(complaint(text), QString::fromUtf8(form).arg(QString::fromUtf8(text)));
    }
    EXPECT_EQ(complaint("0-3"), QStringLiteral("Pages “0-3”: pages are counted from 1"));
    EXPECT_EQ(complaint("5-3"),
              QStringLiteral("Pages “5-3”: a range begins with its smaller number; write 3-5"));
}

TEST(PageRanges, ContainsTellsWhichPagesArePrinted)
{
    const auto ranges = PageRanges::parse(QStringLiteral("2-3,7-"));
    ASSERT_TRUE(ranges);
    for (quint32 page : {2U, 3U, 7U, 100000U}) {
        EXPECT_TRUE(ranges.value().contains(page)) << page;
    }
    for (quint32 page : {0U, 1U, 4U, 6U}) {
        EXPECT_FALSE(ranges.value().contains(page)) << page;
    }
    EXPECT_TRUE(PageRanges().contains(1));
    EXPECT_FALSE(PageRanges().contains(0));
}

TEST(PageRanges, PagesBeyondTheDocumentAreAFailure)
{
    const PageRanges ranges(4, 9);
    EXPECT_FALSE(ranges.check(4));
    ASSERT_TRUE(ranges.check(3));
    EXPECT_EQ(ranges.check(3)->kind, FailureKind::Settings);
    EXPECT_EQ(ranges.check(3)->text(),
              QStringLiteral("Pages “4-9”: the document has only 3 pages"));
}

} // namespace
