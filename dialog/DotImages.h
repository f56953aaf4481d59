// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PageDots.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <array>

namespace dialog {

/// Which dots are shown. Red dots are shown red, whichever it is.
enum class Plates
{
    Both,
    Black,
    Red
};

/// The zoom that shows the whole label; each other one is how many pixels of the screen show a dot.
inline constexpr int kFitted = 0;
inline constexpr std::array kDotZooms{1, 2, 3, 4, 6, 8, 12, 16};

/// The pixels of a dot at one of kDotZooms. They are whole: where dots are not as wide as they are
/// high, their shorter side has `zoom` pixels and the other one the nearest number to their shape.
QSize pixelsOfDot(const QSize &resolution, int zoom);

/// All dots as a picture of `pixels`, each pixel the average of the dots under it. In any thread.
QImage averagedDots(const PageDots &dots, const QSize &pixels, Plates plates);

/// The dots of `part`, which is within the page, each of `pixelsOfDot` pixels of the full colour.
QImage enlargedDots(const PageDots &dots, const QRect &part, const QSize &pixelsOfDot,
                    Plates plates);

} // namespace dialog
