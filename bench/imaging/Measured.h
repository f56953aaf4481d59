// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

/// What a program needed.
struct Needed
{
    double milliseconds = 0.0; ///< Of processor time, children's included.
    long kibibytes = 0; ///< The largest resident set of one process.
};

/// Runs a shell command, its output going to the file `out`. Nothing when it fails.
std::optional<Needed> measured(const std::string &command, const std::string &out);
