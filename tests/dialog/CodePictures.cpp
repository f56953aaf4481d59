// SPDX-License-Identifier: Apache-2.0
#include "CodePictures.h"

#include <algorithm>
#include <exception>

#include <ZXing/BitMatrix.h>
#include <ZXing/MultiFormatWriter.h>

QImage codePicture(const std::string &format, const std::string &text, int module)
{
    std::string name = format;
    std::erase(name, ' ');
    if (name == "AztecCode") {
        name = "Aztec";
    }
    const ZXing::BarcodeFormat kind = ZXing::BarcodeFormatFromString(name);
    const bool isLinear = ZXing::BarcodeFormats(ZXing::BarcodeFormat::LinearCodes).testFlag(kind);
    ZXing::BitMatrix modules;
    try {
        modules = ZXing::MultiFormatWriter(kind).setMargin(10).encode(text, 1, isLinear ? 50 : 1);
    } catch (const std::exception &) {
        return {};
    }
    QImage image(modules.width(), modules.height(), QImage::Format_Grayscale8);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.scanLine(y)[x] = modules.get(x, y) ? 0 : 255;
        }
    }
    return image.scaled(image.size() * module);
}
