// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "barcodes/CodeSearch.h"

#include <cstdio>
#include <vector>

namespace barcodes {

/// The time after which a step does not end any more, in seconds. What counts is the time that it
/// computes; the time on the clock, which a busy machine takes from it, is only for one that hangs.
struct StepLimits
{
    unsigned computing = 20;
    unsigned onTheClock = 300;
};

/// Does all `steps`, and writes a line to `to` for each code that they find:
///
///     <bars or field>\t<format>\t<x y of four corners>\t<text as UTF-8, in hexadecimal>
///
/// The steps are done in a child: the library ends its process over some pictures. The next child
/// goes on behind the step that did it. False when not all steps were tried: there was no child to
/// be had, or too many of them ended badly.
bool runSearch(const std::vector<SearchStep> &steps, std::FILE *to, const StepLimits &limits = {});

} // namespace barcodes
