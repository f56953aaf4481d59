// SPDX-License-Identifier: Apache-2.0
#include "barcodes/CodeFormats.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace barcodes {

namespace {

using ZXing::BarcodeFormat;

constexpr std::pair<BarcodeFormat, std::string_view> kNames[] = {
    {BarcodeFormat::Aztec, "Aztec Code"},
    {BarcodeFormat::Codabar, "Codabar"},
    {BarcodeFormat::Code39, "Code 39"},
    {BarcodeFormat::Code93, "Code 93"},
    {BarcodeFormat::Code128, "Code 128"},
    {BarcodeFormat::DataBar, "GS1 DataBar"},
    {BarcodeFormat::DataBarExpanded, "GS1 DataBar Expanded"},
    {BarcodeFormat::DataMatrix, "Data Matrix"},
    {BarcodeFormat::EAN8, "EAN-8"},
    {BarcodeFormat::EAN13, "EAN-13"},
    {BarcodeFormat::ITF, "ITF"},
    {BarcodeFormat::MaxiCode, "MaxiCode"},
    {BarcodeFormat::PDF417, "PDF417"},
    {BarcodeFormat::QRCode, "QR Code"},
    {BarcodeFormat::UPCA, "UPC-A"},
    {BarcodeFormat::UPCE, "UPC-E"},
    {BarcodeFormat::MicroQRCode, "Micro QR Code"},
};

} // namespace

std::string nameOf(BarcodeFormat format)
{
    const auto *found = std::find_if(std::begin(kNames), std::end(kNames),
                                     [&](const auto &pair) { return pair.first == format; });
    return found == std::end(kNames) ? std::string() : std::string(found->second);
}

BarcodeFormat formatCalled(std::string_view name)
{
    const auto *found = std::find_if(std::begin(kNames), std::end(kNames),
                                     [&](const auto &pair) { return pair.second == name; });
    return found == std::end(kNames) ? BarcodeFormat::None : found->first;
}

FoundCode foundCode(const ZXing::Result &result, const Spot &offset)
{
    FoundCode code{nameOf(result.format()), result.text(), {}, false};
    for (std::size_t i = 0; i < 4; ++i) {
        code.corners[i] = {result.position()[i].x + offset.x, result.position()[i].y + offset.y};
    }
    code.isLinear = ZXing::BarcodeFormats(BarcodeFormat::LinearCodes).testFlag(result.format());
    return code;
}

} // namespace barcodes
