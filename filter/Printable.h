// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace filter {

/// `text` with a question mark for each control character: what others wrote must neither begin a
/// line of its own in a log nor steer a terminal.
std::string printable(std::string text);

} // namespace filter
