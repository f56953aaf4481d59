// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Captured.h"

#include <QTemporaryFile>

#include <array>
#include <cstdio>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <unistd.h>

std::vector<std::string> CapturedLog::lines() const
{
    std::vector<std::string> result;
    for (const QString &line : mLines) {
        result.push_back(line.toStdString());
    }
    return result;
}

std::string standardErrorOf(const std::function<void()> &work)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    const int former = dup(STDERR_FILENO);
    dup2(file.handle(), STDERR_FILENO);
    work();
    dup2(former, STDERR_FILENO);
    close(former);
    file.seek(0);
    return file.readAll().toStdString();
}

PacketPipe::PacketPipe()
{
    EXPECT_EQ(pipe2(mEnds, O_DIRECT), 0);
    EXPECT_EQ(fcntl(mEnds[0], F_SETFL, O_NONBLOCK | O_DIRECT), 0);
}

PacketPipe::~PacketPipe()
{
    close(mEnds[0]);
    close(mEnds[1]);
}

std::vector<std::string> PacketPipe::writes()
{
    std::vector<std::string> result;
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t size = read(mEnds[0], buffer.data(), buffer.size());
        if (size <= 0) {
            return result;
        }
        result.emplace_back(buffer.data(), size_t(size));
    }
}
