// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/PageSource.h"

#include <QByteArray>
#include <QCoreApplication>

#include <memory>

namespace dialog {

/// The one page of an SVG drawing. Lengths without a unit are pixels of 1/96 inch.
class SvgPages : public PageSource
{
    Q_DECLARE_TR_FUNCTIONS(dialog::SvgPages)

public:
    /// The longest side of a page, in points.
    static constexpr double kLongestSide = 14'400;

    /// `name` is what failures are about.
    static Result<std::shared_ptr<const PageSource>> open(const QByteArray &content,
                                                          const QString &name);

    int pageCount() const override { return 1; }
    QSizeF pageSize(int page) const override;
    bool paint(int page, QPainter &painter, const QRectF &target,
               const QRectF &part) const override;

private:
    SvgPages(const QByteArray &content, const QSizeF &size, bool stretched);

    QByteArray mContent;
    QSizeF mSize;
    bool mStretched;
};

} // namespace dialog
