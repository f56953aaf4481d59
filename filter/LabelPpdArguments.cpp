// SPDX-License-Identifier: Apache-2.0
#include "filter/LabelPpdArguments.h"

#include <optional>
#include <string_view>

namespace filter {

namespace {

constexpr std::string_view kLongOutput = "--output=";

Failure usage(const std::string &what, const std::string &why)
{
    return {ExitCode::Usage, what, why};
}

/// The arguments one after the other.
class Reader
{
public:
    explicit Reader(const std::vector<std::string> &arguments)
        : mArguments(arguments)
    { }

    Result<LabelPpdArguments> read()
    {
        while (mNext < mArguments.size()) {
            if (auto failed = take(mArguments[mNext++])) {
                return *failed;
            }
            if (mLine.task != LabelPpdArguments::Task::Add) {
                return mLine;
            }
        }
        if (mLine.input.empty()) {
            return usage("PPD", "name the PPD that gets the options, or - for standard input");
        }
        return mLine;
    }

private:
    std::optional<Failure> take(const std::string &argument)
    {
        if (mIsFilesOnly || argument == "-" || argument.substr(0, 1) != "-") {
            return takeInput(argument);
        }
        if (argument == "--") {
            mIsFilesOnly = true;
        } else if (argument == "-h" || argument == "--help") {
            mLine.task = LabelPpdArguments::Task::Help;
        } else if (argument == "--version") {
            mLine.task = LabelPpdArguments::Task::Version;
        } else if (argument == "--two-colour") {
            mLine.colours = Colours::BlackAndRed;
        } else if (argument == "-o" || argument == "--output") {
            return takeOutput(argument, mNext < mArguments.size() ? mArguments[mNext++] : "");
        } else if (argument.compare(0, kLongOutput.size(), kLongOutput) == 0) {
            return takeOutput("--output", argument.substr(kLongOutput.size()));
        } else {
            return usage(argument, "there is no such option; label-ppd --help lists them");
        }
        return {};
    }

    std::optional<Failure> takeInput(const std::string &argument)
    {
        if (argument.empty()) {
            return usage("PPD", "the name is empty; name a PPD, or - for standard input");
        }
        if (!mLine.input.empty()) {
            return usage(argument, "one PPD at a time; " + mLine.input + " is named already");
        }
        mLine.input = argument;
        return {};
    }

    std::optional<Failure> takeOutput(const std::string &option, const std::string &file)
    {
        if (file.empty()) {
            return usage(option, "name the file that the result goes to");
        }
        if (!mLine.output.empty()) {
            return usage(option,
                         "the result goes to one file; " + mLine.output + " is named already");
        }
        mLine.output = file;
        return {};
    }

    const std::vector<std::string> &mArguments;
    std::size_t mNext = 0;
    bool mIsFilesOnly = false;
    LabelPpdArguments mLine;
};

} // namespace

Result<LabelPpdArguments> readArguments(const std::vector<std::string> &arguments)
{
    return Reader(arguments).read();
}

std::string helpText()
{
    return R"(Usage: label-ppd [OPTION]... PPD

Adds the options of the Graphics panel (halftone, brightness, contrast, bi-directional printing,
colour mode, red level) to the PPD of a label printer, and has the filter labelgraphics prepare
each page. The PPD itself stays as it is. A PPD of - stands for standard input; one that gzip has
compressed is unpacked.

  -o, --output FILE  write the result to FILE, not to standard output
      --two-colour   the printer prints black and red
  -h, --help         print this text
      --version      print the version

Exit status: 0 done, 1 the PPD cannot be given the options, 2 the command line cannot be used,
3 a file cannot be read or written.
)";
}

} // namespace filter
