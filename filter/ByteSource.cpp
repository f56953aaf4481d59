// SPDX-License-Identifier: Apache-2.0
#include "filter/ByteSource.h"

#include "filter/Cancel.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <unistd.h>

namespace filter {

namespace {

constexpr std::size_t kBuffer = 65536;

} // namespace

ByteSource::ByteSource(int file)
    : mFile(file)
    , mBuffer(kBuffer)
{ }

/// Reads what there is behind what is left.
bool ByteSource::fill()
{
    std::memmove(mBuffer.data(), mBuffer.data() + mBegin, mEnd - mBegin);
    mEnd -= mBegin;
    mBegin = 0;
    ssize_t count = -1;
    while (!mIsAtEnd && waitFor(mFile, POLLIN)) {
        count = read(mFile, mBuffer.data() + mEnd, mBuffer.size() - mEnd);
        if (count >= 0 || (errno != EINTR && errno != EAGAIN)) {
            mError = count < 0 ? errno : 0;
            break;
        }
    }
    mIsAtEnd = count <= 0;
    mEnd += mIsAtEnd ? 0 : static_cast<std::size_t>(count);
    return !mIsAtEnd;
}

std::span<const std::uint8_t> ByteSource::peek(std::size_t count)
{
    while (mEnd - mBegin < count && fill()) { }
    return {mBuffer.data() + mBegin, std::min(count, mEnd - mBegin)};
}

std::size_t ByteSource::take(std::uint8_t *to, std::size_t count)
{
    if (mBegin == mEnd && !fill()) {
        return 0;
    }
    count = std::min(count, mEnd - mBegin);
    std::memcpy(to, mBuffer.data() + mBegin, count);
    mBegin += count;
    return count;
}

} // namespace filter
