// SPDX-License-Identifier: Apache-2.0
// Any bytes as a bundle's metadata: they are taken with names that are safe to use, or refused
// with one sentence.
#include "fuzz/Require.h"
#include "loading/BundleMetadata.h"

#include <QRegularExpression>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QRegularExpression identifier(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*\\z"));
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto answer = loading::BundleMetadata::fromJson(json);
    if (const auto *metadata = std::get_if<loading::BundleMetadata>(&answer)) {
        require(identifier.match(metadata->principalClass()).hasMatch());
        const QString &file = metadata->executable();
        require(!file.isEmpty() && !file.contains(QLatin1Char('/')) && file != QLatin1String("."));
        require(file != QLatin1String("..") && !file.contains(QChar(0)));
    } else {
        const QString &reason = std::get<QString>(answer);
        require(!reason.isEmpty() && !reason.contains(QLatin1Char('\n')));
    }
    return 0;
}
