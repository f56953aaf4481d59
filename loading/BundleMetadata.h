// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <variant>

class QJsonObject;

namespace loading {

/// What a bundle's bundle.json says, once it has been found to be right.
class BundleMetadata
{
    Q_DECLARE_TR_FUNCTIONS(loading::BundleMetadata)

public:
    /// The metadata in `json`, or why the bundle cannot be used and what to do, for the user:
    /// "REASON; ADVICE", without a full stop.
    static std::variant<BundleMetadata, QString> fromJson(const QByteArray &json);

    /// A C identifier.
    const QString &principalClass() const { return mPrincipalClass; }

    /// A file name without any folder.
    const QString &executable() const { return mExecutable; }

private:
    BundleMetadata() = default;
    static QString complaintAbout(const QJsonObject &object);

    QString mPrincipalClass;
    QString mExecutable;
};

} // namespace loading
