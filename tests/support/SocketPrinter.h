// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

/// A printer on the loopback network, as label printers listen on port 9100: it takes whatever is
/// sent and keeps it, one job for each connection. Failures are exceptions; waits are bounded.
class SocketPrinter
{
public:
    /// Listens on a free port from here on.
    SocketPrinter();
    ~SocketPrinter();
    SocketPrinter(const SocketPrinter &) = delete;
    SocketPrinter &operator=(const SocketPrinter &) = delete;

    /// For the print server: "socket://127.0.0.1:PORT".
    QString address() const;

    /// The bytes of the next job that nobody has asked for yet, when all of them have come.
    QByteArray nextJob();

private:
    void takeJobs();
    static QByteArray bytesOf(int connection);

    int mListening = -1;
    int mConnection = -1;
    bool mIsOff = false;
    int mPort = 0;
    std::mutex mMutex;
    std::condition_variable mHasJob;
    std::deque<QByteArray> mJobs;
    std::thread mThread;
};
