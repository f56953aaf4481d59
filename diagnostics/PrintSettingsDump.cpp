// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/PrintSettingsDump.h"

#include "diagnostics/Diagnostics.h"
#include "diagnostics/Texts.h"
#include "platform/PrintCore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cstdio>

namespace diagnostics {

QString dumpFolder(const QString &chosen, const QString &root)
{
    if (!chosen.isEmpty()) {
        return chosen;
    }
    return QFileInfo(root).isWritable() ? root : QDir::tempPath();
}

void writeDump(const QString &folder, const QString &name, const QByteArray &data)
{
    if (name.contains(u'/') || name.contains(QChar(u'\0'))) {
        return;
    }
    const QString file = platform::formatted(QStringLiteral("/CvPDE_%@.plist"), {name});
    // QSaveFile would follow a link that somebody left in the folder for temporary files, and take
    // over the permissions of an older file.
    QTemporaryFile temporary(folder + QStringLiteral("/.CvPDE_XXXXXX"));
    if (!temporary.open() || temporary.write(data) != data.size() || !temporary.flush()) {
        return;
    }
    const QByteArray from = QFile::encodeName(temporary.fileName());
    const QByteArray to = QFile::encodeName(folder + file);
    // Where this fails, the temporary file goes with its owner.
    std::rename(from.constData(), to.constData());
}

} // namespace diagnostics

using namespace diagnostics;

void _PDELog_PMPrintSettings_WriteToFile(const PMPrintSettings *settings, const char *name)
{
    quietly([&] {
        const std::optional<QString> text = textFromC(name);
        if (!settings || !text) {
            return;
        }
        if (const std::optional<QByteArray> data = settings->dataRepresentation()) {
            const QString chosen = qEnvironmentVariable("LABEL_PRINT_DUMP_FOLDER");
            writeDump(dumpFolder(chosen, QStringLiteral("/")), *text, *data);
        }
    });
}
