// SPDX-License-Identifier: Apache-2.0
#include "imaging/AverageWeights.h"

#include <algorithm>
#include <cmath>

namespace imaging {
namespace {

/// A window of length `pixel`, blurred over a length of `around`; both in dots.
struct Window
{
    double pixel = 1;
    double around = 0;

    double reach() const { return (pixel + around) / 2; }

    /// The part of the window left of `x`, counted from its middle.
    double leftOf(double x) const
    {
        if (around <= 0) {
            return std::clamp(x / pixel + 0.5, 0.0, 1.0);
        }
        const double outer = reach();
        const double inner = std::abs(pixel - around) / 2;
        const auto area = [x](double from) {
            const double beyond = std::max(0.0, x - from);
            return beyond * beyond;
        };
        const double whole = area(-outer) - area(-inner) - area(inner) + area(outer);
        return std::clamp(whole / (2 * pixel * around), 0.0, 1.0);
    }
};

} // namespace

AverageWeights::AverageWeights(std::size_t dots, std::size_t pixels)
    : mPixels(pixels)
{
    if (dots == 0) {
        return;
    }
    const double length = double(dots) / double(pixels);
    const Window window{length, length > 1 ? std::max(2.0, length) : 0.0};
    for (std::size_t i = 0; i < pixels; ++i) {
        const double middle = (double(i) + 0.5) * length;
        const double lowest = std::max(0.0, std::floor(middle - window.reach()));
        const auto first = std::min(std::size_t(lowest), dots - 1);
        const auto end =
            std::clamp(std::size_t(std::ceil(middle + window.reach())), first + 1, dots);
        mPixels[i] = {first, end - first, mWeights.size(), (end - first + kGroup - 1) / kGroup};
        const double before = window.leftOf(double(first) - middle);
        const double seen = window.leftOf(double(end) - middle) - before;
        // Sums are rounded, not weights, so that all of them make one.
        std::int32_t given = 0;
        for (std::size_t dot = first; dot < end; ++dot) {
            const double part = (window.leftOf(double(dot + 1) - middle) - before) / seen;
            const auto sum = std::int32_t(std::lround(part * kOne));
            mWeights.push_back(std::int16_t(sum - given));
            given = sum;
        }
        mWeights.resize(mPixels[i].place + mPixels[i].groups * kGroup);
    }
}

std::size_t AverageWeights::mostPixelsOfADot() const
{
    std::size_t most = 0;
    std::size_t from = 0;
    for (std::size_t i = 0; i < pixels(); ++i) {
        while (from < i && end(from) <= first(i)) {
            ++from;
        }
        most = std::max(most, i - from + 1);
    }
    return most;
}

} // namespace imaging
