// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/Failure.h"
#include "filter/PpdInput.h"

#include <optional>
#include <string>
#include <string_view>

namespace filter {

/// Writes `text` to the file at `path`, which is there whole afterwards, or after a failure as it
/// was before. Refuses to write over `input`, and over anything that is not an ordinary file.
std::optional<Failure> writePpd(const std::string &path, const PpdInput &input,
                                std::string_view text);

/// Writes `text` to standard output. Refuses when that goes into the file of `input`.
std::optional<Failure> printPpd(const PpdInput &input, std::string_view text);

} // namespace filter
