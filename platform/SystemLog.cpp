// SPDX-License-Identifier: Apache-2.0
#include "platform/SystemLog.h"

#include <QByteArray>
#include <QString>

#include <mutex>
#include <utility>

#include <syslog.h>

namespace platform {
namespace {

std::mutex gSinkMutex;

SystemLogSink &sinkInUse()
{
    static SystemLogSink sink;
    return sink;
}

} // namespace

void systemLog(const QString &line)
{
    std::unique_lock lock(gSinkMutex);
    const SystemLogSink sink = sinkInUse();
    lock.unlock();
    if (sink) {
        sink(line);
        return;
    }
    const QByteArray bytes = line.toUtf8();
    // The line is an argument: as a format its per-cent signs would read the stack.
    syslog(LOG_USER | LOG_DEBUG, "%s", bytes.constData());
}

void setSystemLogSink(SystemLogSink sink)
{
    const std::lock_guard lock(gSinkMutex);
    sinkInUse() = std::move(sink);
}

} // namespace platform
