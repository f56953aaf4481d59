// SPDX-License-Identifier: Apache-2.0
#include "preview/SamplePicture.h"

#include "platform/Bundle.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace preview {
namespace {

constexpr double kInset = 1.0;

int widgetSide(double points)
{
    // A side that is no number compares false with everything and is taken as 0.
    return points > 0.0 ? int(std::lround(std::min(points, double(QWIDGETSIZE_MAX)))) : 0;
}

} // namespace

QImage loadSample(const platform::Bundle &bundle, const QString &name)
{
    const std::optional<QString> path = bundle.pathForImageResource(name);
    return path ? QImage(*path) : QImage();
}

QSize widgetSize(const QRectF &frame)
{
    return {widgetSide(frame.width()), widgetSide(frame.height())};
}

void drawSample(QWidget *view, const QImage &image)
{
    QPainter painter(view);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Frames count from the lower edge, the painter from the upper one.
    const double top = view->height() - kInset - image.deviceIndependentSize().height();
    painter.drawImage(QPointF(kInset, top), image);
}

} // namespace preview
