// SPDX-License-Identifier: Apache-2.0
#include "support/SocketPrinter.h"

#include <array>
#include <chrono>
#include <stdexcept>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds kPatience(60);

} // namespace

SocketPrinter::SocketPrinter()
    : mListening(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    if (::bind(mListening, generic, size) != 0 || ::listen(mListening, 8) != 0
        || ::getsockname(mListening, generic, &size) != 0) {
        ::close(mListening);
        throw std::runtime_error("no port for a printer");
    }
    mPort = ntohs(address.sin_port);
    mThread = std::thread([this] { takeJobs(); });
}

SocketPrinter::~SocketPrinter()
{
    {
        // Ends the waits for the next connection and for the rest of a job.
        const std::lock_guard lock(mMutex);
        mIsOff = true;
        ::shutdown(mListening, SHUT_RDWR);
        ::shutdown(mConnection, SHUT_RDWR);
    }
    mThread.join();
    ::close(mListening);
}

QString SocketPrinter::address() const
{
    return QStringLiteral("socket://127.0.0.1:%1").arg(mPort);
}

void SocketPrinter::takeJobs()
{
    for (;;) {
        const int connection = ::accept4(mListening, nullptr, nullptr, SOCK_CLOEXEC);
        {
            const std::lock_guard lock(mMutex);
            mConnection = connection;
            if (connection < 0 || mIsOff) {
                break;
            }
        }
        const QByteArray bytes = bytesOf(connection);
        const std::lock_guard lock(mMutex);
        ::close(connection);
        mConnection = -1;
        mJobs.push_back(bytes);
        mHasJob.notify_all();
    }
    ::close(mConnection);
}

QByteArray SocketPrinter::bytesOf(int connection)
{
    QByteArray bytes;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = ::read(connection, block.data(), block.size());
        if (count <= 0) {
            return bytes;
        }
        bytes.append(block.data(), static_cast<qsizetype>(count));
    }
}

QByteArray SocketPrinter::nextJob()
{
    std::unique_lock lock(mMutex);
    if (!mHasJob.wait_for(lock, kPatience, [this] { return !mJobs.empty(); })) {
        throw std::runtime_error("no job has come to the printer");
    }
    QByteArray job = mJobs.front();
    mJobs.pop_front();
    return job;
}
