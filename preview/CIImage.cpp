// SPDX-License-Identifier: Apache-2.0
#include "preview/CIImage.h"

#include <algorithm>

namespace preview {

QImage toQImage(const CIImage &image)
{
    QImage result(image.width, image.height, QImage::Format_RGBA8888);
    const qsizetype rowBytes = qsizetype(image.width) * 4;
    for (int y = 0; y < result.height(); ++y) {
        const char *from = image.bytes.constData() + y * image.bytesPerRow;
        auto *to = reinterpret_cast<char *>(result.scanLine(y));
        std::copy_n(from, rowBytes, to);
        for (qsizetype x = 0; image.format == PixelFormat::ARGB8 && x < rowBytes; x += 4) {
            std::rotate(to + x, to + x + 1, to + x + 4);
        }
    }
    return result;
}

} // namespace preview
