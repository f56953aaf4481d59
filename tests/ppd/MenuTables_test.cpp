// SPDX-License-Identifier: Apache-2.0
#include "ppd/MenuTables.h"

#include <gmock/gmock.h>

namespace {

TEST(MenuTables, CountIsTheSizeInEntries)
{
    EXPECT_EQ(Get_MenuCount(OP_MENU, sizeof(OP_MENU)), 3U);
    EXPECT_EQ(Get_MenuCount(QUAL_MENU, sizeof(QUAL_MENU)), 3U);
    EXPECT_EQ(Get_MenuCount(OP_MENU, 0), 0U);
    EXPECT_EQ(Get_MenuCount(OP_MENU, sizeof(MenuEntry) - 1), 0U);
    EXPECT_EQ(Get_MenuCount(OP_MENU, 2 * sizeof(MenuEntry) + 1), 2U);
    EXPECT_EQ(Get_MenuCount(nullptr, sizeof(MenuEntry)), 1U);
}

TEST(MenuTables, EveryIdentifierHasItsKey)
{
    EXPECT_STREQ(Get_MenuKeyStr(1, OP_MENU, sizeof(OP_MENU)), "OPT1_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(2, OP_MENU, sizeof(OP_MENU)), "OPT2_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(3, OP_MENU, sizeof(OP_MENU)), "OPT3_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(101, QUAL_MENU, sizeof(QUAL_MENU)), "QUAL1_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(102, QUAL_MENU, sizeof(QUAL_MENU)), "QUAL2_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(103, QUAL_MENU, sizeof(QUAL_MENU)), "QUAL3_KEY");
}

TEST(MenuTables, UnknownIdentifierHasNoKey)
{
    EXPECT_EQ(Get_MenuKeyStr(4, OP_MENU, sizeof(OP_MENU)), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(102, OP_MENU, sizeof(OP_MENU)), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(-1, OP_MENU, sizeof(OP_MENU)), nullptr);
}

TEST(MenuTables, NoTableOrLessThanOneEntryHasNoKey)
{
    EXPECT_EQ(Get_MenuKeyStr(1, nullptr, sizeof(OP_MENU)), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(1, OP_MENU, sizeof(MenuEntry) - 1), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(1, OP_MENU, 0), nullptr);
}

TEST(MenuTables, EntriesBehindTheGivenSizeAreNotFound)
{
    EXPECT_EQ(Get_MenuKeyStr(3, OP_MENU, 2 * sizeof(MenuEntry)), nullptr);
    EXPECT_STREQ(Get_MenuKeyStr(2, OP_MENU, 2 * sizeof(MenuEntry)), "OPT2_KEY");
}

TEST(MenuTables, TheFirstEntryWhoseWordIsZeroIsFound)
{
    const MenuEntry table[] = {{7, "WORD_SET", 1}, {7, "FIRST", 0}, {7, "SECOND", 0}, {8, "X", -1}};
    EXPECT_STREQ(Get_MenuKeyStr(7, table, sizeof(table)), "FIRST");
    EXPECT_EQ(Get_MenuKeyStr(8, table, sizeof(table)), nullptr);
}

TEST(MenuTables, EveryWordOfTheTablesIsZero)
{
    for (const MenuEntry &entry : OP_MENU) {
        EXPECT_EQ(entry.word, 0) << entry.key;
    }
    for (const MenuEntry &entry : QUAL_MENU) {
        EXPECT_EQ(entry.word, 0) << entry.key;
    }
}

} // namespace
