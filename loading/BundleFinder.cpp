// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleFinder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace loading {
namespace {

const QLatin1String kBundleSuffix(".plugin");

bool isBundle(const QFileInfo &file)
{
    return file.isDir() && file.fileName().endsWith(kBundleSuffix);
}

QStringList bundlesIn(const QString &folder)
{
    QStringList paths;
    const QFileInfoList files =
        QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &file : files) {
        if (isBundle(file)) {
            paths << file.absoluteFilePath();
        }
    }
    return paths;
}

QStringList bundlesAt(const QString &path)
{
    const QFileInfo file(QDir::cleanPath(path));
    return isBundle(file) ? QStringList{file.absoluteFilePath()} : bundlesIn(path);
}

void appendNew(QStringList *bundles, const QStringList &more)
{
    for (const QString &bundle : more) {
        const QString name = QFileInfo(bundle).fileName();
        const auto hasName = [&name](const QString &path) {
            return QFileInfo(path).fileName() == name;
        };
        if (std::none_of(bundles->cbegin(), bundles->cend(), hasName)) {
            *bundles << bundle;
        }
    }
}

} // namespace

BundleFinder::BundleFinder(const QStringList &asked, const QStringList &standard)
    : mAsked(asked)
    , mStandard(standard)
{ }

QStringList BundleFinder::standardFolders()
{
    const QString panels = QStringLiteral("/" LABELPRINT_PANELS_SUBDIR);
    QStringList folders{QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                            + panels,
                        // Beside the program in the build tree as well as where it is installed.
                        QDir::cleanPath(QCoreApplication::applicationDirPath()
                                        + QStringLiteral("/../lib") + panels),
                        QStringLiteral(LABELPRINT_LIBDIR) + panels};
    folders.removeDuplicates();
    return folders;
}

BundleFinder::Found BundleFinder::find() const
{
    Found found;
    for (const QString &path : mAsked) {
        const QStringList bundles = path.isEmpty() ? QStringList() : bundlesAt(path);
        if (bundles.isEmpty()) {
            found.failures.push_back({path, whyNothingIsAt(path)});
        }
        appendNew(&found.bundles, bundles);
    }
    for (const QString &folder : mStandard) {
        appendNew(&found.bundles, bundlesIn(folder));
    }
    return found;
}

QString BundleFinder::whyNothingIsAt(const QString &path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists()) {
        return tr("there is no such folder; give --plugin the path of a plug-in's folder");
    }
    if (!file.isDir()) {
        return tr("this is a file; give --plugin the path of a plug-in's folder");
    }
    return tr("there is no plug-in in this folder; give --plugin a folder whose name ends in "
              ".plugin, or one that holds such folders");
}

} // namespace loading
