// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

/// How far two pictures differ for an eye at a distance: the root mean square of their difference
/// after a Gaussian blur whose standard deviation is `width` pixels. Without the outermost 3
/// widths.
double blurredDifference(const std::vector<float> &a, const std::vector<float> &b,
                         std::size_t columns, std::size_t rows, double width);
