// SPDX-License-Identifier: Apache-2.0
// Ten thousand requests to panel-session on the sample printer, from its start to its end, through
// files. Three sessions: a dialog at work, nothing but states, and nothing but new panels.
#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <cstdio>
#include <stdexcept>
#include <vector>

#include <sys/resource.h>

namespace {

constexpr int kRequests = 10000;

const QByteArray kOpen = R"({"do":"open","ppd":")" SOURCE_DIR R"(/resources/ppd/label-300.ppd"})";

/// The i-th request of a session.
using Script = QByteArray (*)(int i);

QByteArray dialogAtWork(int i)
{
    const QByteArray level = QByteArray::number(i % 41 - 20);
    const QByteArray row = QByteArray::number(i % 3);
    const std::vector<QByteArray> start{kOpen, R"({"do":"panelView"})",
                                        R"({"do":"supportedPPDOptionKeys"})",
                                        R"({"do":"willShow"})"};
    const std::vector<QByteArray> work{
        R"({"do":"user","control":"mBrightnessSlider","value":)" + level + '}',
        R"({"do":"draw"})",
        R"({"do":"user","control":"mHalftoneRadio","value":)" + row + '}',
        R"({"do":"state"})",
        R"({"do":"user","control":"mColorPUBtn","value":)" + QByteArray::number(i % 2) + '}',
        R"({"do":"summaryInfo"})",
        R"({"do":"saveValues"})",
        R"({"do":"restoreValues"})",
        R"({"do":"shouldPrint"})"};
    const auto place = std::size_t(i);
    return place < start.size() ? start[place] : work[place % work.size()];
}

QByteArray states(int i)
{
    return i == 0 ? kOpen : i == 1 ? QByteArray(R"({"do":"panelView"})") : R"({"do":"state"})";
}

QByteArray newPanels(int i)
{
    return i % 2 == 0 ? kOpen : QByteArray(R"({"do":"panelView"})");
}

/// In seconds.
struct Times
{
    double whole = 0;
    double processor = 0;
};

/// What the programs that have ended took of the processor.
double processorTime()
{
    rusage used = {};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto seconds = [](const timeval &time) {
        return double(time.tv_sec) + double(time.tv_usec) / 1e6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

Times timesOf(Script script)
{
    QTemporaryFile session;
    if (!session.open()) {
        throw std::runtime_error("A temporary file could not be made.");
    }
    for (int i = 0; i < kRequests; ++i) {
        session.write(script(i) + '\n');
    }
    session.flush();
    const QTemporaryDir folder;
    QProcess program;
    program.setStandardInputFile(session.fileName());
    program.setStandardOutputFile(folder.filePath(QStringLiteral("answers.jsonl")));
    const double before = processorTime();
    QElapsedTimer clock;
    clock.start();
    program.start(QStringLiteral(PANEL_SESSION),
                  {QStringLiteral("--plugin"), QStringLiteral(BUNDLE_DIR)});
    if (!program.waitForFinished(-1) || program.exitCode() != 0) {
        throw std::runtime_error(program.readAllStandardError().toStdString());
    }
    return {double(clock.nsecsElapsed()) / 1e9, processorTime() - before};
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const std::pair<const char *, Script> sessions[] = {
        {"a dialog at work", dialogAtWork}, {"states", states}, {"new panels", newPanels}};
    std::printf("%d requests, in seconds    whole  processor\n", kRequests);
    for (const auto &[title, script] : sessions) {
        const Times times = timesOf(script);
        std::printf("%-25s %10.2f %10.2f\n", title, times.whole, times.processor);
        std::fflush(stdout);
    }
    return 0;
}
