// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Diagnostics.h"
#include "diagnostics/Output.h"
#include "diagnostics/Texts.h"

#include <QByteArray>

#include <algorithm>

using namespace diagnostics;

namespace {

constexpr qsizetype kBytesOfALine = 16;

bool isWanted(int level, const void *bytes, int length)
{
    return level <= 0 && bytes && length > 0;
}

/// The line that begins with byte `start`, in lower-case digits; empty behind the last byte.
QByteArray hexLine(QByteArrayView bytes, qsizetype start)
{
    return bytes.sliced(start, std::min(kBytesOfALine, bytes.size() - start)).toByteArray().toHex();
}

} // namespace

void memoryCheck(int level, const void *bytes, int length)
{
    if (!isWanted(level, bytes, length)) {
        return;
    }
    quietly([&] {
        const QByteArrayView all(static_cast<const char *>(bytes), length);
        StandardErrorOutput output;
        // Meant: after a last full line there is a "DEBUG:" with nothing behind it.
        for (qsizetype start = 0; start <= all.size(); start += kBytesOfALine) {
            output.print("DEBUG:", hexLine(all, start), "");
        }
    });
}

void memoryCheckFd(int level, int descriptor, const void *bytes, int length)
{
    if (!isWanted(level, bytes, length)) {
        return;
    }
    quietly([&] {
        const QByteArrayView all(static_cast<const char *>(bytes), length);
        DescriptorOutput output(descriptor);
        for (qsizetype start = 0; start < all.size(); start += kBytesOfALine) {
            output.write(hexLine(all, start));
            output.write("\n");
        }
    });
}
