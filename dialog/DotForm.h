// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/PageSettings.h"

#include <QRectF>
#include <QSize>

namespace dialog {

/// How a printer makes a label of dots: the settings of the job and the grid of the dots. A value.
struct DotForm
{
    imaging::PageSettings settings;
    /// Dots per inch, across and down; they may differ.
    QSize resolution;
    /// The dots of a label, across and down.
    QSize dots;
    /// The top left corner of the first dot, in points from the top left corner of the label.
    QPointF origin;

    /// 8-bit grey for one colour, else red, green and blue.
    imaging::InputFormat format() const
    {
        return settings.colorMode == imaging::ColorMode::BlackRed ? imaging::InputFormat::Rgb24
                                                                  : imaging::InputFormat::Gray8;
    }

    /// `rectangle`, in points on the label, in dots from the first one.
    QRectF inDots(const QRectF &rectangle) const;

    /// Whether pixels that were rendered for `other` serve for this, too: only the settings of
    /// preparation differ.
    bool hasGridOf(const DotForm &other) const;

    bool operator==(const DotForm &other) const = default;
};

} // namespace dialog
