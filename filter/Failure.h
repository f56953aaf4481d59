// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <variant>

namespace filter {

/// What `label-ppd` answers to the shell.
enum class ExitCode
{
    Done = 0, ///< the PPD was written, or the help or version was
    Ppd = 1, ///< the PPD cannot be given the options
    Usage = 2, ///< the command line cannot be used
    File = 3 ///< a file cannot be read or written
};

/// A failure for the user. `what` names the thing, `why` is the sentence that says what is wrong
/// with it and what to do; neither ends with a full stop. Printed as "label-ppd: what: why".
struct Failure
{
    ExitCode code = ExitCode::Ppd;
    std::string what;
    std::string why;
};

/// A value, or the failure that stood in its way.
template <class T> using Result = std::variant<T, Failure>;

} // namespace filter
