// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace imaging {

using ToneTable = std::array<std::uint8_t, 256>;

/// A table of tones as arithmetic on 16-bit lanes, for vector units:
/// `(value * 256 * slope / 65536 + add - subtract) >> shift`, each step cut to 0 .. 65535 and the
/// result to 255.
struct FixedPointMap
{
    std::uint16_t slope = 0;
    std::uint16_t add = 0;
    std::uint16_t subtract = 0;
    std::uint16_t shift = 0;

    std::uint8_t operator()(std::uint8_t value) const;
};

/// Arithmetic that gives `table` exactly, all 256 values of it, or nothing when none was found.
/// `slope` is the steepness of the straight line that the table was made from.
std::optional<FixedPointMap> fixedPointFor(const ToneTable &table, double slope);

} // namespace imaging
