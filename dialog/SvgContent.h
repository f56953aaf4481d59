// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QSizeF>
#include <QString>

namespace dialog {

/// What must be known of an SVG drawing before it is given to the renderer, which would follow
/// links to files and draws whatever it is told, however long that takes.
class SvgContent
{
    Q_DECLARE_TR_FUNCTIONS(dialog::SvgContent)

public:
    /// Reads `content`; `name` is what failures are about. Refused are: damaged XML, drawings that
    /// need other files, drawings that repeat themselves without measure.
    static Result<SvgContent> read(const QByteArray &content, const QString &name);

    /// The size that the drawing states, in points; empty when it states none.
    QSizeF size() const { return mSize; }

    /// Whether the drawing gives up its proportions to fill its size.
    bool isStretched() const { return mStretched; }

private:
    QSizeF mSize;
    bool mStretched = false;
};

} // namespace dialog
