// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/LabelDocuments.h"

#include <set>
#include <string>
#include <utility>

#include <ZXing/ReadBarcode.h>

/// Formats and texts of codes.
using CodeTexts = std::set<std::pair<std::string, std::string>>;

inline CodeTexts textsOf(const std::vector<LabelCode> &codes)
{
    CodeTexts texts;
    for (const LabelCode &code : codes) {
        texts.insert({code.format.toStdString(), code.text.toStdString()});
    }
    return texts;
}

/// What a scanner reads at the codes' places, in a picture `scale` times as large as the document.
/// One by one: reading the whole picture finds a row of bars at several scales, which makes an
/// assertion of ZXing 1.4 end the program.
inline CodeTexts scanned(const QImage &picture, const std::vector<LabelCode> &codes, int scale = 1)
{
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    constexpr int kQuiet = 14;
    CodeTexts texts;
    for (const LabelCode &code : codes) {
        const QRect place = code.place.adjusted(-kQuiet, -kQuiet, kQuiet, kQuiet);
        const QImage part = grey.copy(
            QRect(place.topLeft() * scale, place.size() * scale).intersected(grey.rect()));
        const ZXing::ImageView view(part.constBits(), part.width(), part.height(),
                                    ZXing::ImageFormat::Lum, static_cast<int>(part.bytesPerLine()));
        const auto result = ZXing::ReadBarcode(view);
        texts.insert({ToString(result.format()), result.text()});
    }
    return texts;
}
