// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include <string>

/// A code in black on white with its quiet zone, `module` pixels for each module; bars are 50
/// modules high. `format` as people write it ("QR Code"). Null when the text cannot be written.
QImage codePicture(const std::string &format, const std::string &text, int module);
