// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QSize>

namespace sample {

/// A still life of two blood oranges and a half one: soft shadows, shaded balls, fine detail and
/// strong red, so that every setting of how a picture is printed has something to show.
QImage stillLife(const QSize &pixels);

} // namespace sample
