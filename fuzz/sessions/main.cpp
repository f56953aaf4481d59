// SPDX-License-Identifier: Apache-2.0
// Random sessions: `panel-session` is driven with PPDs and requests made at random, and its answers
// are checked for what must always hold; each run is made twice and must give the same answers.
//
//     random_sessions PANEL-SESSION BUNDLE [SESSIONS [SEED]]
//
// A run is a process with some sessions one after the other. Exit status 1 when something did not
// hold; the requests, PPDs and answers of that run are then kept and their folder is told.
#include "fuzz/sessions/RandomRequests.h"
#include "fuzz/sessions/SessionChecks.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <vector>

namespace {

constexpr int kSessionsInARun = 10;
constexpr int kMostRequests = 80;
constexpr int kTimeout = 120000;

struct Run
{
    std::vector<RandomSession> sessions;
    QByteArray requests;
};

struct Tool
{
    QString program;
    QString bundle;
};

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

Run randomRun(Random &random, int sessions, const QString &folder)
{
    Run run;
    for (int i = 0; i < sessions; ++i) {
        RandomSession session;
        session.ppd = randomPpd(random);
        const QString file = QStringLiteral("%1.ppd").arg(i);
        writeFile(folder + QLatin1Char('/') + file, session.ppd.text);
        // The plug-in keeps its first answer, so that only a run's first session may ask.
        session.requests =
            randomRequests(random, session.ppd, file, between(random, 1, kMostRequests), i == 0);
        run.requests += session.requests.join('\n') + '\n';
        run.sessions.push_back(std::move(session));
    }
    return run;
}

/// The answers, or nothing and a complaint when the tool did not end well.
QByteArray answers(const Tool &tool, const Run &run, const QString &folder, QStringList &complaints)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(tool.program, {QStringLiteral("--plugin"), tool.bundle});
    process.write(run.requests);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(kTimeout);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        complaints += QStringLiteral("the tool ended with %1: %2")
                          .arg(ended ? process.exitCode() : -1)
                          .arg(QString::fromUtf8(process.readAllStandardError().right(4000)));
        process.kill();
        process.waitForFinished();
        return {};
    }
    return process.readAllStandardOutput();
}

QStringList complaintsAbout(const Tool &tool, const Run &run, const QString &folder)
{
    QStringList complaints;
    const QByteArray first = answers(tool, run, folder, complaints);
    if (!complaints.isEmpty()) {
        return complaints;
    }
    if (answers(tool, run, folder, complaints) != first) {
        complaints += QStringLiteral("the same requests got other answers");
    }
    QByteArrayList lines = first.trimmed().split('\n');
    bool declined = false;
    for (std::size_t i = 0; i < run.sessions.size() && !declined; ++i) {
        SessionChecks checks(run.sessions[i]);
        checks.take(lines);
        for (const QString &complaint : checks.complaints()) {
            complaints += QStringLiteral("session %1, %2").arg(i).arg(complaint);
        }
        declined = i == 0 && checks.declined();
    }
    if (!declined && !lines.isEmpty()) {
        complaints += QStringLiteral("answers that nobody asked for");
    }
    writeFile(folder + QStringLiteral("/answers.jsonl"), first);
    return complaints;
}

void report(quint64 seed, const QStringList &complaints, const QString &folder)
{
    std::printf("seed %llu, kept in %s:\n", static_cast<unsigned long long>(seed),
                qPrintable(folder));
    for (const QString &complaint : complaints.mid(0, 20)) {
        std::printf("  %s\n", qPrintable(complaint));
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: random_sessions PANEL-SESSION BUNDLE [SESSIONS [SEED]]\n");
        return 2;
    }
    const Tool tool{QDir().absoluteFilePath(arguments[1]), QDir().absoluteFilePath(arguments[2])};
    const int sessions = arguments.value(3, QStringLiteral("100")).toInt();
    quint64 seed = arguments.value(4, QStringLiteral("1")).toULongLong();
    QElapsedTimer timer;
    timer.start();
    qsizetype requests = 0;
    for (int done = 0; done < sessions; done += kSessionsInARun, ++seed) {
        QTemporaryDir folder;
        Random random(seed);
        const Run run = randomRun(random, qMin(kSessionsInARun, sessions - done), folder.path());
        writeFile(folder.filePath(QStringLiteral("requests.jsonl")), run.requests);
        const QStringList complaints = complaintsAbout(tool, run, folder.path());
        requests += run.requests.count('\n');
        if (!complaints.isEmpty()) {
            folder.setAutoRemove(false);
            report(seed, complaints, folder.path());
            return 1;
        }
    }
    std::printf("%d sessions, %lld requests, each twice, in %.1f s\n", sessions,
                static_cast<long long>(requests), double(timer.elapsed()) / 1000.0);
    return 0;
}
