// SPDX-License-Identifier: Apache-2.0
// From the start of a process to its first paint: the dialog next to a bare QPrintDialog, started
// in turn, with a print server of three queues, without a display and under Xvfb.
#include "support/CupsServerFixture.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kStarts = 15;
constexpr int kPatience = 20000;

/// What the starts of one program took, in milliseconds: to the first paint, and of the processor.
struct Times
{
    std::vector<double> paint;
    std::vector<double> processor;
};

/// A program and what it waits for.
struct Candidate
{
    const char *title;
    std::vector<const char *> arguments;
    const char *until;
    Times offscreen;
    Times xvfb;
};

std::vector<Candidate> candidates()
{
    const std::vector<const char *> dialog = {
        LABEL_PRINT_START, SOURCE_DIR "/resources/sample/sample-label.pdf", nullptr};
    return {{"bare QPrintDialog", {BARE_PRINT_DIALOG, nullptr}, "window", {}, {}},
            {"label-print", dialog, "window", {}, {}},
            {"label-print, panel to be seen", dialog, "mBrightnessSlider", {}, {}}};
}

qint64 now()
{
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

QByteArray readAll(int handle)
{
    QByteArray all;
    char bytes[256];
    for (;;) {
        const auto count = ::read(handle, bytes, sizeof bytes);
        if (count <= 0) {
            return all;
        }
        all.append(bytes, count);
    }
}

double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
}

/// One start. The program gets this process's environment.
void start(const Candidate &candidate, Times &times)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    qputenv("START_UNTIL", candidate.until);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    pid_t process = 0;
    const qint64 begin = now();
    const int failed = ::posix_spawn(&process, candidate.arguments[0], &actions, nullptr,
                                     const_cast<char **>(candidate.arguments.data()), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    const QByteArray painted = failed ? QByteArray() : readAll(ends[0]);
    ::close(ends[0]);
    int status = 0;
    rusage used{};
    if (failed || ::wait4(process, &status, 0, &used) != process || status != 0
        || painted.isEmpty()) {
        throw std::runtime_error(std::string(candidate.title) + " does not come to its paint");
    }
    times.paint.push_back(double(painted.trimmed().toLongLong() - begin) / 1e6);
    times.processor.push_back(milliseconds(used.ru_utime) + milliseconds(used.ru_stime));
}

/// Starts all in turn; the first round only warms the caches.
void measure(std::vector<Candidate> &all, Times Candidate::*times)
{
    for (int round = 0; round <= kStarts; ++round) {
        for (Candidate &candidate : all) {
            Times warming;
            start(candidate, round > 0 ? candidate.*times : warming);
        }
    }
}

/// A display of its own while it lives.
class Xvfb
{
public:
    Xvfb()
    {
        mServer.start(QStringLiteral("Xvfb"),
                      {QStringLiteral("-displayfd"), QStringLiteral("1"),
                       QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                       QStringLiteral("-screen"), QStringLiteral("0"),
                       QStringLiteral("1280x1024x24")});
        if (mServer.waitForStarted(kPatience) && mServer.waitForReadyRead(kPatience)) {
            mDisplay = ":" + mServer.readAllStandardOutput().trimmed();
        }
    }
    ~Xvfb()
    {
        mServer.terminate();
        mServer.waitForFinished(kPatience);
    }
    Xvfb(const Xvfb &) = delete;
    Xvfb &operator=(const Xvfb &) = delete;

    /// Empty when there is no Xvfb.
    QByteArray display() const { return mDisplay; }

private:
    QProcess mServer;
    QByteArray mDisplay;
};

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void printColumns(const Times &times)
{
    if (times.paint.empty()) {
        std::printf(" |%8s %8s %9s", "-", "-", "-");
        return;
    }
    std::printf(" |%8.1f %8.1f %9.1f", median(times.paint),
                *std::min_element(times.paint.begin(), times.paint.end()), median(times.processor));
}

void printTable(const std::vector<Candidate> &all)
{
    std::printf("First paint after the start of the process, in milliseconds, %d starts;\n"
                "\"processor\" is the median of the processor time until then.\n\n",
                kStarts);
    const char *columns = " |  median  fastest processor";
    std::printf("%-29s |%-27s |%-27s\n%-29s%s%s\n", "", " offscreen", " Xvfb", "", columns,
                columns);
    for (const Candidate &candidate : all) {
        std::printf("%-29s", candidate.title);
        printColumns(candidate.offscreen);
        printColumns(candidate.xvfb);
        std::printf("\n");
    }
}

/// A print server with three queues, the first of them the default.
void addQueues(CupsServerFixture &cups)
{
    for (const char *name : {"Lab", "Office", "Store"}) {
        cups.addQueue(QString::fromLatin1(name));
    }
    cups.administer(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("Lab")});
    qputenv("CUPS_SERVER", cups.address().toUtf8());
}

/// No settings and no bundles of the user's, and no warnings of the platforms.
void setEnvironment(const QTemporaryDir &runtimeFolder)
{
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                                 "WAYLAND_DISPLAY", "QT_QPA_PLATFORMTHEME", "PRINTER", "LPDEST"}) {
        qunsetenv(variable);
    }
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder.path()));
    qputenv("QT_LOGGING_RULES", "default.warning=false");
}

int run()
{
    const QTemporaryDir runtimeFolder;
    setEnvironment(runtimeFolder);
    CupsServerFixture cups;
    addQueues(cups);
    std::vector<Candidate> all = candidates();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    measure(all, &Candidate::offscreen);
    const Xvfb screen;
    if (screen.display().isEmpty()) {
        std::fprintf(stderr, "start_bench: Xvfb: does not start; install the package xvfb\n");
    } else {
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("DISPLAY", screen.display());
        measure(all, &Candidate::xvfb);
    }
    printTable(all);
    return screen.display().isEmpty() ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    try {
        return run();
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "start_bench: %s\n", failure.what());
        return 1;
    }
}
