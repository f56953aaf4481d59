// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>

namespace tools {

/// Lines of a file descriptor, each as soon as it is complete.
class LineReader
{
public:
    /// More than any request needs.
    static constexpr qsizetype kLongestLine = 16 * 1024 * 1024;

    /// `descriptor` stays the caller's.
    explicit LineReader(int descriptor)
        : mDescriptor(descriptor)
    { }

    struct Line
    {
        QByteArray text;
        /// Longer than kLongestLine: the text is left out.
        bool tooLong = false;
    };

    /// The next line without its end, or nothing at the end of the input. What stands behind the
    /// last line end is a line when there is anything.
    std::optional<Line> next();

private:
    bool fill();

    int mDescriptor;
    QByteArray mBuffer;
    bool mEnded = false;
};

} // namespace tools
