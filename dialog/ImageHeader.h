// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DocumentKind.h"

#include <QByteArray>
#include <QSizeF>

#include <optional>

namespace dialog {

/// The resolution of a picture as its file states it, in dots per inch (across, down); nothing when
/// the file states none. `page` counts the pictures of a TIFF file from 0.
///
/// Read from the file because a decoded picture without one has the screen's.
std::optional<QSizeF> imageResolutionOf(DocumentKind kind, const QByteArray &content, int page = 0);

/// Whether a TIFF file says that it has more pictures than there are: its end is missing.
bool isTiffCutShort(const QByteArray &content);

} // namespace dialog
