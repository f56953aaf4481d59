// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QString>

class QWidget;

namespace platform {
class Bundle;
}

namespace preview {

/// The image resource called `name`; null when the bundle has none or it cannot be read.
QImage loadSample(const platform::Bundle &bundle, const QString &name);

/// The size of a widget for a view with this frame: whole points, none below 0.
QSize widgetSize(const QRectF &frame);

/// Draws the whole image at its own size, one point in from the view's lower-left corner. What does
/// not fit is clipped at the top and at the right. Only while the view is painted.
void drawSample(QWidget *view, const QImage &image);

} // namespace preview
