// SPDX-License-Identifier: Apache-2.0
#include "platform/SystemLog.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <cstdarg>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include <syslog.h>

namespace {

QString gSentLine;
int gPriority = 0;

void recordSent(int priority, const char *format, va_list arguments)
{
    gPriority = priority;
    gSentLine = QString::vasprintf(format, arguments);
}

} // namespace

// These stand before the C library's own, so that what reaches the system's log can be seen; the
// second is the one that checked builds call.
extern "C" Q_DECL_EXPORT void syslog(int priority, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    recordSent(priority, format, arguments);
    va_end(arguments);
}

extern "C" Q_DECL_EXPORT void __syslog_chk(int priority, int, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    recordSent(priority, format, arguments);
    va_end(arguments);
}

namespace {

class SystemLog : public testing::Test
{
protected:
    ~SystemLog() override { platform::setSystemLogSink({}); }
};

TEST_F(SystemLog, LinesReachTheSinkAsTheyStand)
{
    QStringList lines;
    platform::setSystemLogSink([&lines](const QString &line) { lines << line; });
    platform::systemLog(QStringLiteral("100%s\n%n"));
    platform::systemLog(QString());
    EXPECT_EQ(lines, (QStringList{QStringLiteral("100%s\n%n"), QString()}));
}

TEST_F(SystemLog, WithoutASinkLinesReachTheSystemsLogAsTheyStand)
{
    platform::systemLog(QStringLiteral("caf\u00E9 100%s%n"));
    EXPECT_EQ(gSentLine, QStringLiteral("caf\u00E9 100%s%n"));
    EXPECT_EQ(gPriority, LOG_USER | LOG_DEBUG);
}

TEST_F(SystemLog, EmptySinkRestoresTheSystemsLog)
{
    platform::setSystemLogSink([](const QString &) { FAIL(); });
    platform::setSystemLogSink({});
    platform::systemLog(QStringLiteral("line"));
    EXPECT_EQ(gSentLine, QStringLiteral("line"));
}

TEST_F(SystemLog, SinkMayLogItself)
{
    QStringList lines;
    platform::setSystemLogSink([&lines](const QString &line) {
        lines << line;
        if (lines.size() == 1) {
            platform::systemLog(QStringLiteral("inner"));
        }
    });
    platform::systemLog(QStringLiteral("outer"));
    EXPECT_EQ(lines, (QStringList{QStringLiteral("outer"), QStringLiteral("inner")}));
}

TEST_F(SystemLog, ThreadsMayLogWhileTheSinkIsReplaced)
{
    std::atomic<int> count = 0;
    const auto sink = [&count](const QString &) { ++count; };
    platform::setSystemLogSink(sink);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([] {
            for (int line = 0; line < 500; ++line) {
                platform::systemLog(QStringLiteral("line"));
            }
        });
    }
    for (int i = 0; i < 100; ++i) {
        platform::setSystemLogSink(sink);
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(count, 2000);
}

} // namespace
