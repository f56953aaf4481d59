// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/GraphicsOptions.h"

#include <optional>
#include <string>

#include <cups/ppd.h>

namespace filter {

/// Why the options cannot be added to `ppd` for a printer of these colours, as a sentence without a
/// full stop; nothing when they can. Leaves the defaults marked.
std::optional<std::string> reasonAgainst(ppd_file_t *ppd, Colours colours);

/// What is wrong with `ppd`, to which the options have been added, in the same words; nothing when
/// it is as it should be.
std::optional<std::string> faultOf(ppd_file_t *ppd);

} // namespace filter
