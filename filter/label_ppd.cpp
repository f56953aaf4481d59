// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsPpd.h"
#include "filter/LabelPpdArguments.h"
#include "filter/PpdInput.h"
#include "filter/PpdOutput.h"
#include "filter/Printable.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iostream>

namespace {

using namespace filter;

int complain(const Failure &failure)
{
    std::cerr << printable("label-ppd: " + failure.what + ": " + failure.why) << '\n';
    return static_cast<int>(failure.code);
}

std::optional<Failure> addOptions(const LabelPpdArguments &arguments)
{
    const auto input = readPpd(arguments.input);
    if (const auto *failed = std::get_if<Failure>(&input)) {
        return *failed;
    }
    const auto &ppd = std::get<PpdInput>(input);
    const auto result = withGraphicsOptions(ppd.text, arguments.colours);
    if (const auto *refusal = std::get_if<Refusal>(&result)) {
        const bool isStream = arguments.input == "-";
        return Failure{ExitCode::Ppd, isStream ? "standard input" : arguments.input, refusal->why};
    }
    const auto &text = std::get<std::string>(result);
    return arguments.output.empty() ? printPpd(ppd, text) : writePpd(arguments.output, ppd, text);
}

int run(const LabelPpdArguments &arguments)
{
    switch (arguments.task) {
    case LabelPpdArguments::Task::Help:
        std::cout << helpText();
        break;
    case LabelPpdArguments::Task::Version:
        std::cout << "label-ppd " LABELPRINT_VERSION "\n";
        break;
    case LabelPpdArguments::Task::Add:
        if (const auto failed = addOptions(arguments)) {
            return complain(*failed);
        }
    }
    return static_cast<int>(ExitCode::Done);
}

} // namespace

int main(int argc, char **argv)
{
    try {
        const auto arguments = readArguments({argv + std::min(argc, 1), argv + argc});
        if (const auto *failed = std::get_if<Failure>(&arguments)) {
            return complain(*failed);
        }
        return run(std::get<LabelPpdArguments>(arguments));
    } catch (const std::exception &error) {
        // Of all that the standard library throws, only a lack of memory can come here.
        std::fprintf(stderr, "label-ppd: memory: %s; close other programs\n", error.what());
        return static_cast<int>(ExitCode::File);
    }
}
