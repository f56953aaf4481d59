// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class QWidget;

// Frames of views in their superview, counted from its bottom left corner upwards. This is the one
// place that turns them into Qt's geometry, which counts from the top left corner downwards.
//
// A view that was given a frame keeps it, bottom left corner and size, when its superview changes
// size. A view that was never given one stays where Qt has it, pinned to the top. A layout, or
// anybody else, that moves a view with a frame gives it a new one.
//
// A missing view has the zero rectangle as frame, and nothing happens to it. Negative sizes count
// as 0.

namespace platform {

/// A view without a superview that was never given a frame stands at (0, 0).
PLATFORM_EXPORT QRectF frame(const QWidget *view);
PLATFORM_EXPORT void setFrame(QWidget *view, const QRectF &frame);
PLATFORM_EXPORT void setFrameOrigin(QWidget *view, const QPointF &origin);
/// A view without a superview that was never given a frame just takes the size.
PLATFORM_EXPORT void setFrameSize(QWidget *view, const QSizeF &size);

/// Puts `with` into the place of `old` among the subviews of `superview`, shows it at its own
/// frame and deletes `old`. Nothing happens when `old` is no subview of `superview`.
PLATFORM_EXPORT void replaceSubview(QWidget *superview, QWidget *old, QWidget *with);

} // namespace platform
