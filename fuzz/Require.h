// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>

/// Ends the fuzzer with a finding unless `holds`.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}
