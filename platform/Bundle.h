// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QTranslator;

namespace platform {

/// A plug-in bundle on disk: a folder with metadata, a shared object and a folder `Resources`.
///
/// Resources are looked up in `Resources` itself, then in `LANGUAGE.lproj` folders in the order of
/// the user's languages, last in `en.lproj`. File names count case. Made by the host before any
/// code of the bundle is loaded; outlives everything that the bundle makes.
class PLATFORM_EXPORT Bundle
{
public:
    /// `folder` is the bundle's own folder. `languages` are the user's, best first ("de-DE", "de");
    /// empty takes the system's.
    explicit Bundle(const QString &folder, const QStringList &languages = {});
    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    QString path() const { return mPath; }

    /// The absolute path of resource `fileName`, or nothing when there is no such file.
    std::optional<QString> pathForResource(const QString &fileName) const;

    /// The absolute path of the image called `name`, whatever its image extension, or nothing.
    std::optional<QString> pathForImageResource(const QString &name) const;

    /// The text for `key` in the best table of strings; `key` itself when it has no text there, and
    /// "" for no key. A key missing in the best table is not looked up in another language.
    QString localizedString(const std::optional<QString> &key) const;

    /// The table of strings in use, or null when the bundle has none for any language of the user.
    /// Owned by the bundle. Its keys stand in the context "Localizable".
    QTranslator *strings() const { return mStrings.get(); }

private:
    QString mPath;
    QStringList mLanguages;
    std::unique_ptr<QTranslator> mStrings;
};

} // namespace platform
