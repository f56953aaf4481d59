// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleMetadata.h"

#include "plugin/PrintDialogExtension.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace loading {
namespace {

const QLatin1String kInterfaceVersion("interfaceVersion");
const QLatin1String kPrincipalClass("principalClass");
const QLatin1String kExecutable("executable");
const QLatin1String kPanelTypes("panelTypes");

constexpr qsizetype kLongestName = 200;

bool isIdentifier(const QString &text)
{
    static const QRegularExpression identifier(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*\\z"));
    return text.size() <= kLongestName && identifier.match(text).hasMatch();
}

bool isPlainFileName(const QString &text)
{
    static const QRegularExpression others(QStringLiteral("[/\\x00-\\x1f\\x7f]"));
    return !text.isEmpty() && text.size() <= kLongestName && text != QLatin1String(".")
        && text != QLatin1String("..") && !text.contains(others);
}

} // namespace

std::variant<BundleMetadata, QString> BundleMetadata::fromJson(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        return tr("its bundle.json is damaged (%1, byte %2); install the plug-in again")
            .arg(error.errorString(), QString::number(error.offset));
    }
    if (!document.isObject()) {
        return tr("its bundle.json holds no JSON object; install the plug-in again");
    }
    const QJsonObject object = document.object();
    if (const QString complaint = complaintAbout(object); !complaint.isEmpty()) {
        return complaint;
    }
    BundleMetadata metadata;
    metadata.mPrincipalClass = object.value(kPrincipalClass).toString();
    metadata.mExecutable = object.value(kExecutable).toString();
    return metadata;
}

QString BundleMetadata::complaintAbout(const QJsonObject &object)
{
    const QJsonValue version = object.value(kInterfaceVersion);
    if (!version.isDouble()) {
        return tr("its bundle.json names no interface version; ask its maker for another one");
    }
    if (version.toDouble() != kPDEInterfaceVersion) {
        return tr("it is made for version %1 of the print dialog's interface and this is version "
                  "%2; install a version of it that fits this dialog")
            .arg(version.toDouble())
            .arg(kPDEInterfaceVersion);
    }
    if (!isIdentifier(object.value(kPrincipalClass).toString())) {
        return tr("its bundle.json names no principal class; ask its maker for another one");
    }
    if (!isPlainFileName(object.value(kExecutable).toString())) {
        return tr("its bundle.json does not name its program file by a plain file name; ask its "
                  "maker for another one");
    }
    if (!object.value(kPanelTypes).toArray().contains(QJsonValue(kPrintDialogPanelType))) {
        return tr("it has no panel for the print dialog; remove it or install the right plug-in");
    }
    return {};
}

} // namespace loading
