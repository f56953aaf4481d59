// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/PDEFormatter.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

/// The notification's name and its object: a text in quotes, "formatter" or "other".
struct Refusal
{
    std::string name;
    std::string object;

    bool operator==(const Refusal &) const = default;
};

void PrintTo(const Refusal &refusal, std::ostream *out);

Refusal invalid(const std::string &object = "formatter");
Refusal formatError(const std::string &object = "formatter");

/// A formatter under test, with its beeps and notifications counted.
class FormatterTest : public testing::Test
{
protected:
    FormatterTest();
    ~FormatterTest() override;

    /// Puts `typed` in the place of the selection, as a text field does.
    bool edit(const QString &before, TextRange selection, const QString &typed);
    /// Types at the end of `before`.
    bool type(const QString &before, const QString &typed);

    /// What was posted since the last call.
    std::vector<Refusal> takeRefusals();

    PDEFormatter formatter;
    int beeps = 0;

private:
    std::vector<Refusal> mRefusals;
};
