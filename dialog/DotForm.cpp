// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotForm.h"

namespace dialog {

namespace {

constexpr double kPointsPerInch = 72;

} // namespace

QRectF DotForm::inDots(const QRectF &rectangle) const
{
    const double across = resolution.width() / kPointsPerInch;
    const double down = resolution.height() / kPointsPerInch;
    return {(rectangle.x() - origin.x()) * across, (rectangle.y() - origin.y()) * down,
            rectangle.width() * across, rectangle.height() * down};
}

bool DotForm::hasGridOf(const DotForm &other) const
{
    return resolution == other.resolution && dots == other.dots && origin == other.origin
        && format() == other.format();
}

} // namespace dialog
