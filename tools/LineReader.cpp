// SPDX-License-Identifier: Apache-2.0
#include "tools/LineReader.h"

#include <array>
#include <cerrno>

#include <unistd.h>

namespace tools {

std::optional<LineReader::Line> LineReader::next()
{
    Line line;
    qsizetype searched = 0;
    for (;;) {
        const qsizetype end = mBuffer.indexOf('\n', searched);
        if (end >= 0) {
            line.tooLong = line.tooLong || end > kLongestLine;
            line.text = line.tooLong ? QByteArray() : mBuffer.left(end);
            mBuffer.remove(0, end + 1);
            return line;
        }
        if (mBuffer.size() > kLongestLine) {
            line.tooLong = true;
            mBuffer.clear();
        }
        searched = mBuffer.size();
        if (!fill()) {
            break;
        }
    }
    if (mBuffer.isEmpty() && !line.tooLong) {
        return std::nullopt;
    }
    line.text = line.tooLong ? QByteArray() : mBuffer;
    mBuffer.clear();
    return line;
}

bool LineReader::fill()
{
    std::array<char, 65536> bytes;
    while (!mEnded) {
        const ssize_t count = ::read(mDescriptor, bytes.data(), bytes.size());
        if (count > 0) {
            mBuffer.append(bytes.data(), qsizetype(count));
            return true;
        }
        mEnded = count == 0 || errno != EINTR;
    }
    return false;
}

} // namespace tools
