// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/PageSource.h"

#include <QBuffer>
#include <QCoreApplication>
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

    int pageCount() const override;
    QSizeF pageSize(int page) const override;
    bool paint(int page, QPainter &painter, const QRectF &target,
               const QRectF &part) const override;

private:
    explicit PdfPages(const QByteArray &content);
    QString loadError() const;
    QImage whole(int page, const QSize &size, bool inParts, bool hardEdges) const;

    mutable QMutex mMutex;
    QBuffer mContent;
    mutable QPdfDocument mDocument;
    /// The page of which a part was painted last; none after one that was painted at once.
    mutable QImage mLast;
    mutable int mLastPage = -1;
    mutable bool mLastIsHard = false;
};

} // namespace dialog
