// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/BundleMetadata.h"
#include "dialog/Failure.h"
#include "platform/Bundle.h"
#include "plugin/PrintDialogExtension.h"

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <variant>

#include <sys/types.h>

namespace dialog {

/// A plug-in that is ready to be asked for panels, with its bundle. Kept until all its panels are
/// gone; its code stays in memory until the program ends.
class LoadedPlugIn
{
public:
    /// `plugIn` is owned from here on.
    LoadedPlugIn(std::unique_ptr<platform::Bundle> bundle, PDEPlugIn *plugIn);
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
    Q_DECLARE_TR_FUNCTIONS(dialog::BundleLoader)

public:
    /// Trusts bundles of the user who runs the program, and of root.
    BundleLoader();
    /// Trusts bundles of `user`, and of root.
    explicit BundleLoader(uid_t user);

    /// Loads the bundle in `folder`, or says why it is left out. Nothing that the bundle throws
    /// gets out.
    Result<LoadedPlugIn> load(const QString &folder) const;

private:
    using Judged = std::variant<BundleMetadata, QString>;
    using Started = std::variant<LoadedPlugIn, QString>;

    Judged judge(const QString &folder) const;
    static Judged readMetadata(const QString &folder);
    static Started loadCode(const QString &folder, const BundleMetadata &metadata);
    static Started start(const QString &folder, PDEInitWithBundle init);

    uid_t mUser;
};

} // namespace dialog
