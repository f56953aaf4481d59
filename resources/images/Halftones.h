// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

namespace samples {

/// The three halftone methods, each from a grey picture to black and white of the same size.
QImage threshold(const QImage &grey);
QImage orderedDither(const QImage &grey);
QImage errorDiffusion(const QImage &grey);

} // namespace samples
