// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/SystemLog.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <string>
#include <vector>

/// Collects the lines of the system's log while it lives.
class CapturedLog
{
public:
    CapturedLog()
    {
        platform::setSystemLogSink([this](const QString &line) { mLines.push_back(line); });
    }
    ~CapturedLog() { platform::setSystemLogSink({}); }
    CapturedLog(const CapturedLog &) = delete;
    CapturedLog &operator=(const CapturedLog &) = delete;

    /// In UTF-8, so that a failure can be read.
    std::vector<std::string> lines() const;

private:
    std::vector<QString> mLines;
};

/// What reaches descriptor 2 while `work` runs.
std::string standardErrorOf(const std::function<void()> &work);

/// A pipe that keeps each write apart. Nothing in it is waited for.
class PacketPipe
{
public:
    PacketPipe();
    ~PacketPipe();
    PacketPipe(const PacketPipe &) = delete;
    PacketPipe &operator=(const PacketPipe &) = delete;

    int in() const { return mEnds[1]; }

    /// The writes so far, in order.
    std::vector<std::string> writes();

private:
    int mEnds[2];
};
