// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

namespace imaging {

/// The ways to do the work over rows of pixels; all give the same bytes.
enum class ProcessorPath
{
    Plain,
    Sse2,
    Avx2
};

/// The ways that this processor can go, the fastest last. Plain is always there. Any thread.
std::vector<ProcessorPath> processorPaths();

/// The last of processorPaths().
ProcessorPath fastestPath();

} // namespace imaging
