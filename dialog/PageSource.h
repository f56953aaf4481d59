// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>
#include <QSizeF>

class QPainter;
class QRectF;

namespace dialog {

/// The pages of one document of one kind. Holds the document in memory.
///
/// Any thread, one call after the other or at once.
class PageSource
{
public:
    PageSource() = default;
    virtual ~PageSource() = default;
    PageSource(const PageSource &) = delete;
    PageSource &operator=(const PageSource &) = delete;

    /// At least 1.
    virtual int pageCount() const = 0;

    /// The size of page `page`, counted from 0, in points; empty when the page is damaged.
    virtual QSizeF pageSize(int page) const = 0;

    /// The pixels of page `page` as it stands upright; empty where it has none of its own (PDF,
    /// SVG) or is damaged.
    virtual QSize pixelSize(int page) const;

    /// Paints page `page` so that it fills `target`; what is transparent is left alone. Edges are
    /// as hard or smooth as the painter's hint Antialiasing asks for. No more than `part` of the
    /// target needs to be painted, more may be. False when the page is damaged; something of it may
    /// then have been painted.
    virtual bool paint(int page, QPainter &painter, const QRectF &target,
                       const QRectF &part) const = 0;
};

inline QSize PageSource::pixelSize(int) const
{
    return {};
}

} // namespace dialog
