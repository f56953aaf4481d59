// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace sample {

/// A slice of an orange with a leaf.
void paintLogo(QPainter &painter, const QRectF &place);

/// Eleven greys from white to black.
void paintGreySteps(QPainter &painter, const QRectF &place);

/// A crystal of snow of the painter's pen colour.
void paintSnow(QPainter &painter, const QRectF &place);

/// Two arrows that show where the top is.
void paintThisSideUp(QPainter &painter, const QRectF &place);

/// An umbrella in the rain: keep dry.
void paintKeepDry(QPainter &painter, const QRectF &place);

/// A glass: handle with care.
void paintFragile(QPainter &painter, const QRectF &place);

/// The EAN-13 bar code of the 12 digits `digits` and their check digit, with the number below it.
/// `place` is as wide as the bars.
void paintBarCode(QPainter &painter, const QRectF &place, const QString &digits);

} // namespace sample
