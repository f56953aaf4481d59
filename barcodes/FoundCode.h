// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string>

namespace barcodes {

struct Spot
{
    int x = 0;
    int y = 0;
};

/// A code in a picture.
struct FoundCode
{
    /// The symbology as people write it.
    std::string format;
    /// UTF-8; may hold anything.
    std::string text;
    /// In pixels, clockwise from the code's own top left corner.
    std::array<Spot, 4> corners;
    bool isLinear = false;
};

} // namespace barcodes
