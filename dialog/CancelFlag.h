// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>

namespace dialog {

/// Tells a worker, and the libcups call that it is in, to stop. Any thread.
class CancelFlag
{
public:
    void set() { std::atomic_ref(mFlag).store(1); }
    bool isSet() const { return std::atomic_ref(mFlag).load() != 0; }

    /// For the libcups calls that look at a flag now and then.
    int *forCups() { return &mFlag; }

private:
    alignas(std::atomic_ref<int>::required_alignment) mutable int mFlag = 0;
};

} // namespace dialog
