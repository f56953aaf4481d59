// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace filter {

/// A file in memory alone that holds `bytes` and stands at its beginning, for libraries that read
/// from a descriptor. The caller closes it. -1 when the system has no room, with the reason in
/// errno.
int memoryFile(std::string_view bytes);

} // namespace filter
