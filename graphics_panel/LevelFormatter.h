// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/PDEFormatter.h"

namespace graphics {

/// Lets through what the number of a level can be while it is typed: digits, a minus sign in front,
/// three characters in all. The bounds are the panel's business, when the number is whole.
class LevelFormatter : public PDEFormatter
{
public:
    LevelFormatter();
    ~LevelFormatter() override;

    /// Beyond the general checks: the text of the edit must be such a number's beginning. The
    /// offending character is the first one put in that cannot stand where it stands.
    bool isPartialStringValid(std::optional<QString> *partialString,
                              TextRange *proposedSelectedRange,
                              const std::optional<QString> &originalString,
                              const TextRange &originalSelectedRange,
                              std::optional<QString> *errorDescription) override;
};

} // namespace graphics
