// SPDX-License-Identifier: Apache-2.0
// Apart from its users: g++ 12 takes operators that it can look into for mismatched ones.
#include "CountedAllocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> count = 0;

} // namespace

std::size_t allocations()
{
    return count;
}

// For the whole program, so that nothing escapes.
void *operator new(std::size_t size)
{
    ++count;
    if (void *memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
