// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace dialog {

/// An option and the choice for it, by keyword: of a PPD, or a general one of the print system.
struct OptionChoice
{
    QString option;
    QString choice;

    bool operator==(const OptionChoice &) const = default;
};

/// In the order in which they were made.
using OptionChoices = std::vector<OptionChoice>;

} // namespace dialog
