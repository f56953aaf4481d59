// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace dialog {

enum class DocumentKind
{
    Pdf,
    Png,
    Jpeg,
    Tiff,
    Svg
};

/// The kind of a document, told by its content; nothing when it is none of these. The name of the
/// file does not matter.
std::optional<DocumentKind> documentKindOf(const QByteArray &content);

/// The name under which the print system knows the kind.
QString mimeTypeOf(DocumentKind kind);

} // namespace dialog
