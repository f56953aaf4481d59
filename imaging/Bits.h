// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>

namespace imaging {

/// Each byte with its bits in the other order: vector units give the first pixel's dot in the least
/// significant bit, printers want it in the most significant one.
constexpr std::array<std::uint8_t, 256> kReversed = [] {
    std::array<std::uint8_t, 256> reversed{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            reversed[byte] |= std::uint8_t(((byte >> bit) & 1U) << (7 - bit));
        }
    }
    return reversed;
}();

} // namespace imaging
