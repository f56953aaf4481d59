// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

namespace diagnostics {

/// The folder for dumps: `chosen`, else `root` when it is writable, else the one for temporary
/// files.
QString dumpFolder(const QString &chosen, const QString &root);

/// Writes CvPDE_NAME.plist into `folder`, for its owner's eyes only. What has that name is replaced
/// in one step, a link too, and never followed. Nothing is left behind when it fails.
void writeDump(const QString &folder, const QString &name, const QByteArray &data);

} // namespace diagnostics
