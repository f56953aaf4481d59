// SPDX-License-Identifier: Apache-2.0
#include "dialog/BarWidth.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace dialog {

namespace {

/// So many rows of the code are measured.
constexpr int kRows = 15;
/// Rows with less between their darkest and their lightest point hold no bars.
constexpr double kLeastContrast = 40;

double toneAt(const QImage &grey, const QPointF &point)
{
    const int x = std::clamp(int(std::floor(point.x())), 0, grey.width() - 1);
    const int y = std::clamp(int(std::floor(point.y())), 0, grey.height() - 1);
    return grey.constScanLine(y)[x];
}

/// The tones from `from` to `to`, one for each pixel on the way.
std::vector<double> tonesBetween(const QImage &grey, const QPointF &from, const QPointF &to)
{
    const QPointF way = to - from;
    const int count = std::max(2, int(std::lround(std::hypot(way.x(), way.y()))) + 1);
    std::vector<double> tones;
    tones.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        tones.push_back(toneAt(grey, from + way * (double(i) / (count - 1)) + QPointF(0.5, 0.5)));
    }
    return tones;
}

/// The lengths of black and of white between the first and the last edge.
void addRuns(const std::vector<double> &tones, std::vector<double> &runs)
{
    const auto [darkest, lightest] = std::minmax_element(tones.begin(), tones.end());
    if (*lightest - *darkest < kLeastContrast) {
        return;
    }
    const double middle = (*darkest + *lightest) / 2;
    std::optional<double> last;
    for (std::size_t i = 1; i < tones.size(); ++i) {
        if ((tones[i - 1] < middle) == (tones[i] < middle)) {
            continue;
        }
        const double edge = double(i - 1) + (middle - tones[i - 1]) / (tones[i] - tones[i - 1]);
        if (last) {
            runs.push_back(edge - *last);
        }
        last = edge;
    }
}

} // namespace

double narrowestBar(const QImage &grey, const Barcode &code)
{
    std::vector<double> runs;
    const auto [topLeft, topRight, bottomRight, bottomLeft] = code.corners;
    for (int row = 1; row <= kRows; ++row) {
        const double part = double(row) / (kRows + 1);
        const QPointF left = QPointF(topLeft) + QPointF(bottomLeft - topLeft) * part;
        const QPointF right = QPointF(topRight) + QPointF(bottomRight - topRight) * part;
        addRuns(tonesBetween(grey, left, right), runs);
    }
    if (runs.empty()) {
        return 0;
    }
    // A few runs are too short because of the pixels' grid; the fifth part is sure to be narrow.
    std::sort(runs.begin(), runs.end());
    const double narrow = runs[runs.size() / 5];
    double sum = 0;
    int count = 0;
    for (const double run : runs) {
        if (run < 1.5 * narrow && run > 0.5 * narrow) {
            sum += run;
            ++count;
        }
    }
    return count > 0 ? sum / count : narrow;
}

} // namespace dialog
