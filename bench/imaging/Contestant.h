// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/TestPage.h"

#include "imaging/PagePreparation.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A page of dots, one byte each: 0 paper, 1 black, 2 red.
using DotPage = std::vector<std::uint8_t>;

/// What one run took, in milliseconds of processor time; starting a program and decoding files do
/// not count.
struct Run
{
    double dots = 0.0; ///< From pixels in memory to dots as the program keeps them.
    std::optional<double> packed; ///< Until they are bits, where that is a step of its own.
};

/// One program doing one method.
struct Contestant
{
    std::string method;
    std::string program;
    /// Does the page once. Fills `dots` when it is not null. Nothing when the program failed.
    std::function<std::optional<Run>(DotPage *dots)> run;
};

/// Processor time of this process in milliseconds.
double processorTime();

/// This library, by each method and as the settings say. `rgb` takes the page's colours.
std::vector<Contestant> ourContestants(const TestPage &page, const imaging::PageSettings &settings,
                                       bool rgb);

/// The peers that are installed. They get the page toned already, which saves them a step.
std::vector<Contestant> magickContestants(const TestPage &toned, bool twoColors);
std::vector<Contestant> programContestants(const TestPage &toned, bool twoColors,
                                           const std::string &folder);
