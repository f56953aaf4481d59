// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace filter {

/// `english` (a title of the added options) in `language` (as *cupsLanguages spells it), in UTF-8.
/// The English text itself when there is no translation.
std::string_view translated(std::string_view english, std::string_view language);

} // namespace filter
