// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

/// One entry of a menu table.
struct MenuEntry
{
    qint32 identifier;
    const char *key;
    /// Must be 0 for the entry to be found.
    qint32 word;
};

extern "C" {

Q_DECL_EXPORT extern const MenuEntry OP_MENU[3];
Q_DECL_EXPORT extern const MenuEntry QUAL_MENU[3];

/// The entries in a table of `size` bytes.
Q_DECL_EXPORT quint32 Get_MenuCount(const MenuEntry *table, quint32 size);

/// The key of the first entry with that identifier whose word is 0; null when there is none. Owned
/// by the table.
Q_DECL_EXPORT const char *Get_MenuKeyStr(qint32 identifier, const MenuEntry *table, quint32 size);
}
