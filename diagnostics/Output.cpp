// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Output.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <ctime>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace diagnostics {
namespace {

/// How long a full pipe or a stopped terminal is waited for.
constexpr int kPatienceMs = 250;

/// A pipe that has room at all takes as much without blocking.
constexpr qsizetype kPiece = PIPE_BUF;

sigset_t pipeSignal()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

bool isPipeSignalPending()
{
    sigset_t pending;
    sigemptyset(&pending);
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
}

bool blocks(int descriptor)
{
    const int flags = fcntl(descriptor, F_GETFL);
    return flags != -1 && (flags & O_NONBLOCK) == 0;
}

/// Whether a write would not block. Also for a descriptor that is closed: the write will tell.
bool hasRoom(int descriptor)
{
    if (!blocks(descriptor)) {
        return true;
    }
    const QDeadlineTimer deadline(kPatienceMs);
    pollfd entry{descriptor, POLLOUT, 0};
    int ready = -1;
    do {
        ready = poll(&entry, 1, int(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR && !deadline.hasExpired());
    return ready > 0;
}

} // namespace

PipeSignalGuard::PipeSignalGuard()
    : mWasPending(isPipeSignalPending())
{
    const sigset_t set = pipeSignal();
    pthread_sigmask(SIG_BLOCK, &set, &mFormerMask);
}

PipeSignalGuard::~PipeSignalGuard()
{
    if (!mWasPending && isPipeSignalPending()) {
        const sigset_t set = pipeSignal();
        const timespec atOnce{0, 0};
        while (sigtimedwait(&set, nullptr, &atOnce) == -1 && errno == EINTR) { }
    }
    pthread_sigmask(SIG_SETMASK, &mFormerMask, nullptr);
}

DescriptorOutput::DescriptorOutput(int descriptor)
    : mDescriptor(descriptor)
{ }

void DescriptorOutput::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && !mHasGivenUp) {
        if (!hasRoom(mDescriptor)) {
            mHasGivenUp = true;
            return;
        }
        const auto piece = bytes.first(std::min(bytes.size(), kPiece));
        const ssize_t written = ::write(mDescriptor, piece.data(), size_t(piece.size()));
        if (written > 0) {
            bytes = bytes.sliced(written);
        } else if (written == 0 || errno != EINTR) {
            mHasGivenUp = true;
        }
    }
}

void StandardErrorOutput::printPiece(const char *prefix, QByteArrayView piece, const char *end)
{
    mHasGivenUp = mHasGivenUp || !hasRoom(fileno(stderr))
        || std::fprintf(stderr, "%s%.*s%s", prefix, int(piece.size()), piece.data(), end) < 0;
}

void StandardErrorOutput::print(const char *prefix, QByteArrayView text, const char *end)
{
    text = text.isEmpty() ? QByteArrayView("") : text;
    text = text.first(qsizetype(strnlen(text.data(), size_t(text.size()))));
    while (text.size() > kPiece) {
        printPiece(prefix, text.first(kPiece), "");
        text = text.sliced(kPiece);
        prefix = "";
    }
    printPiece(prefix, text, end);
}

} // namespace diagnostics
