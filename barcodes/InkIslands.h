// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <ZXing/ImageView.h>

namespace barcodes {

/// A part of a picture, in pixels.
struct Part
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Part &other) const = default;
};

/// Where ink stands together with paper all around it, as a code does, with the paper at the edge:
/// small fields first. Looked for with several widths of paper, since nobody knows how large the
/// modules are; what is too small, too long or too full for a field of modules is left out.
std::vector<Part> inkIslands(const ZXing::ImageView &picture);

} // namespace barcodes
