// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "barcodes/FoundCode.h"

#include <functional>
#include <vector>

#include <ZXing/ReadBarcode.h>

namespace barcodes {

/// One step of the search through a picture. It may end the process.
using SearchStep = std::function<std::vector<FoundCode>()>;

/// What to do to find all codes in `picture`, which outlives the steps: those of `format`, which
/// then fill most of the picture, or of every format (None), which stand anywhere. Two steps may
/// find the same code.
std::vector<SearchStep> searchSteps(const ZXing::ImageView &picture, ZXing::BarcodeFormat format);

} // namespace barcodes
