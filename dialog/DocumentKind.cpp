// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentKind.h"

#include <QXmlStreamReader>

namespace dialog {

namespace {

// Readers of PDF take the mark anywhere in the first kilobyte.
constexpr int kPdfHeaderReach = 1024;

bool isPdf(const QByteArray &content)
{
    const qsizetype mark = content.indexOf("%PDF-");
    return mark >= 0 && mark <= kPdfHeaderReach;
}

bool isTiff(const QByteArray &content)
{
    return content.startsWith(QByteArray("II\x2a\0", 4))
        || content.startsWith(QByteArray("MM\0\x2a", 4))
        || content.startsWith(QByteArray("II\x2b\0", 4))
        || content.startsWith(QByteArray("MM\0\x2b", 4));
}

bool isSvg(const QByteArray &content)
{
    QXmlStreamReader xml(content);
    return xml.readNextStartElement() && xml.name() == QLatin1String("svg");
}

} // namespace

std::optional<DocumentKind> documentKindOf(const QByteArray &content)
{
    if (content.startsWith("\x89PNG\r\n\x1a\n")) {
        return DocumentKind::Png;
    }
    if (content.startsWith("\xff\xd8\xff")) {
        return DocumentKind::Jpeg;
    }
    if (isTiff(content)) {
        return DocumentKind::Tiff;
    }
    if (isSvg(content)) {
        return DocumentKind::Svg;
    }
    return isPdf(content) ? std::optional(DocumentKind::Pdf) : std::nullopt;
}

QString mimeTypeOf(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Png:
        return QStringLiteral("image/png");
    case DocumentKind::Jpeg:
        return QStringLiteral("image/jpeg");
    case DocumentKind::Tiff:
        return QStringLiteral("image/tiff");
    case DocumentKind::Svg:
        return QStringLiteral("image/svg+xml");
    case DocumentKind::Pdf:
        break;
    }
    return QStringLiteral("application/pdf");
}

} // namespace dialog
