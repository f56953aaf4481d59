// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>

#include <sys/resource.h>

/// While it lives, no file of this process grows beyond `bytes`, as if the disk were full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &mBefore);
        mHandler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, mBefore.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &mBefore);
        std::signal(SIGXFSZ, mHandler);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit mBefore{};
    void (*mHandler)(int) = nullptr;
};
