// SPDX-License-Identifier: Apache-2.0
#include "resources/sample/SamplePicture.h"

#include <QPointF>

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

struct Colour
{
    double red = 0;
    double green = 0;
    double blue = 0;

    Colour operator*(double factor) const { return {red * factor, green * factor, blue * factor}; }
    Colour operator+(const Colour &other) const
    {
        return {red + other.red, green + other.green, blue + other.blue};
    }
};

struct Ball
{
    QPointF centre;
    double radius = 0;
};

// The picture is 1 high; the light comes from the upper left, in front.
constexpr double kHorizon = 0.5;
constexpr double kLight[3] = {-0.52, -0.62, 0.587};
constexpr Colour kPeel{0.95, 0.42, 0.14};
constexpr Colour kBlush{0.78, 0.12, 0.09};
constexpr Colour kPith{0.99, 0.94, 0.84};
constexpr Colour kFlesh{0.72, 0.05, 0.08};

Colour mix(const Colour &first, const Colour &second, double share)
{
    const double part = std::clamp(share, 0.0, 1.0);
    return first * (1 - part) + second * part;
}

double smoothStep(double from, double to, double value)
{
    const double part = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return part * part * (3 - 2 * part);
}

// The same number from 0 to 1 for the same cell, whatever machine draws the picture.
double cellNoise(int x, int y)
{
    quint32 bits = quint32(x) * 374761393U + quint32(y) * 668265263U;
    bits = (bits ^ (bits >> 13)) * 1274126177U;
    return double((bits ^ (bits >> 16)) & 0xffffU) / 65535.0;
}

double noise(double x, double y)
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const double across = smoothStep(0, 1, x - left);
    const double down = smoothStep(0, 1, y - top);
    const auto cell = [&](int dx, int dy) { return cellNoise(int(left) + dx, int(top) + dy); };
    const double upper = cell(0, 0) * (1 - across) + cell(1, 0) * across;
    const double lower = cell(0, 1) * (1 - across) + cell(1, 1) * across;
    return upper * (1 - down) + lower * down;
}

Colour backdrop(const QPointF &at)
{
    const Colour wall = mix({0.62, 0.63, 0.65}, {0.95, 0.95, 0.94}, at.y() / kHorizon);
    const Colour table = mix({0.86, 0.84, 0.81}, {0.98, 0.97, 0.95}, (at.y() - kHorizon) * 2);
    return mix(wall, table, smoothStep(kHorizon - 0.015, kHorizon + 0.015, at.y()));
}

// How much light a ball takes from the table: dark where it stands, fading to the lower right.
double shadow(const Ball &ball, const QPointF &at)
{
    const double foot = ball.centre.y() + ball.radius * 0.93;
    const double across = (at.x() - ball.centre.x() - ball.radius * 0.45) / (ball.radius * 1.35);
    const double down = (at.y() - foot) / (ball.radius * 0.26);
    return 0.72 * std::exp(-1.6 * (across * across + down * down));
}

Colour shadedPeel(const Ball &ball, const QPointF &at)
{
    double x = (at.x() - ball.centre.x()) / ball.radius;
    double y = (at.y() - ball.centre.y()) / ball.radius;
    const double z = std::sqrt(std::max(0.0, 1 - x * x - y * y));
    const double blush = smoothStep(0.25, 0.75, noise(x * 2.1 + 9, y * 2.1 + z * 2 + 4));
    // Dimples of the peel.
    const double turn = std::atan2(x, z + 0.35) * 17;
    const double dimple = noise(turn + 40, std::asin(std::clamp(y, -1.0, 1.0)) * 17 + 40) - 0.5;
    x += dimple * 0.075;
    y += dimple * 0.075;
    const double towards = x * kLight[0] + y * kLight[1] + z * kLight[2];
    const double diffuse = std::max(0.0, towards);
    const double gloss = std::pow(std::max(0.0, 2 * towards * z - kLight[2]), 26);
    const double bounce = 0.16 * std::max(0.0, y);
    const Colour lit = mix(kPeel, kBlush, blush) * (0.13 + bounce + 0.98 * diffuse);
    return lit + Colour{1, 0.98, 0.94} * (0.75 * gloss);
}

// The cut face of a half orange, seen from the front.
Colour cutFace(const Ball &ball, const QPointF &at)
{
    constexpr int kSegments = 10;
    const double x = (at.x() - ball.centre.x()) / ball.radius;
    const double y = (at.y() - ball.centre.y()) / ball.radius;
    const double far = std::hypot(x, y);
    const double turn = (std::atan2(y, x) / (2 * M_PI) + 1.04) * kSegments;
    const double inSegment = std::abs(turn - std::floor(turn) - 0.5) * 2;
    const double streaks = noise(turn * 9, far * 7);
    const double edge = 0.045 / std::max(far, 0.05);
    Colour flesh = mix(kFlesh * 0.62, {0.93, 0.24, 0.13}, 0.25 + 0.55 * far * streaks);
    flesh = flesh + Colour{1, 0.9, 0.85} * (0.45 * std::pow(noise(turn * 6 + 70, far * 16), 7));
    flesh = mix(flesh, kPith, smoothStep(1 - edge * 2.2, 1 - edge, inSegment));
    flesh = mix(kPith, flesh, smoothStep(0.07, 0.11, far));
    const Colour inner = mix(flesh, kPith, smoothStep(0.84, 0.87, far));
    const Colour face = mix(inner, kPeel, smoothStep(0.935, 0.955, far));
    return face * (0.94 - 0.12 * (x + y) * 0.7);
}

void over(Colour &below, const Colour &above, const Ball &ball, const QPointF &at, double pixel)
{
    const double far = std::hypot(at.x() - ball.centre.x(), at.y() - ball.centre.y());
    below = mix(below, above, (ball.radius - far) / pixel + 0.5);
}

Colour colourAt(const QPointF &at, double aspect, double pixel)
{
    const Ball back{{aspect * 0.5, 0.4}, 0.3};
    const Ball left{{aspect * 0.24, 0.52}, 0.35};
    const Ball half{{aspect * 0.76, 0.56}, 0.33};
    Colour colour = backdrop(at);
    for (const Ball &ball : {back, left, half}) {
        colour = colour * (1 - (at.y() > kHorizon - 0.1 ? shadow(ball, at) : 0));
    }
    over(colour, shadedPeel(back, at), back, at, pixel);
    over(colour, shadedPeel(left, at), left, at, pixel);
    over(colour, cutFace(half, at), half, at, pixel);
    return colour;
}

int toByte(double light)
{
    return int(std::lround(255 * std::clamp(light, 0.0, 1.0)));
}

} // namespace

QImage stillLife(const QSize &pixels)
{
    QImage image(pixels, QImage::Format_RGB32);
    const double pixel = 1.0 / pixels.height();
    const double aspect = pixels.width() * pixel;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            const Colour colour = colourAt({(x + 0.5) * pixel, (y + 0.5) * pixel}, aspect, pixel);
            image.setPixel(x, y,
                           qRgb(toByte(colour.red), toByte(colour.green), toByte(colour.blue)));
        }
    }
    return image;
}

} // namespace sample
