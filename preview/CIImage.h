// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QImage>

namespace preview {

/// The order of the four bytes of a pixel in memory. Colours are not premultiplied.
enum class PixelFormat
{
    ARGB8,
    RGBA8
};

/// A picture as plain bytes, top row first. No bytes and no size stand for no picture.
struct CIImage
{
    QByteArray bytes;
    int width = 0;
    int height = 0;
    qsizetype bytesPerRow = 0;
    PixelFormat format = PixelFormat::RGBA8;
};

/// The same picture for drawing, with its own copy of the bytes; null for no picture.
QImage toQImage(const CIImage &image);

} // namespace preview
