// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/PagePreparation.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <random>
#include <span>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

/// Dots of a page, one byte each: 1 is ink.
struct Dots
{
    Bytes black;
    Bytes red;
};

/// One bit of each packed row as one byte. `height` rows of (width + 7) / 8 bytes.
inline Bytes unpacked(const Bytes &packed, std::size_t width, std::size_t height)
{
    Bytes dots;
    const std::size_t rowBytes = (width + 7) / 8;
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            dots.push_back((packed[y * rowBytes + x / 8] >> (7 - x % 8)) & 1);
        }
    }
    return dots;
}

/// The dots of a whole page; `pixels` are rows of `width`.
inline Dots prepared(const imaging::PageSettings &settings, const Bytes &pixels, std::size_t width,
                     imaging::InputFormat format,
                     imaging::ProcessorPath path = imaging::fastestPath())
{
    imaging::PagePreparation page(settings, width, format, path);
    const std::size_t height = pixels.size() / page.inputRowBytes();
    Bytes black(height * page.outputRowBytes());
    Bytes red(black.size());
    EXPECT_TRUE(page.rows(pixels, black, red));
    return {unpacked(black, width, height), unpacked(red, width, height)};
}

/// The part of the places that have a dot.
inline double inkedPart(std::span<const std::uint8_t> dots)
{
    std::size_t count = 0;
    for (const std::uint8_t dot : dots) {
        count += dot;
    }
    return double(count) / double(dots.size());
}

inline Bytes randomBytes(std::mt19937 *random, std::size_t count)
{
    Bytes bytes(count);
    for (std::uint8_t &byte : bytes) {
        byte = std::uint8_t((*random)());
    }
    return bytes;
}

/// `count` pixels of one colour.
inline Bytes pixelsOf(std::initializer_list<int> color, std::size_t count)
{
    Bytes pixels;
    for (std::size_t i = 0; i < count; ++i) {
        for (const int byte : color) {
            pixels.push_back(std::uint8_t(byte));
        }
    }
    return pixels;
}

namespace imaging {

inline void PrintTo(ProcessorPath path, std::ostream *out)
{
    constexpr const char *kNames[] = {"Plain", "Sse2", "Avx2"};
    *out << kNames[int(path)];
}

inline void PrintTo(HalftoneMethod method, std::ostream *out)
{
    constexpr const char *kNames[] = {"Binary", "Dither", "ErrorDiffusion"};
    *out << kNames[int(method)];
}

inline void PrintTo(ColorMode mode, std::ostream *out)
{
    *out << (mode == ColorMode::Monochrome ? "Monochrome" : "BlackRed");
}

inline void PrintTo(InputFormat format, std::ostream *out)
{
    *out << (format == InputFormat::Gray8 ? "Gray8" : "Rgb24");
}

} // namespace imaging
