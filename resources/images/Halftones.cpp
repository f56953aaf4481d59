// SPDX-License-Identifier: Apache-2.0
#include "resources/images/Halftones.h"

#include <vector>

namespace samples {
namespace {

constexpr int kMatrixSide = 8;

QImage blackPicture(QSize size)
{
    QImage picture(size, QImage::Format_Mono);
    picture.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    picture.fill(0U);
    return picture;
}

int greyAt(const QImage &grey, int x, int y)
{
    return grey.constScanLine(y)[x];
}

/// The dispersed-dot matrix: the bits of column xor row and of the row, interleaved in reverse, so
/// that neighbours in rank lie far apart. 0 to 63.
int rank(int x, int y)
{
    int result = 0;
    for (int bit = 0; bit < 3; ++bit) {
        const int column = (x >> bit) & 1;
        const int row = (y >> bit) & 1;
        result = result << 2 | (column ^ row) << 1 | row;
    }
    return result;
}

/// The errors that a row hands to the next one, with room for one more pixel at both ends.
using Errors = std::vector<double>;

/// One row in the direction of `step`; 7, 3, 5 and 1 sixteenths of each error go on.
void diffuseRow(const QImage &grey, int y, int step, Errors &errors, QImage &picture)
{
    Errors next(errors.size(), 0.0);
    const int width = grey.width();
    double carried = 0.0;
    for (int i = 0; i < width; ++i) {
        const int x = step > 0 ? i : width - 1 - i;
        const auto place = std::size_t(x + 1);
        const double wanted = greyAt(grey, x, y) + errors[place] + carried;
        const bool white = wanted >= 127.5;
        const double error = wanted - (white ? 255.0 : 0.0);
        picture.setPixel(x, y, white ? 1U : 0U);
        carried = error * 7.0 / 16.0;
        next[place - std::size_t(step)] += error * 3.0 / 16.0;
        next[place] += error * 5.0 / 16.0;
        next[place + std::size_t(step)] += error * 1.0 / 16.0;
    }
    errors = next;
}

} // namespace

QImage threshold(const QImage &grey)
{
    QImage picture = blackPicture(grey.size());
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            picture.setPixel(x, y, greyAt(grey, x, y) >= 128 ? 1U : 0U);
        }
    }
    return picture;
}

QImage orderedDither(const QImage &grey)
{
    QImage picture = blackPicture(grey.size());
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x) {
            const double limit = (rank(x % kMatrixSide, y % kMatrixSide) + 0.5) * 255.0 / 64.0;
            picture.setPixel(x, y, greyAt(grey, x, y) > limit ? 1U : 0U);
        }
    }
    return picture;
}

QImage errorDiffusion(const QImage &grey)
{
    QImage picture = blackPicture(grey.size());
    Errors errors(std::size_t(grey.width()) + 2, 0.0);
    for (int y = 0; y < grey.height(); ++y) {
        diffuseRow(grey, y, y % 2 == 0 ? 1 : -1, errors, picture);
    }
    return picture;
}

} // namespace samples
