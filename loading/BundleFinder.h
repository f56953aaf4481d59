// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "loading/Refusal.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

namespace loading {

/// Finds plug-in bundles on disk. Looks at names only; BundleLoader judges what is inside.
///
/// A bundle is a folder NAME.plugin. Of two with one name the first found counts, so that a user
/// can put a bundle before the system's, and the command line before both.
class BundleFinder
{
    Q_DECLARE_TR_FUNCTIONS(loading::BundleFinder)

public:
    struct Found
    {
        /// Absolute paths of bundle folders in the order in which they are to be loaded: by place,
        /// then by name.
        QStringList bundles;
        /// One for each asked-for path that leads to no bundle.
        std::vector<Refusal> failures;
    };

    /// `asked` are the paths that the user gave, each a bundle or a folder of bundles. `standard`
    /// are folders of bundles that need not exist.
    explicit BundleFinder(const QStringList &asked,
                          const QStringList &standard = standardFolders());

    /// The user's data folder, the folder beside the program, the folder of the installation.
    static QStringList standardFolders();

    Found find() const;

private:
    static QString whyNothingIsAt(const QString &path);

    QStringList mAsked;
    QStringList mStandard;
};

} // namespace loading
