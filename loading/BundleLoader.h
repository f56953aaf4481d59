// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "loading/BundleMetadata.h"
#include "loading/Refusal.h"
#include "loading/Result.h"
#include "platform/Bundle.h"
#include "plugin/PrintDialogExtension.h"

#include <QCoreApplication>
#include <QFunctionPointer>
#include <QString>

#include <memory>
#include <variant>

#include <sys/types.h>

namespace loading {

/// The code of a bundle that was judged and loaded. It stays in memory until the program ends, also
/// after this object.
class BundleCode
{
public:
    /// The bundle's name without ".plugin".
    QString name() const;

    /// The bundle's folder, a canonical path.
    const QString &path() const { return mPath; }

    /// A plug-in for `bundle`, which outlives it; null when it declines. Throws what the plug-in
    /// throws.
    std::unique_ptr<PDEPlugIn> makePlugIn(platform::Bundle *bundle) const;

    /// The function that the bundle exports under `name`, or null.
    QFunctionPointer function(const char *name) const;

private:
    friend class BundleLoader;
    BundleCode(const QString &path, const QString &library, PDEInitWithBundle init);

    QString mPath;
    QString mLibrary;
    PDEInitWithBundle mInit;
};

/// A plug-in that is ready to be asked for panels, with its bundle. Kept until all its panels are
/// gone; its code stays in memory until the program ends.
class LoadedPlugIn
{
public:
    /// `plugIn` is owned from here on.
    LoadedPlugIn(std::unique_ptr<platform::Bundle> bundle, std::unique_ptr<PDEPlugIn> plugIn);
    LoadedPlugIn(LoadedPlugIn &&) = default;
    LoadedPlugIn &operator=(LoadedPlugIn &&) = delete;

    /// The bundle's name without ".plugin".
    QString name() const;

    const platform::Bundle &bundle() const { return *mBundle; }
    PDEPlugIn &plugIn() const { return *mPlugIn; }

private:
    // In this order: the plug-in borrows the bundle until its end.
    std::unique_ptr<platform::Bundle> mBundle;
    std::unique_ptr<PDEPlugIn> mPlugIn;
};

/// Judges a bundle by its files and its metadata, and only then loads its code.
class BundleLoader
{
    Q_DECLARE_TR_FUNCTIONS(loading::BundleLoader)

public:
    /// Trusts bundles of the user who runs the program, and of root.
    BundleLoader();
    /// Trusts bundles of `user`, and of root.
    explicit BundleLoader(uid_t user);

    /// Loads the bundle in `folder` and starts its plug-in, or says why it is left out. Nothing
    /// that the bundle throws gets out.
    Result<LoadedPlugIn, Refusal> load(const QString &folder) const;

    /// Loads the code of the bundle in `folder` and starts nothing, or says why it is left out.
    Result<BundleCode, Refusal> loadCode(const QString &folder) const;

private:
    using Judged = std::variant<BundleMetadata, QString>;
    using Code = std::variant<BundleCode, QString>;
    using Started = std::variant<LoadedPlugIn, QString>;

    static Refusal refusal(const QString &folder, const QString &complaint);
    Judged judge(const QString &folder) const;
    static Judged readMetadata(const QString &folder);
    static Code loadLibrary(const QString &folder, const BundleMetadata &metadata);
    static Started start(const BundleCode &code);

    uid_t mUser;
};

} // namespace loading
