// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/GraphicsOptions.h"

#include <string>
#include <string_view>
#include <variant>

namespace filter {

/// Why a PPD cannot be given the options: a sentence without a full stop.
struct Refusal
{
    std::string why;
};

/// The text of the PPD `text` with the options of the Graphics panel added before the comments at
/// its end. All bytes of `text` are in the result, in their order; the added lines end as its first
/// line does. libcups opens the result and finds the options in it.
std::variant<std::string, Refusal> withGraphicsOptions(std::string_view text, Colours colours);

} // namespace filter
