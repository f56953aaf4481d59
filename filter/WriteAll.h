// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace filter {

/// Writes all of `bytes`, in as many pieces as it takes. No when that fails, with the reason in
/// errno.
bool writeAll(int file, std::string_view bytes);

} // namespace filter
