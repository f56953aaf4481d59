// SPDX-License-Identifier: Apache-2.0
#include "imaging/TestPage.h"

#include "imaging/Grey.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::size_t kBlock = 900;

struct Color
{
    double red = 1.0;
    double green = 1.0;
    double blue = 1.0;
};

Color mixed(const Color &a, const Color &b, double part)
{
    return {a.red + (b.red - a.red) * part, a.green + (b.green - a.green) * part,
            a.blue + (b.blue - a.blue) * part};
}

double random01(std::uint32_t x, std::uint32_t y)
{
    std::uint32_t bits = x * 374761393U + y * 668265263U;
    bits = (bits ^ (bits >> 13)) * 1274126177U;
    return double((bits ^ (bits >> 16)) & 0xFFFFFFU) / double(0x1000000);
}

/// Random values at whole coordinates, smoothly joined.
double noise(double x, double y)
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const double dx = x - left;
    const double dy = y - top;
    const double wx = dx * dx * (3.0 - 2.0 * dx);
    const double wy = dy * dy * (3.0 - 2.0 * dy);
    const auto column = std::uint32_t(std::int32_t(left));
    const auto row = std::uint32_t(std::int32_t(top));
    const double above = random01(column, row) * (1.0 - wx) + random01(column + 1, row) * wx;
    const double below =
        random01(column, row + 1) * (1.0 - wx) + random01(column + 1, row + 1) * wx;
    return above * (1.0 - wy) + below * wy;
}

double cloud(double x, double y)
{
    double sum = 0.0;
    double part = 0.5;
    for (int octave = 0; octave < 6; ++octave, part *= 0.5, x *= 2.0, y *= 2.0) {
        sum += part * noise(x + octave * 17.0, y + octave * 31.0);
    }
    return sum;
}

/// A sky above hills, with a red and a grey ball in front; x and y run from 0 to 1.
Color photo(double x, double y, double seed)
{
    const double ridge = 0.55 + 0.25 * (cloud(x * 3.0 + seed, seed) - 0.5);
    Color color;
    if (y < ridge) {
        const Color sky = mixed({0.35, 0.55, 0.85}, {0.9, 0.92, 0.95}, y / ridge);
        color = mixed(sky, {1.0, 1.0, 1.0},
                      std::clamp(cloud(x * 4.0, y * 8.0 + seed) * 2.2 - 0.8, 0.0, 1.0));
    } else {
        const double grain = cloud(x * 30.0, y * 30.0 + seed);
        color = mixed({0.05, 0.12, 0.03}, {0.75, 0.7, 0.4}, grain * (y - ridge + 0.3));
    }
    for (int ball = 0; ball < 2; ++ball) {
        const double dx = (x - 0.3 - 0.4 * ball) / 0.16;
        const double dy = (y - 0.68) / 0.16;
        const double squared = dx * dx + dy * dy;
        if (squared < 1.0) {
            const double height = std::sqrt(1.0 - squared);
            const double light = std::clamp(0.15 + 0.85 * (height - dx - dy) / 1.8, 0.0, 1.0);
            color =
                ball == 0 ? Color{light, light * 0.15, light * 0.12} : Color{light, light, light};
        }
    }
    return color;
}

// 5 x 7 dots of the ten digits, a bit a dot, row by row.
constexpr std::array<std::uint64_t, 10> kDigits = {
    0x3A33AE62EULL, 0x11842108EULL, 0x3A211111FULL, 0x3A213062EULL, 0x08CA97C42ULL,
    0x7E1E0862EULL, 0x3A21E8C2EULL, 0x7C2222108ULL, 0x3A317462EULL, 0x3A318BC2EULL};

/// How much of a point of a line of type is inked. Lines grow from 2 to 4 mm, every third is red.
double inked(double x, double y)
{
    const double size = 24.0 + 8.0 * double(int(y / 60.0) % 4);
    const double dot = size / 8.0;
    const int column = int(x / dot);
    const int row = int(std::fmod(y, 60.0) / dot);
    if (column % 6 == 5 || row >= 7) {
        return 0.0;
    }
    const auto digit =
        std::size_t(random01(std::uint32_t(column / 6), std::uint32_t(y / 60.0)) * 10.0);
    return double((kDigits[digit] >> (34 - row * 5 - column % 6)) & 1U);
}

/// Type with soft edges, as programs that draw pages leave them.
Color text(double x, double y)
{
    double ink = 0.0;
    for (const double dx : {-0.375, -0.125, 0.125, 0.375}) {
        for (const double dy : {-0.375, -0.125, 0.125, 0.375}) {
            ink += inked(std::max(x + 0.5 + dx, 0.0), std::max(y + 0.5 + dy, 0.0)) / 16.0;
        }
    }
    const bool red = int(y / 60.0) % 3 == 2;
    return mixed({}, red ? Color{0.85, 0.05, 0.1} : Color{0.0, 0.0, 0.0}, ink);
}

Color colorAt(Subject subject, std::size_t width, std::size_t x, std::size_t y)
{
    const std::size_t block = y / kBlock;
    const bool isPhoto =
        subject == Subject::Photo || (subject == Subject::PhotoAndText && block % 2 == 0);
    if (isPhoto) {
        return photo(double(x) / double(width), double(y % kBlock) / double(kBlock), double(block));
    }
    return text(double(x), double(y));
}

std::uint8_t byteOf(double tone)
{
    return std::uint8_t(std::clamp(tone, 0.0, 1.0) * 255.0 + 0.5);
}

} // namespace

TestPage drawPage(Subject subject, std::size_t width, std::size_t height)
{
    TestPage page{width, height, std::vector<std::uint8_t>(width * height * 3),
                  std::vector<std::uint8_t>(width * height)};
    for (std::size_t i = 0; i < width * height; ++i) {
        const Color color = colorAt(subject, width, i % width, i / width);
        std::uint8_t *rgb = &page.rgb[i * 3];
        rgb[0] = byteOf(color.red);
        rgb[1] = byteOf(color.green);
        rgb[2] = byteOf(color.blue);
        page.grey[i] = imaging::greyOf(rgb[0], rgb[1], rgb[2]);
    }
    return page;
}
