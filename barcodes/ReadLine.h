// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdio>
#include <string>

namespace barcodes {

/// The next line without its end; false when there is none, or not all of it.
inline bool readLine(std::FILE *from, std::string &line)
{
    line.clear();
    for (int c = std::getc(from); c != EOF; c = std::getc(from)) {
        if (c == '\n') {
            return true;
        }
        line.push_back(char(c));
    }
    return false;
}

} // namespace barcodes
