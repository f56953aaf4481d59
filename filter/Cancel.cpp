// SPDX-License-Identifier: Apache-2.0
#include "filter/Cancel.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace filter {

namespace {

std::atomic<bool> isAsked = false;

/// A byte in this pipe wakes poll(), also when the signal comes right before it.
std::array<int, 2> wakers = {-1, -1};

extern "C" void noteCancel(int)
{
    const int before = errno;
    isAsked = true;
    if (write(wakers[1], "", 1) < 0) {
        // Full: there is a byte to wake for already.
    }
    errno = before;
}

} // namespace

bool listenForCancel()
{
    if (pipe2(wakers.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return false;
    }
    struct sigaction action
    { };
    action.sa_handler = noteCancel;
    sigemptyset(&action.sa_mask);
    return sigaction(SIGTERM, &action, nullptr) == 0;
}

bool isCancelled()
{
    return isAsked;
}

bool waitFor(int file, short events)
{
    std::array<pollfd, 2> files = {{{file, events, 0}, {wakers[0], POLLIN, 0}}};
    while (!isAsked && poll(files.data(), files.size(), -1) < 0 && errno == EINTR) { }
    return !isAsked;
}

} // namespace filter
