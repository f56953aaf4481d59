// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "barcodes/FoundCode.h"

#include <string>
#include <string_view>

#include <ZXing/ReadBarcode.h>

namespace barcodes {

/// What people call `format`: "EAN-13", "QR Code".
std::string nameOf(ZXing::BarcodeFormat format);

/// The format with that name; None for other names.
ZXing::BarcodeFormat formatCalled(std::string_view name);

/// `result`, with its place moved by `offset`.
FoundCode foundCode(const ZXing::Result &result, const Spot &offset);

} // namespace barcodes
