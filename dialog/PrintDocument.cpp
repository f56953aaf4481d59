// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDocument.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace dialog {

PrintDocument PrintDocument::fromFile(const QString &path, const QString &mimeType)
{
    return {QFileInfo(path).fileName(), mimeType, path, {}, nullptr};
}

PrintDocument PrintDocument::fromBytes(const QByteArray &bytes, const QString &mimeType,
                                       const QString &name)
{
    return {name, mimeType, {}, bytes, nullptr};
}

PrintDocument PrintDocument::fromPages(const RasterDocument &pages, const QString &name)
{
    return {name,
            QStringLiteral("application/vnd.cups-raster"),
            {},
            {},
            std::make_shared<const RasterDocument>(pages)};
}

Result<std::unique_ptr<QIODevice>> PrintDocument::open(const BandsDone &progress)
{
    if (pages) {
        return pages->render(progress);
    }
    const auto unreadable = [this](const QString &reason) {
        return Failure{FailureKind::Document, name, tr("cannot be read (%1)").arg(reason)};
    };
    std::unique_ptr<QIODevice> device;
    if (path.isEmpty()) {
        device = std::make_unique<QBuffer>(&bytes);
    } else if (!QFileInfo::exists(path)) {
        return unreadable(tr("there is no such file"));
    } else if (!QFileInfo(path).isFile()) {
        return unreadable(tr("it is not an ordinary file"));
    } else {
        device = std::make_unique<QFile>(path);
    }
    if (!device->open(QIODevice::ReadOnly)) {
        return unreadable(device->errorString());
    }
    if (device->size() == 0) {
        return Failure{FailureKind::Document, name, tr("is empty; there is nothing to print")};
    }
    return device;
}

} // namespace dialog
