// SPDX-License-Identifier: Apache-2.0
#include "resources/images/Scene.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace samples {
namespace {

constexpr int kWidth = 120;
constexpr int kHeight = 90;
constexpr int kSamplesPerSide = 8;
constexpr double kTableTop = 59.0;
constexpr double kStepsTop = 81.0;

struct Colour
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

Colour operator*(Colour colour, double factor)
{
    return {colour.red * factor, colour.green * factor, colour.blue * factor};
}

Colour operator+(Colour a, Colour b)
{
    return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

Colour mix(Colour a, Colour b, double share)
{
    const double part = std::clamp(share, 0.0, 1.0);
    return a * (1.0 - part) + b * part;
}

double distance(double x, double y)
{
    return std::sqrt(x * x + y * y);
}

bool inside(double x, double y, double left, double top, double right, double bottom)
{
    return x >= left && x < right && y >= top && y < bottom;
}

/// An even scatter of numbers from 0 to 1, one for each cell of a grid.
double scatter(int column, int row)
{
    std::uint32_t bits = std::uint32_t(column) * 0x9E3779B1U ^ std::uint32_t(row) * 0x85EBCA77U;
    bits = (bits ^ (bits >> 15)) * 0x2C1B3C6DU;
    bits = (bits ^ (bits >> 12)) * 0x297A2D39U;
    return double((bits ^ (bits >> 15)) & 0xFFFFU) / 65535.0;
}

constexpr double kSunX = 96.0;
constexpr double kSunY = 16.0;

/// 32 rays, each a turn of 360 / 32 degrees from the one before, every second one shorter.
bool onRay(double x, double y)
{
    constexpr double kCosine = 0.98078528040323044;
    constexpr double kSine = 0.19509032201612827;
    double rayX = 1.0;
    double rayY = 0.0;
    for (int ray = 0; ray < 32; ++ray) {
        const double along = x * rayX + y * rayY;
        const double beside = std::abs(x * rayY - y * rayX);
        const double end = ray % 2 == 0 ? 30.0 : 18.0;
        if (along > 10.5 && along < end && beside < 0.45) {
            return true;
        }
        const double turned = rayX * kCosine - rayY * kSine;
        rayY = rayX * kSine + rayY * kCosine;
        rayX = turned;
    }
    return false;
}

Colour sky(double x, double y)
{
    const Colour high{82, 148, 224};
    const Colour low{255, 238, 208};
    const double fromSun = distance(x - kSunX, y - kSunY);
    Colour colour = mix(high, low, y / 46.0);
    colour = mix(colour, {255, 226, 150}, 0.7 - fromSun / 40.0);
    if (onRay(x - kSunX, y - kSunY)) {
        colour = mix(colour, {255, 255, 246}, 1.0 - fromSun / 70.0);
    }
    return fromSun < 8.5 ? Colour{255, 255, 250} : colour;
}

Colour hills(double x, double y, Colour behind)
{
    const double far = 44.0 + (x - 78.0) * (x - 78.0) / 420.0;
    const double near = 49.0 + (x - 122.0) * (x - 122.0) / 620.0;
    Colour colour = behind;
    if (y > far) {
        colour = mix({104, 140, 150}, {150, 176, 160}, (y - far) / 14.0);
    }
    if (y > near) {
        const double furrow = (y - near) * (1.0 + x / 90.0);
        const bool dark = int(furrow / 2.0) % 2 == 1;
        colour = dark ? Colour{58, 98, 52} : Colour{96, 138, 66};
    }
    return colour;
}

Colour table(double x, double y)
{
    const double depth = (y - kTableTop) / (kStepsTop - kTableTop);
    const double slant = (x - 60.0) / (1.0 + depth * 0.9);
    const double plank = slant / 13.0 + 100.0;
    const double gap = std::abs(plank - std::floor(plank) - 0.5);
    const double grain = scatter(int(slant * 1.6 + 400.0), int(plank));
    Colour colour = mix({222, 172, 120}, {158, 104, 64}, depth) * (0.92 + 0.16 * grain);
    if (gap > 0.475) {
        colour = colour * 0.45;
    }
    // The shadow of the fruit, away from the sun.
    const double shadow = distance((x - 30.0) / 31.0, (y - 73.5) / 6.0);
    return colour * (shadow < 1.0 ? 0.22 + 0.78 * shadow * shadow : 1.0);
}

constexpr double kFruitX = 37.0;
constexpr double kFruitY = 47.0;
constexpr double kFruitRadius = 28.0;

/// Light from the upper right, a gleam, a darker rim, and pores in the peel.
Colour fruit(double x, double y)
{
    const double right = (x - kFruitX) / kFruitRadius;
    const double down = (y - kFruitY) / kFruitRadius;
    const double out = std::sqrt(std::max(0.0, 1.0 - right * right - down * down));
    const double light = std::max(0.0, right * 0.36 - down * 0.46 + out * 0.811);
    const double gleam = light * light * light * light;
    const double sharp = gleam * gleam * gleam * gleam;
    const double pore = scatter(int(x / 1.25), int(y / 1.25)) > 0.8 ? 0.88 : 1.0;
    const Colour lit = mix({58, 16, 4}, {255, 158, 28}, (light - 0.16) * 1.24);
    const Colour bounced{70, 40, 16};
    const Colour peel = lit * pore + bounced * std::max(0.0, down * 0.9 - out * 0.4);
    return mix(peel, {255, 253, 244}, gleam * 0.22 + sharp * sharp * 1.1);
}

/// The leaf lies where two circles overlap, from the stem up to the right.
bool onLeaf(double x, double y)
{
    return distance(x - 55.08, y - 29.37) < 20.0 && distance(x - 42.92, y + 0.37) < 20.0;
}

Colour leaf(double x, double y)
{
    const double beside = (x - 49.0) * 0.3786 + (y - 14.5) * 0.9255;
    const double along = (x - 49.0) * 0.9255 - (y - 14.5) * 0.3786;
    const double vein = (along - std::abs(beside) * 1.2) / 3.2 + 50.0;
    if (std::abs(beside) < 0.45 || vein - std::floor(vein) < 0.15) {
        return {176, 210, 112};
    }
    return beside < 0.0 ? Colour{84, 150, 54} : Colour{30, 88, 34};
}

bool onStem(double x, double y)
{
    return inside(x, y, 36.0, 15.0, 38.4, 20.5);
}

constexpr double kCardLeft = 72.0;
constexpr double kCardTop = 42.0;
constexpr double kCardRight = 114.0;
constexpr double kCardBottom = 75.0;

/// Lines of small print: words of bars a pixel high, with gaps between them.
bool onSmallPrint(int x, int y)
{
    const int line = (y - 55) / 2;
    const bool bar = y >= 55 && y < 64 && (y - 55) % 2 == 0;
    return bar && x >= 75 && x < 111 - line * 2 && scatter(x / 2, line) > 0.2;
}

bool onBarcode(int x, int y)
{
    constexpr const char kBars[] = "# # ## #  ## #  # ### # #  ## # ## #";
    return y >= 66 && y < 73 && x >= 75 && x < 111 && kBars[x - 75] == '#';
}

/// The word on the band of the card, letters of five rows.
bool onTitle(int x, int y)
{
    constexpr const char *kRows[] = {
        "### ##  ### ### # #", //
        "#   # # #   #   # #", //
        "##  ##  ##  ### ###", //
        "#   # # #     # # #", //
        "#   # # ### ### # #", //
    };
    const int column = x - 84;
    const int row = y - 45;
    return column >= 0 && column < 19 && row >= 0 && row < 5 && kRows[row][column] == '#';
}

Colour card(double x, double y)
{
    const int column = int(x);
    const int row = int(y);
    if (!inside(x, y, kCardLeft + 1, kCardTop + 1, kCardRight - 1, kCardBottom - 1)) {
        return {30, 30, 34};
    }
    if (y < 52.0) {
        return onTitle(column, row) ? Colour{255, 255, 255} : Colour{150, 14, 22};
    }
    if (onSmallPrint(column, row) || onBarcode(column, row)) {
        return {0, 0, 0};
    }
    return mix({255, 255, 255}, {232, 230, 224}, (y - 52.0) / 24.0);
}

Colour greyStep(double x)
{
    const double grey = std::floor(x / 10.0) * 255.0 / 11.0;
    return {grey, grey, grey};
}

Colour sceneAt(double x, double y)
{
    if (y >= kStepsTop) {
        return greyStep(x);
    }
    if (inside(x, y, kCardLeft, kCardTop, kCardRight, kCardBottom)) {
        return card(x, y);
    }
    if (onLeaf(x, y)) {
        return leaf(x, y);
    }
    if (distance(x - kFruitX, y - kFruitY) < kFruitRadius) {
        return fruit(x, y);
    }
    if (onStem(x, y)) {
        return {84, 58, 28};
    }
    const Colour behind = y >= kTableTop ? table(x, y) : hills(x, y, sky(x, y));
    const bool shaded = inside(x, y, kCardLeft - 2, kCardTop + 3, kCardRight - 2, kCardBottom + 2);
    return shaded ? behind * 0.4 : behind;
}

int stored(double tone)
{
    return std::clamp(int(std::floor(tone + 0.5)), 0, 255);
}

QRgb pixelAt(int x, int y)
{
    Colour sum;
    for (int part = 0; part < kSamplesPerSide * kSamplesPerSide; ++part) {
        const double right = (part % kSamplesPerSide + 0.5) / kSamplesPerSide;
        const double down = (part / kSamplesPerSide + 0.5) / kSamplesPerSide;
        sum = sum + sceneAt(x + right, y + down);
    }
    const Colour mean = sum * (1.0 / (kSamplesPerSide * kSamplesPerSide));
    return qRgb(stored(mean.red), stored(mean.green), stored(mean.blue));
}

} // namespace

QImage drawScene()
{
    QImage scene(kWidth, kHeight, QImage::Format_RGB32);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            scene.setPixel(x, y, pixelAt(x, y));
        }
    }
    return scene;
}

} // namespace samples
