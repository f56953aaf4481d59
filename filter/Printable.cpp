// SPDX-License-Identifier: Apache-2.0
#include "filter/Printable.h"

#include <algorithm>

namespace filter {

std::string printable(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7f; }, '?');
    return text;
}

} // namespace filter
