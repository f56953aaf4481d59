// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleTrust.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace loading {
namespace {

/// More than any plug-in needs, few enough to be looked at in no time.
constexpr int kMostFiles = 10000;

/// The name of `file` as seen from its bundle.
QString nameIn(const QString &folder, const QString &file)
{
    return file == folder ? QFileInfo(folder).fileName() : file.mid(folder.size() + 1);
}

} // namespace

BundleTrust::BundleTrust(uid_t user)
    : mUser(user)
{ }

bool BundleTrust::isOwned(const struct stat &status) const
{
    return status.st_uid == 0 || status.st_uid == mUser;
}

bool BundleTrust::isSafe(const struct stat &status) const
{
    return isOwned(status) && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

std::optional<QString> BundleTrust::complaintAbout(const QString &folder) const
{
    if (auto complaint = complaintAboutFile(folder, folder)) {
        return complaint;
    }
    QDirIterator files(folder,
                       QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    for (int count = 0; files.hasNext(); ++count) {
        if (count == kMostFiles) {
            return tr("it holds more than %1 files; install the plug-in again").arg(kMostFiles);
        }
        if (auto complaint = complaintAboutFile(folder, files.next())) {
            return complaint;
        }
    }
    return {};
}

std::optional<QString> BundleTrust::complaintAboutFile(const QString &folder,
                                                       const QString &file) const
{
    struct stat status = {};
    const QByteArray path = QFile::encodeName(file);
    if (lstat(path.constData(), &status) != 0) {
        return tr("\"%1\" in it cannot be examined; install the plug-in again")
            .arg(nameIn(folder, file));
    }
    if (S_ISLNK(status.st_mode)) {
        return complaintAboutLink(folder, file);
    }
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) {
        return tr("\"%1\" in it is neither a file nor a folder; install the plug-in again")
            .arg(nameIn(folder, file));
    }
    if (isSafe(status)) {
        return {};
    }
    if (!isOwned(status)) {
        return tr("\"%1\" belongs to another user, who could change what it does; install the "
                  "plug-in yourself or as root")
            .arg(nameIn(folder, file));
    }
    return tr("others can write to \"%1\" and so change what it does; run chmod -R go-w \"%2\" if "
              "you trust its content")
        .arg(nameIn(folder, file), folder);
}

std::optional<QString> BundleTrust::complaintAboutLink(const QString &folder,
                                                       const QString &file) const
{
    // A target inside the bundle is judged when its own turn comes.
    if (QFileInfo(file).canonicalFilePath().startsWith(folder + QLatin1Char('/'))) {
        return {};
    }
    return tr("the link \"%1\" in it leads out of its folder or nowhere; install the plug-in again")
        .arg(nameIn(folder, file));
}

} // namespace loading
