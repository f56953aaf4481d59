// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/RasterDocument.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QIODevice>
#include <QString>

#include <memory>

namespace dialog {

/// A document as it goes to a printer: bytes in a file or in memory, or pages that are rendered
/// when it is opened, and their MIME type.
struct PrintDocument
{
    Q_DECLARE_TR_FUNCTIONS(dialog::PrintDocument)

public:
    /// For people and for the print system; a file name without folders.
    QString name;
    QString mimeType;
    /// The file; when empty, `bytes` are the document.
    QString path;
    QByteArray bytes;
    /// The pages; null for bytes.
    std::shared_ptr<const RasterDocument> pages;

    static PrintDocument fromFile(const QString &path, const QString &mimeType);
    static PrintDocument fromBytes(const QByteArray &bytes, const QString &mimeType,
                                   const QString &name);
    static PrintDocument fromPages(const RasterDocument &pages, const QString &name);

    /// Opened for reading, with at least one byte. It must not outlive this. Any thread. Pages are
    /// rendered first, which `progress` follows and may stop: FailureKind::Cancelled.
    Result<std::unique_ptr<QIODevice>> open(const BandsDone &progress = [](int, int) {
        return true;
    });
};

} // namespace dialog
