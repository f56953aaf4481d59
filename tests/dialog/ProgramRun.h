// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "TestDocuments.h"

#include <QProcess>
#include <QStringList>

#include <string>

/// The program itself, started as from a shell without a display.
class Program : public DocumentFolder
{
protected:
    int run(QStringList arguments, const QString &server = QStringLiteral("/nonexistent/cups.sock"))
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QLatin1String(variable));
        }
        environment.insert(QStringLiteral("CUPS_SERVER"), server);
        environment.insert(QStringLiteral("HOME"), folder.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(channels);
        program.start(QStringLiteral(PROGRAM), arguments);
        EXPECT_TRUE(program.waitForFinished(60000)) << program.errorString().toStdString();
        said = program.readAllStandardOutput().toStdString();
        complained = program.readAllStandardError().toStdString();
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << complained;
        return program.exitCode();
    }
    QStringList toFolder(const QStringList &more = {})
    {
        return QStringList{write(QStringLiteral("label.pdf"), document),
                           QStringLiteral("--no-dialog"), QStringLiteral("--output"), out()}
        + more;
    }
    QString out() const { return folder.filePath(QStringLiteral("out")); }

    /// Made once: a PDF holds the time at which it was made.
    const QByteArray document = pdfOfPages(2);
    /// Merged: everything is `said`, in its order.
    QProcess::ProcessChannelMode channels = QProcess::SeparateChannels;
    std::string said;
    std::string complained;
};
