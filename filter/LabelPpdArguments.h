// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/Failure.h"
#include "filter/GraphicsOptions.h"

#include <string>
#include <vector>

namespace filter {

/// What the command line of `label-ppd` asks for.
struct LabelPpdArguments
{
    enum class Task
    {
        Add,
        Help,
        Version
    };

    Task task = Task::Add;
    std::string input; ///< "-" for standard input
    std::string output; ///< empty for standard output
    Colours colours = Colours::Black;
};

/// Reads the arguments behind the program's name.
Result<LabelPpdArguments> readArguments(const std::vector<std::string> &arguments);

/// What --help prints.
std::string helpText();

} // namespace filter
