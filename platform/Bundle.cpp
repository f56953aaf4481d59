// SPDX-License-Identifier: Apache-2.0
#include "platform/Bundle.h"

#include <QFileInfo>
#include <QLocale>
#include <QTranslator>

namespace platform {
namespace {

constexpr auto kStringsContext = "Localizable";
constexpr const char *kImageExtensions[] = {"png",  "tiff", "tif", "jpg",
                                            "jpeg", "gif",  "bmp", "svg"};

/// "de-DE" is tried as de-DE, de_DE and de; English comes last because every text is kept in it.
QStringList withParents(const QStringList &languages)
{
    QStringList all;
    for (const QString &language : languages) {
        const QString dashed = QString(language).replace(QLatin1Char('_'), QLatin1Char('-'));
        all << dashed << QString(dashed).replace(QLatin1Char('-'), QLatin1Char('_'))
            << dashed.section(QLatin1Char('-'), 0, 0);
    }
    all << QStringLiteral("en");
    all.removeDuplicates();
    return all;
}

} // namespace

Bundle::Bundle(const QString &folder, const QStringList &languages)
    : mPath(QFileInfo(folder).absoluteFilePath())
    , mLanguages(withParents(languages.isEmpty() ? QLocale::system().uiLanguages() : languages))
{
    for (const QString &language : std::as_const(mLanguages)) {
        auto strings = std::make_unique<QTranslator>();
        if (strings->load(mPath
                          + QStringLiteral("/Resources/%1.lproj/Localizable.qm").arg(language))) {
            mStrings = std::move(strings);
            return;
        }
    }
}

Bundle::~Bundle() = default;

std::optional<QString> Bundle::pathForResource(const QString &fileName) const
{
    const QString resources = mPath + QStringLiteral("/Resources/");
    QStringList candidates{resources + fileName};
    for (const QString &language : mLanguages) {
        candidates << resources + language + QStringLiteral(".lproj/") + fileName;
    }
    for (const QString &candidate : std::as_const(candidates)) {
        if (QFileInfo(candidate).isFile()) {
            return candidate;
        }
    }
    return {};
}

std::optional<QString> Bundle::pathForImageResource(const QString &name) const
{
    for (const char *extension : kImageExtensions) {
        if (auto path = pathForResource(name + QLatin1Char('.') + QLatin1String(extension))) {
            return path;
        }
    }
    return {};
}

QString Bundle::localizedString(const std::optional<QString> &key) const
{
    if (!key) {
        return QString(QLatin1String(""));
    }
    if (mStrings) {
        const QString text = mStrings->translate(kStringsContext, key->toUtf8().constData());
        if (!text.isEmpty()) {
            return text;
        }
    }
    return *key;
}

} // namespace platform
