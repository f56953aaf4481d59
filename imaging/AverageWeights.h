// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace imaging {

/// How much each dot of a line counts for each pixel of a picture of that line.
///
/// A pixel that is larger than a dot sees its own length of the line and, less and less, as much
/// again around it; at least two dots, so that nothing is left of the finest patterns that dots can
/// make. A pixel that is not larger than a dot sees its own length and nothing else. What lies
/// outside of the line is left out.
class AverageWeights
{
public:
    /// What the weights of each pixel sum up to: so much that sums of dots fit into 16 bits.
    static constexpr std::int32_t kOne = 32767;

    /// The weights of a pixel are a multiple of so many, so that they can be taken together.
    static constexpr std::size_t kGroup = 8;

    AverageWeights(std::size_t dots, std::size_t pixels);

    std::size_t pixels() const { return mPixels.size(); }

    /// The first dot that pixel `i` sees, and the one behind the last. Neither falls from one pixel
    /// to the next.
    std::size_t first(std::size_t i) const { return mPixels[i].first; }
    std::size_t end(std::size_t i) const { return mPixels[i].first + mPixels[i].count; }

    /// The weights of the dots from first(i) on; zeros for those behind the last one.
    std::span<const std::int16_t> of(std::size_t i) const
    {
        return {mWeights.data() + mPixels[i].place, mPixels[i].groups * kGroup};
    }

    /// How many pixels see one dot at most.
    std::size_t mostPixelsOfADot() const;

private:
    struct Pixel
    {
        std::size_t first = 0;
        std::size_t count = 0;
        /// Of its first weight.
        std::size_t place = 0;
        std::size_t groups = 0;
    };

    std::vector<Pixel> mPixels;
    std::vector<std::int16_t> mWeights;
};

} // namespace imaging
