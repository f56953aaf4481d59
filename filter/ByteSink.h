// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace filter {

/// Bytes on their way into a file or pipe. Writing stops when the job is cancelled. One thread; the
/// process must ignore SIGPIPE.
class ByteSink
{
public:
    /// `file` stays the caller's.
    explicit ByteSink(int file);

    /// Writes the bytes, now or later. No when writing has failed or the job is cancelled.
    bool put(const std::uint8_t *bytes, std::size_t count);

    /// Writes what is left of them.
    bool flush();

    /// The number of the error that writing failed with, or 0.
    int error() const { return mError; }

private:
    int mFile;
    int mError = 0;
    std::vector<std::uint8_t> mBuffer;
};

} // namespace filter
