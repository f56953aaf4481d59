// SPDX-License-Identifier: Apache-2.0
#include "replay/Transcript.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

// replay PROGRAM BUNDLE FILES SESSION EXPECTED
//
// Runs panel-session (PROGRAM) with the bundle on the requests in SESSION, and compares what it
// answers with EXPECTED. The working folder is a new one that holds links to what is in the folder
// FILES; what the session writes goes there.

namespace {

constexpr int kLongest = 60000; // ms

int fail(const QString &why)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(why));
    return 1;
}

std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

/// The lines as the program reads them: behind the last line end there is none.
QList<QByteArray> linesOf(const QByteArray &content)
{
    QList<QByteArray> lines = content.split('\n');
    if (lines.constLast().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

void linkAll(const QString &from, const QString &to)
{
    for (const QFileInfo &file :
         QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        QFile::link(file.absoluteFilePath(), to + u'/' + file.fileName());
    }
}

/// What the program wrote, or why it failed.
std::variant<QByteArray, QString> answersOf(const QString &program, const QString &bundle,
                                            const QString &folder, const QByteArray &requests)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, {QStringLiteral("--plugin"), bundle});
    process.write(requests);
    process.closeWriteChannel();
    if (!process.waitForFinished(kLongest)) {
        return QStringLiteral("%1: %2").arg(program, process.errorString());
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return QStringLiteral("the program ended with status %1\n%2")
            .arg(process.exitCode())
            .arg(QString::fromUtf8(process.readAllStandardError()));
    }
    return process.readAllStandardOutput();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 6) {
        return fail(QStringLiteral("usage: replay PROGRAM BUNDLE FILES SESSION EXPECTED"));
    }
    const auto requests = contentOf(arguments.at(4));
    const auto wanted = contentOf(arguments.at(5));
    if (!requests || !wanted) {
        return fail(QStringLiteral("a session needs NAME.jsonl and NAME.expected.jsonl"));
    }
    const auto expected = replay::readAnswers(*wanted);
    if (const auto *why = std::get_if<QString>(&expected)) {
        return fail(arguments.at(5) + QStringLiteral(": ") + *why);
    }
    const QTemporaryDir folder;
    linkAll(arguments.at(3), folder.path());
    const auto output = answersOf(arguments.at(1), arguments.at(2), folder.path(), *requests);
    if (const auto *why = std::get_if<QString>(&output)) {
        return fail(*why);
    }
    const auto actual = replay::readAnswers(std::get<QByteArray>(output));
    if (const auto *why = std::get_if<QString>(&actual)) {
        return fail(QStringLiteral("output: ") + *why);
    }
    const auto found =
        replay::firstDifference(linesOf(*requests), std::get<std::vector<replay::Answer>>(expected),
                                std::get<std::vector<replay::Answer>>(actual));
    return found ? fail(*found) : 0;
}
