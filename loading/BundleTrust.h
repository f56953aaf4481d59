// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

#include <sys/stat.h>
#include <sys/types.h>

namespace loading {

/// Judges who can change the files of a bundle: nobody may but root and the user who runs the
/// dialog, or a stranger's code would run in the user's name.
///
/// Owners and permission bits are judged, not what this process could do, so the answer is the
/// same for root.
class BundleTrust
{
    Q_DECLARE_TR_FUNCTIONS(loading::BundleTrust)

public:
    explicit BundleTrust(uid_t user);

    /// Why the bundle cannot be trusted and what to do, or nothing. `folder` is a canonical path.
    /// Every file and folder in it counts. A link counts by its target, which must stay in the
    /// bundle.
    std::optional<QString> complaintAbout(const QString &folder) const;

    /// Whether nobody but root and the user can write to a file with this status.
    bool isSafe(const struct stat &status) const;

private:
    std::optional<QString> complaintAboutFile(const QString &folder, const QString &file) const;
    std::optional<QString> complaintAboutLink(const QString &folder, const QString &file) const;
    bool isOwned(const struct stat &status) const;

    uid_t mUser;
};

} // namespace loading
