// SPDX-License-Identifier: Apache-2.0
#include "filter/RasterForm.h"

#include <algorithm>
#include <array>

namespace filter {

namespace {

/// What one colour of a pixel is for each kind of dot: full or nothing.
struct Channel
{
    bool white;
    bool black;
    bool red;
};

constexpr std::array kInk = {Channel{false, true, true}};
constexpr std::array kLight = {Channel{true, false, false}};
constexpr std::array kRgb = {Channel{true, false, true}, Channel{true, false, false},
                             Channel{true, false, false}};
constexpr std::array kCmy = {Channel{false, true, false}, Channel{false, true, true},
                             Channel{false, true, true}};
constexpr std::array kCmyk = {Channel{false, false, false}, Channel{false, false, true},
                              Channel{false, false, true}, Channel{false, true, false}};
constexpr std::array kKcmy = {Channel{false, true, false}, Channel{false, false, false},
                              Channel{false, false, true}, Channel{false, false, true}};

std::span<const Channel> channelsOf(cups_cspace_t space)
{
    switch (space) {
    case CUPS_CSPACE_K:
        return kInk;
    case CUPS_CSPACE_W:
    case CUPS_CSPACE_SW:
        return kLight;
    case CUPS_CSPACE_RGB:
    case CUPS_CSPACE_SRGB:
        return kRgb;
    case CUPS_CSPACE_CMY:
        return kCmy;
    case CUPS_CSPACE_CMYK:
        return kCmyk;
    case CUPS_CSPACE_KCMY:
        return kKcmy;
    default:
        return {};
    }
}

unsigned bitsPerPixel(const RasterForm &form)
{
    if (form.colors() == 1 || form.order != CUPS_ORDER_CHUNKED) {
        return form.bits;
    }
    // Three colours of one bit have a bit in front that is always clear.
    return form.bits == 1 ? 4 : form.bits * form.colors();
}

/// The channel of eight pixels at a time.
std::uint8_t eightOf(const Channel &channel, std::uint8_t black, std::uint8_t red)
{
    const auto white = std::uint8_t(~(black | red));
    return std::uint8_t((channel.white ? white : 0) | (channel.black ? black : 0)
                        | (channel.red ? red : 0));
}

std::uint8_t eightAt(const Channel &channel, const DotRow &dots, std::size_t i)
{
    return eightOf(channel, dots.black[i], dots.red[i]);
}

void writeApart(const RasterForm &form, const Channel &channel, const DotRow &dots,
                std::size_t width, std::span<std::uint8_t> row)
{
    if (form.bits == 1) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = eightAt(channel, dots, i);
        }
        return;
    }
    for (std::size_t x = 0; x < width; ++x) {
        row[x] = (eightAt(channel, dots, x / 8) << (x % 8) & 0x80) != 0 ? 0xff : 0;
    }
}

void writeTogether(const RasterForm &form, std::span<const Channel> channels, const DotRow &dots,
                   std::size_t width, std::span<std::uint8_t> row)
{
    std::fill(row.begin(), row.end(), std::uint8_t(0));
    for (std::size_t c = 0; c < channels.size(); ++c) {
        for (std::size_t x = 0; x < width; ++x) {
            if ((eightAt(channels[c], dots, x / 8) << (x % 8) & 0x80) == 0) {
                continue;
            }
            if (form.bits == 8) {
                row[x * channels.size() + c] = 0xff;
            } else {
                const std::size_t bit = x * 4 + 4 - channels.size() + c;
                row[bit / 8] |= std::uint8_t(0x80 >> bit % 8);
            }
        }
    }
}

} // namespace

bool RasterForm::isWritable() const
{
    return (bits == 1 || bits == 8) && !channelsOf(space).empty() && order <= CUPS_ORDER_PLANAR;
}

unsigned RasterForm::colors() const
{
    return static_cast<unsigned>(channelsOf(space).size());
}

void RasterForm::describe(cups_page_header2_t &header) const
{
    header.cupsBitsPerColor = bits;
    header.cupsBitsPerPixel = bitsPerPixel(*this);
    header.cupsColorSpace = space;
    header.cupsColorOrder = order;
    header.cupsNumColors = colors();
    header.cupsBytesPerLine = (header.cupsWidth * header.cupsBitsPerPixel + 7) / 8;
    if (order == CUPS_ORDER_BANDED) {
        header.cupsBytesPerLine *= colors();
    }
}

void RasterForm::write(const DotRow &dots, std::size_t width, unsigned plane,
                       std::span<std::uint8_t> row) const
{
    const std::span<const Channel> channels = channelsOf(space);
    if (channels.size() > 1 && order == CUPS_ORDER_CHUNKED) {
        writeTogether(*this, channels, dots, width, row);
    } else if (channels.size() > 1 && order == CUPS_ORDER_BANDED) {
        const std::size_t band = row.size() / channels.size();
        for (std::size_t c = 0; c < channels.size(); ++c) {
            writeApart(*this, channels[c], dots, width, row.subspan(c * band, band));
        }
    } else {
        writeApart(*this, channels[plane], dots, width, row);
    }
}

} // namespace filter
