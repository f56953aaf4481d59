// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// How often the program has allocated memory with `new`.
std::size_t allocations();
