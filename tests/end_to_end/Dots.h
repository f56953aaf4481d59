// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

/// Rows of dots as printers get them: one bit each, the first in the highest bit, 1 for ink.
using Dots = std::vector<std::uint8_t>;

inline bool isInk(const Dots &dots, std::size_t rowBytes, std::size_t x, std::size_t y)
{
    return (dots[y * rowBytes + x / 8] >> (7 - x % 8) & 1) == 1;
}

inline std::size_t inkOf(const Dots &dots)
{
    std::size_t ink = 0;
    for (const std::uint8_t byte : dots) {
        ink += static_cast<std::size_t>(std::popcount(byte));
    }
    return ink;
}

/// How many dots are other dots in `second` than in `first`; they are equally many.
inline std::size_t differences(const Dots &first, const Dots &second)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        count += static_cast<std::size_t>(std::popcount(std::uint8_t(first[i] ^ second[i])));
    }
    return count;
}

/// How many dots of `part` are not in `whole`.
inline std::size_t outside(const Dots &part, const Dots &whole)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
        count += static_cast<std::size_t>(std::popcount(std::uint8_t(part[i] & ~whole[i])));
    }
    return count;
}
