// SPDX-License-Identifier: Apache-2.0
#include "dialog/BundleLoader.h"

#include "dialog/BundleTrust.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <exception>

#include <unistd.h>

namespace dialog {
namespace {

constexpr qint64 kLargestMetadata = 65536;

} // namespace

LoadedPlugIn::LoadedPlugIn(std::unique_ptr<platform::Bundle> bundle, PDEPlugIn *plugIn)
    : mBundle(std::move(bundle))
    , mPlugIn(plugIn)
{ }

QString LoadedPlugIn::name() const
{
    return QFileInfo(mBundle->path()).completeBaseName();
}

BundleLoader::BundleLoader()
    : BundleLoader(geteuid())
{ }

BundleLoader::BundleLoader(uid_t user)
    : mUser(user)
{ }

Result<LoadedPlugIn> BundleLoader::load(const QString &folder) const
{
    const QString name = QFileInfo(QDir::cleanPath(folder)).completeBaseName();
    const auto refuse = [&name](const QString &complaint) {
        return Failure{FailureKind::Panel, tr("plug-in %1 is left out").arg(name), complaint};
    };
    const QString path = QFileInfo(folder).canonicalFilePath();
    const Judged judged = judge(path);
    if (const auto *complaint = std::get_if<QString>(&judged)) {
        return refuse(*complaint);
    }
    Started started = loadCode(path, std::get<BundleMetadata>(judged));
    if (const auto *complaint = std::get_if<QString>(&started)) {
        return refuse(*complaint);
    }
    return std::get<LoadedPlugIn>(std::move(started));
}

BundleLoader::Judged BundleLoader::judge(const QString &folder) const
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        return tr("it is not a folder; install the plug-in again");
    }
    if (const auto complaint = BundleTrust(mUser).complaintAbout(folder)) {
        return *complaint;
    }
    Judged judged = readMetadata(folder);
    if (const auto *metadata = std::get_if<BundleMetadata>(&judged)) {
        if (!QFileInfo(folder + QLatin1Char('/') + metadata->executable()).isFile()) {
            return tr("its program file \"%1\" is missing; install the plug-in again")
                .arg(metadata->executable());
        }
    }
    return judged;
}

BundleLoader::Judged BundleLoader::readMetadata(const QString &folder)
{
    QFile file(folder + QStringLiteral("/bundle.json"));
    // Only a file: opening anything else could wait for ever.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return tr("its bundle.json is missing or cannot be read; install the plug-in again");
    }
    if (file.size() > kLargestMetadata) {
        return tr("its bundle.json is larger than %1 bytes; install the plug-in again")
            .arg(kLargestMetadata);
    }
    return BundleMetadata::fromJson(file.read(kLargestMetadata));
}

BundleLoader::Started BundleLoader::loadCode(const QString &folder, const BundleMetadata &metadata)
{
    QLibrary library(folder + QLatin1Char('/') + metadata.executable());
    // Every symbol now rather than a crash in the middle of a job. Never unloaded, because objects
    // that the code made may live until the program ends.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load()) {
        return tr("its program file \"%1\" cannot be loaded (%2); install the version of the "
                  "plug-in for this system")
            .arg(metadata.executable(), library.errorString().simplified());
    }
    const QByteArray symbol = metadata.principalClass().toLatin1() + "_initWithBundle";
    const auto init = reinterpret_cast<PDEInitWithBundle>(library.resolve(symbol.constData()));
    if (init == nullptr) {
        return tr("its program file lacks the function %1; ask its maker for another one")
            .arg(QLatin1String(symbol));
    }
    return start(folder, init);
}

BundleLoader::Started BundleLoader::start(const QString &folder, PDEInitWithBundle init)
{
    auto bundle = std::make_unique<platform::Bundle>(folder);
    QString cause;
    try {
        if (PDEPlugIn *plugIn = init(bundle.get())) {
            return LoadedPlugIn(std::move(bundle), plugIn);
        }
        return tr("it declines to work here; ask its maker which systems it is for");
    } catch (const std::exception &error) {
        cause = QString::fromUtf8(error.what()).simplified();
    } catch (...) {
        cause = tr("unknown error");
    }
    return tr("it failed to start (%1); install the plug-in again or remove it").arg(cause);
}

} // namespace dialog
