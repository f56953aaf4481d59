// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include <cups/ppd.h>

/// One choice of a PPD option, with its titles.
///
/// Borrows the record of the open PPD, which outlives every object made here. Two objects are the
/// same choice when they are the same object or wrap the same record; titles may repeat.
class PDEChoice
{
public:
    /// initWithChoice:
    explicit PDEChoice(ppd_choice_t *choice);

    static std::shared_ptr<PDEChoice> choiceWithChoice(ppd_choice_t *choice);

    /// The translation text, always read as UTF-8; nothing when it is not valid UTF-8.
    /// Made on first use and kept, also when the PPD is given other translations later.
    std::optional<QString> userTitle() const;

    /// The keyword; nothing when it is not ASCII. Made on first use and kept.
    std::optional<QString> ppdTitle() const;

    ppd_choice_t *choice() const { return mChoice; }

    /// Whether the option names this keyword as its default, letter case included.
    bool isDefaultChoice() const;

    /// One line for people who read logs.
    QString description() const;

private:
    mutable std::optional<QString> mUserTitle;
    mutable std::optional<QString> mPPDTitle;
    ppd_choice_t *mChoice = nullptr;
};

/// Choices in the order of the PPD, shared so that one of them can be held as a selection.
using ChoiceList = std::vector<std::shared_ptr<PDEChoice>>;
