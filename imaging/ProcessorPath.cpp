// SPDX-License-Identifier: Apache-2.0
#include "imaging/ProcessorPath.h"

namespace imaging {

std::vector<ProcessorPath> processorPaths()
{
    std::vector<ProcessorPath> paths{ProcessorPath::Plain};
#if defined(__x86_64__)
    paths.push_back(ProcessorPath::Sse2);
    if (__builtin_cpu_supports("avx2")) {
        paths.push_back(ProcessorPath::Avx2);
    }
#endif
    return paths;
}

ProcessorPath fastestPath()
{
    static const ProcessorPath fastest = processorPaths().back();
    return fastest;
}

} // namespace imaging
