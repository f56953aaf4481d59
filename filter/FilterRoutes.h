// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <cups/ppd.h>

namespace filter {

/// One way into the printer that a PPD offers: documents of `type` go through `program`, or
/// straight to the device when that is "-".
struct FilterRoute
{
    std::string type;
    std::string program;
};

/// The printer's filters, as libcups has sorted them out: those of *cupsFilter2 if there are any,
/// else those of *cupsFilter.
std::vector<FilterRoute> filterRoutes(ppd_file_t *ppd);

/// The filters that run before the printer's own one.
std::vector<FilterRoute> preFilterRoutes(ppd_file_t *ppd);

} // namespace filter
