// SPDX-License-Identifier: Apache-2.0
#include "barcodes/CodeSearch.h"

#include "barcodes/BarFinder.h"
#include "barcodes/CodeFormats.h"
#include "barcodes/InkIslands.h"

namespace barcodes {

namespace {

using ZXing::BarcodeFormat;
using ZXing::BarcodeFormats;
using ZXing::ImageView;

// The library finds these anywhere in a picture, the other fields of modules in its middle alone.
constexpr BarcodeFormats kFoundAnywhere =
    BarcodeFormats(BarcodeFormat::QRCode) | BarcodeFormat::PDF417;
constexpr BarcodeFormats kFoundInTheMiddle = BarcodeFormats(BarcodeFormat::DataMatrix)
    | BarcodeFormat::Aztec | BarcodeFormat::MaxiCode | BarcodeFormat::MicroQRCode;

BarcodeFormats among(BarcodeFormats formats, BarcodeFormat wanted)
{
    return wanted == BarcodeFormat::None ? formats : formats & wanted;
}

std::vector<FoundCode> fieldsIn(const ImageView &picture, const Part &part, BarcodeFormats formats)
{
    ZXing::DecodeHints hints;
    hints.setFormats(formats);
    std::vector<FoundCode> codes;
    const ImageView view = picture.cropped(part.left, part.top, part.width, part.height);
    for (const ZXing::Result &result : ZXing::ReadBarcodes(view, hints)) {
        if (result.isValid()) {
            codes.push_back(foundCode(result, {part.left, part.top}));
        }
    }
    return codes;
}

std::vector<FoundCode> barsIn(const ImageView &picture, BarcodeFormats formats, bool turned)
{
    if (!turned) {
        return BarFinder(formats).find(picture);
    }
    std::vector<FoundCode> codes = BarFinder(formats).find(picture.rotated(90));
    for (FoundCode &code : codes) {
        for (Spot &corner : code.corners) {
            corner = {corner.y, picture.height() - 1 - corner.x};
        }
    }
    return codes;
}

} // namespace

std::vector<SearchStep> searchSteps(const ImageView &picture, BarcodeFormat format)
{
    std::vector<SearchStep> steps;
    const Part all{0, 0, picture.width(), picture.height()};
    const bool oneFormat = format != BarcodeFormat::None;
    const BarcodeFormats anywhere =
        among(oneFormat ? BarcodeFormats(BarcodeFormat::MatrixCodes) : kFoundAnywhere, format);
    if (!anywhere.empty()) {
        steps.emplace_back([=] { return fieldsIn(picture, all, anywhere); });
    }
    if (const BarcodeFormats bars = among(BarcodeFormat::LinearCodes, format); !bars.empty()) {
        steps.emplace_back([=] { return barsIn(picture, bars, false); });
        steps.emplace_back([=] { return barsIn(picture, bars, true); });
    }
    if (!oneFormat) {
        for (const Part &part : inkIslands(picture)) {
            steps.emplace_back([=] { return fieldsIn(picture, part, kFoundInTheMiddle); });
        }
    }
    return steps;
}

} // namespace barcodes
