// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/LastTwo.h"
#include "dialog/PageSource.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QPdfDocument>

#include <memory>

namespace dialog {

/// The pages of a PDF document. Pages are read when they are asked for, so that a document of
/// thousands of pages opens at once.
class PdfPages : public PageSource
{
    Q_DECLARE_TR_FUNCTIONS(dialog::PdfPages)

public:
    /// `name` is what failures are about.
    static Result<std::shared_ptr<const PageSource>> open(const QByteArray &content,
                                                          const QString &name);

    int pageCount() const override { return mPageCount; }
    QSizeF pageSize(int page) const override;
    bool paint(int page, QPainter &painter, const QRectF &target,
               const QRectF &part) const override;

private:
    struct WholePage
    {
        int page;
        QSize size;
        bool hardEdges;

        bool operator==(const WholePage &other) const = default;
    };

    explicit PdfPages(const QByteArray &content);
    QString loadError() const;
    QSizeF sizeInDocument(int page) const;
    QImage whole(const WholePage &key) const;

    mutable QMutex mMutex;
    QBuffer mContent;
    mutable QPdfDocument mDocument;
    /// Known from the start: who asks for it does not wait for a page that is being rendered.
    int mPageCount = 0;
    /// Sizes that were asked for before, for the same reason; with a lock of their own.
    mutable QMutex mSizesMutex;
    mutable QHash<int, QSizeF> mSizes;
    /// Whole pages of which parts were painted.
    mutable LastTwo<WholePage, QImage> mWholes;
};

} // namespace dialog
