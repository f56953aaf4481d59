// SPDX-License-Identifier: Apache-2.0
#include "filter/WriteAll.h"

#include <cerrno>

#include <unistd.h>

namespace filter {

bool writeAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return true;
}

} // namespace filter
