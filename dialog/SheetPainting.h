// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>

class QPainter;
class QPalette;
class QString;
class QWidget;

// How a label looks on the screen, whatever is on it. Places are those of the painter.

namespace dialog {

/// The ground around labels.
void paintGround(QPainter &painter, const QWidget &widget);

/// White paper with a soft shadow around it, whose rings have the width `pixel`.
void paintPaper(QPainter &painter, const QRectF &sheet, double pixel = 1);

/// Fades what is outside of `reach`, when something of `page` stands there.
void paintBeyondReach(QPainter &painter, const QRectF &sheet, const QRectF &reach,
                      const QRectF &page);

/// A sentence in the middle of `room`, on a ground of its own.
void paintSentence(QPainter &painter, const QRect &room, const QString &text,
                   const QPalette &colours);

/// The frame of a widget that has the focus; nothing for another one.
void paintFocus(QPainter &painter, const QWidget &widget, bool hasFocus);

} // namespace dialog
