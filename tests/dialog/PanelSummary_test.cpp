// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelSummary.h"

#include "plugin/PrintDialogExtension.h"

#include <gmock/gmock.h>

using dialog::PanelSummary;
using testing::ElementsAre;
using testing::SizeIs;
using Row = PanelSummary::Row;

namespace {

const QString kPanel = QStringLiteral("Panel");
const QString kA = QStringLiteral("A");
const QString kB = QStringLiteral("B");

PanelSummary read(const QVariantMap &info)
{
    return PanelSummary::read(kPanel, info);
}

TEST(PanelSummary, RowsStandInTheOrderThatThePanelGives)
{
    const PanelSummary summary = read({{kA, QStringLiteral("1")},
                                       {kB, QStringLiteral("2")},
                                       {QStringLiteral("C"), QStringLiteral("not in the order")},
                                       {kSummaryDisplayOrder, QStringList{kB, kA}}});
    EXPECT_EQ(summary.panel, kPanel);
    ASSERT_TRUE(summary.rows);
    EXPECT_THAT(*summary.rows,
                ElementsAre(Row{kB, QStringLiteral("2")}, Row{kA, QStringLiteral("1")}));
}

TEST(PanelSummary, ATitleStandsAsOftenAsTheOrderNamesItAndMayBeEmpty)
{
    const PanelSummary summary = read({{kA, QStringLiteral("1")},
                                       {QString(), QStringLiteral("nameless")},
                                       {kSummaryDisplayOrder, QVariantList{kA, QString(), kA}}});
    ASSERT_TRUE(summary.rows);
    EXPECT_THAT(*summary.rows,
                ElementsAre(Row{kA, QStringLiteral("1")},
                            Row{QString(), QStringLiteral("nameless")},
                            Row{kA, QStringLiteral("1")}));
}

TEST(PanelSummary, AnEmptyOrderIsASummaryWithoutRows)
{
    const PanelSummary summary = read({{kSummaryDisplayOrder, QStringList()}});
    ASSERT_TRUE(summary.rows);
    EXPECT_THAT(*summary.rows, SizeIs(0));
}

TEST(PanelSummary, WhatCannotBeReadIsNoSummary)
{
    EXPECT_FALSE(PanelSummary::read(kPanel, std::nullopt).rows);
    EXPECT_FALSE(read({{kA, QStringLiteral("1")}}).rows) << "no order";
    EXPECT_FALSE(read({{kSummaryDisplayOrder, 5}}).rows);
    EXPECT_FALSE(read({{kSummaryDisplayOrder, kA}, {kA, kA}}).rows) << "a text is no list";
    EXPECT_FALSE(read({{kSummaryDisplayOrder, QStringList{kA}}}).rows) << "a title without value";
    EXPECT_FALSE(read({{kSummaryDisplayOrder, QStringList{kA}}, {kA, 5}}).rows);
    EXPECT_FALSE(read({{kSummaryDisplayOrder, QVariantList{5}}, {QStringLiteral("5"), kA}}).rows);
}

TEST(PanelSummary, TextsBecomeOneLineAndHugeOnesAreCutOff)
{
    const PanelSummary summary = read({{kA, QStringLiteral("two\nlines\tof text")},
                                       {kB, QString(100000, u'x')},
                                       {kSummaryDisplayOrder, QStringList{kA, kB}}});
    ASSERT_TRUE(summary.rows);
    EXPECT_EQ(summary.rows->at(0).value, QStringLiteral("two lines of text"));
    EXPECT_EQ(summary.rows->at(1).value, QString(PanelSummary::kLongestText, u'x'));
    QStringList endless;
    endless.fill(kA, 5000);
    EXPECT_THAT(*read({{kA, kA}, {kSummaryDisplayOrder, endless}}).rows,
                SizeIs(PanelSummary::kMostRows));
}

} // namespace
