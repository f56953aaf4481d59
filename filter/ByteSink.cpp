// SPDX-License-Identifier: Apache-2.0
#include "filter/ByteSink.h"

#include "filter/Cancel.h"

#include <algorithm>
#include <cerrno>
#include <climits>

#include <poll.h>
#include <unistd.h>

namespace filter {

namespace {

/// A pipe that is ready takes so much without blocking, so that a cancel is never waited out.
constexpr std::size_t kPiece = PIPE_BUF;

} // namespace

ByteSink::ByteSink(int file)
    : mFile(file)
{
    mBuffer.reserve(kPiece);
}

bool ByteSink::put(const std::uint8_t *bytes, std::size_t count)
{
    while (count > 0) {
        const std::size_t part = std::min(count, kPiece - mBuffer.size());
        mBuffer.insert(mBuffer.end(), bytes, bytes + part);
        bytes += part;
        count -= part;
        if (mBuffer.size() == kPiece && !flush()) {
            return false;
        }
    }
    return mError == 0;
}

bool ByteSink::flush()
{
    std::size_t done = 0;
    while (done < mBuffer.size()) {
        if (mError != 0 || !waitFor(mFile, POLLOUT)) {
            return false;
        }
        const ssize_t count = write(mFile, mBuffer.data() + done, mBuffer.size() - done);
        if (count < 0 && errno != EINTR && errno != EAGAIN) {
            mError = errno;
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    mBuffer.clear();
    return true;
}

} // namespace filter
