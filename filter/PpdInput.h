// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/Failure.h"

#include <string>

#include <sys/types.h>

namespace filter {

/// A PPD as it was read, and which file it came from.
struct PpdInput
{
    std::string text;
    dev_t device = 0;
    ino_t inode = 0;

    /// Whether the open `file` is the one that was read.
    bool isFile(int file) const;
};

/// Reads the file at `path`, or standard input for "-". A file that gzip has compressed is
/// unpacked. Larger files than 16 MiB are refused, as no PPD comes near that.
Result<PpdInput> readPpd(const std::string &path);

} // namespace filter
