// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace filter {

/// The bytes of a file or pipe, which can be looked at before they are taken. Reading stops when
/// the job is cancelled. One thread.
class ByteSource
{
public:
    /// `file` stays the caller's.
    explicit ByteSource(int file);

    /// The next `count` bytes, without taking them; fewer when there are no more. Good until the
    /// next call. `count` is at most kLongestPeek.
    std::span<const std::uint8_t> peek(std::size_t count);

    /// Takes up to `count` bytes into `to` and says how many; 0 when there are no more.
    std::size_t take(std::uint8_t *to, std::size_t count);

    /// The number of the error that reading ended with; 0 for the end of the file.
    int error() const { return mError; }

    static constexpr std::size_t kLongestPeek = 4096;

private:
    bool fill();

    int mFile;
    int mError = 0;
    bool mIsAtEnd = false;
    std::vector<std::uint8_t> mBuffer;
    std::size_t mBegin = 0;
    std::size_t mEnd = 0;
};

} // namespace filter
