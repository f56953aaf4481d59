// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/BarcodeReader.h"

namespace dialog {

/// How wide the narrowest bars and gaps of `code` are, in pixels of `grey` (Format_Grayscale8)
/// along the code's own rows; 0 where there are none. For a code in two dimensions, the width of
/// its modules. Pixels between black and white count in parts.
double narrowestBar(const QImage &grey, const Barcode &code);

} // namespace dialog
