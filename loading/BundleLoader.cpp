// SPDX-License-Identifier: Apache-2.0
#include "loading/BundleLoader.h"

#include "loading/BundleTrust.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <exception>

#include <unistd.h>

namespace loading {
namespace {

constexpr qint64 kLargestMetadata = 65536;

QString nameOf(const QString &folder)
{
    return QFileInfo(QDir::cleanPath(folder)).completeBaseName();
}

} // namespace

BundleCode::BundleCode(const QString &path, const QString &library, PDEInitWithBundle init)
    : mPath(path)
    , mLibrary(library)
    , mInit(init)
{ }

QString BundleCode::name() const
{
    return nameOf(mPath);
}

std::unique_ptr<PDEPlugIn> BundleCode::makePlugIn(platform::Bundle *bundle) const
{
    return std::unique_ptr<PDEPlugIn>(mInit(bundle));
}

QFunctionPointer BundleCode::function(const char *name) const
{
    return QLibrary::resolve(mLibrary, name);
}

LoadedPlugIn::LoadedPlugIn(std::unique_ptr<platform::Bundle> bundle,
                           std::unique_ptr<PDEPlugIn> plugIn)
    : mBundle(std::move(bundle))
    , mPlugIn(std::move(plugIn))
{ }

QString LoadedPlugIn::name() const
{
    return nameOf(mBundle->path());
}

BundleLoader::BundleLoader()
    : BundleLoader(geteuid())
{ }

BundleLoader::BundleLoader(uid_t user)
    : mUser(user)
{ }

Refusal BundleLoader::refusal(const QString &folder, const QString &complaint)
{
    return {tr("plug-in %1 is left out").arg(nameOf(folder)), complaint};
}

Result<LoadedPlugIn, Refusal> BundleLoader::load(const QString &folder) const
{
    const Result<BundleCode, Refusal> code = loadCode(folder);
    if (!code) {
        return code.failure();
    }
    Started started = start(code.value());
    if (const auto *complaint = std::get_if<QString>(&started)) {
        return refusal(folder, *complaint);
    }
    return std::get<LoadedPlugIn>(std::move(started));
}

Result<BundleCode, Refusal> BundleLoader::loadCode(const QString &folder) const
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    const Judged judged = judge(path);
    if (const auto *complaint = std::get_if<QString>(&judged)) {
        return refusal(folder, *complaint);
    }
    Code code = loadLibrary(path, std::get<BundleMetadata>(judged));
    if (const auto *complaint = std::get_if<QString>(&code)) {
        return refusal(folder, *complaint);
    }
    return std::get<BundleCode>(std::move(code));
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

BundleLoader::Code BundleLoader::loadLibrary(const QString &folder, const BundleMetadata &metadata)
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
    return BundleCode(folder, library.fileName(), init);
}

BundleLoader::Started BundleLoader::start(const BundleCode &code)
{
    auto bundle = std::make_unique<platform::Bundle>(code.path());
    QString cause;
    try {
        if (auto plugIn = code.makePlugIn(bundle.get())) {
            return LoadedPlugIn(std::move(bundle), std::move(plugIn));
        }
        return tr("it declines to work here; ask its maker which systems it is for");
    } catch (const std::exception &error) {
        cause = QString::fromUtf8(error.what()).simplified();
    } catch (...) {
        cause = tr("unknown error");
    }
    return tr("it failed to start (%1); install the plug-in again or remove it").arg(cause);
}

} // namespace loading
