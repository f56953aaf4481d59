// SPDX-License-Identifier: Apache-2.0
#include "ppd/MenuTables.h"

#include <algorithm>

const MenuEntry OP_MENU[3] = {{1, "OPT1_KEY", 0}, {2, "OPT2_KEY", 0}, {3, "OPT3_KEY", 0}};

const MenuEntry QUAL_MENU[3] = {
    {101, "QUAL1_KEY", 0}, {102, "QUAL2_KEY", 0}, {103, "QUAL3_KEY", 0}};

quint32 Get_MenuCount(const MenuEntry *, quint32 size)
{
    return quint32(size / sizeof(MenuEntry));
}

const char *Get_MenuKeyStr(qint32 identifier, const MenuEntry *table, quint32 size)
{
    if (!table) {
        return nullptr;
    }
    const MenuEntry *end = table + Get_MenuCount(table, size);
    const MenuEntry *found = std::find_if(table, end, [identifier](const MenuEntry &entry) {
        return entry.identifier == identifier && entry.word == 0;
    });
    return found != end ? found->key : nullptr;
}
