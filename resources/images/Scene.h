// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

namespace samples {

/// The sample scene: an orange and its label on a table under the morning sun, above a row of grey
/// steps. 120 x 90 pixels, every tone from black to white, lines down to a pixel.
/// Drawn with arithmetic alone, so that it comes out the same on every machine.
QImage drawScene();

} // namespace samples
