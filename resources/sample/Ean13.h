// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace sample {

/// The 13 digits of the article number that begins with the 12 digits `digits`: these and their
/// check digit. Empty for anything else than 12 digits.
QString withCheckDigit(const QString &digits);

/// The bar code of an article number as EAN-13: 95 modules of equal width, true for a bar. Empty
/// when `number` is not 13 digits with the right check digit.
std::vector<bool> ean13Modules(const QString &number);

} // namespace sample
