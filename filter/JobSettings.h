// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/RasterForm.h"
#include "imaging/PageSettings.h"

#include <string>
#include <variant>
#include <vector>

#include <cups/ppd.h>

namespace filter {

/// What a job asks of its pages.
struct JobSettings
{
    imaging::PageSettings page;
    RasterForm form; ///< what the printer's filter takes
    std::vector<std::string> warnings; ///< sentences about values that were left aside
};

/// What no page can be prepared without, as a sentence without its full stop.
struct NoSettings
{
    std::string why;
};

/// The settings of a job with the `options` of a filter's command line, on a printer with the
/// `ppd` that label-ppd made. Marks the choices; a value that is no choice gives the PPD's default.
std::variant<JobSettings, NoSettings> jobSettings(ppd_file_t *ppd, const char *options);

/// The same for the PPD at `path`, null when the scheduler named none.
std::variant<JobSettings, NoSettings> jobSettings(const char *path, const char *options);

} // namespace filter
