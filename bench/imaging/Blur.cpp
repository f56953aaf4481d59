// SPDX-License-Identifier: Apache-2.0
#include "imaging/Blur.h"

#include <cmath>

namespace {

std::vector<float> gauss(double width)
{
    const auto reach = int(std::ceil(3.0 * width));
    std::vector<float> weights;
    float sum = 0.0F;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(float(std::exp(-double(i * i) / (2.0 * width * width))));
        sum += weights.back();
    }
    for (float &weight : weights) {
        weight /= sum;
    }
    return weights;
}

/// Along rows; only where the whole blur lies within.
void blurRows(const std::vector<float> &from, std::size_t columns, std::size_t rows,
              const std::vector<float> &weights, std::vector<float> *to)
{
    const std::size_t reach = weights.size() / 2;
    for (std::size_t y = 0; y < rows; ++y) {
        for (std::size_t k = 0; k < weights.size(); ++k) {
            const float *source = &from[y * columns + k];
            float *target = &(*to)[y * columns + reach];
            for (std::size_t x = 0; x + 2 * reach < columns; ++x) {
                target[x] += source[x] * weights[k];
            }
        }
    }
}

void blurColumns(const std::vector<float> &from, std::size_t columns, std::size_t rows,
                 const std::vector<float> &weights, std::vector<float> *to)
{
    const std::size_t reach = weights.size() / 2;
    for (std::size_t y = reach; y + reach < rows; ++y) {
        for (std::size_t k = 0; k < weights.size(); ++k) {
            const float *source = &from[(y + k - reach) * columns];
            float *target = &(*to)[y * columns];
            for (std::size_t x = 0; x < columns; ++x) {
                target[x] += source[x] * weights[k];
            }
        }
    }
}

} // namespace

double blurredDifference(const std::vector<float> &a, const std::vector<float> &b,
                         std::size_t columns, std::size_t rows, double width)
{
    const std::vector<float> weights = gauss(width);
    const std::size_t reach = weights.size() / 2;
    std::vector<float> difference(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        difference[i] = a[i] - b[i];
    }
    std::vector<float> half(a.size());
    std::vector<float> blurred(a.size());
    blurRows(difference, columns, rows, weights, &half);
    blurColumns(half, columns, rows, weights, &blurred);
    double sum = 0.0;
    std::size_t count = 0;
    for (std::size_t y = reach; y + reach < rows; ++y) {
        for (std::size_t x = reach; x + reach < columns; ++x, ++count) {
            sum += double(blurred[y * columns + x]) * double(blurred[y * columns + x]);
        }
    }
    return count == 0 ? 0.0 : std::sqrt(sum / double(count));
}
