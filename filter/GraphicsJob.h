// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/JobSettings.h"
#include "filter/RasterInput.h"
#include "filter/RasterOutput.h"

#include <functional>
#include <optional>
#include <string>

namespace filter {

/// Prepares the pages of one job for the printer's filter, row by row: memory depends on the width
/// of a page only. One thread.
///
/// Pages in 8 bits of grey, black, or red, green and blue become dots. Pages of 1 bit are dots
/// already and go on as they are, and so do pages in the form that the printer's filter takes.
class GraphicsJob
{
public:
    /// Gets a line for the log of CUPS, without line end: "INFO: Preparing page 1."
    using Log = std::function<void(const std::string &line)>;

    enum class Outcome
    {
        Done,
        Cancelled, ///< after a whole row; nothing more was written
        Failed ///< the log has the reason
    };

    /// The files stay the caller's.
    GraphicsJob(const JobSettings &settings, int input, int output, Log log);

    Outcome run();

private:
    enum class Kind
    {
        Dots,
        Grey,
        Black,
        Rgb,
        Unknown
    };

    Kind kindOf(const cups_page_header2_t &header) const;
    bool isWanted(const cups_page_header2_t &header) const;
    bool page();
    bool passOn();
    bool prepare(Kind kind);
    bool refuse(const std::string &why);

    JobSettings mSettings;
    RasterInput mInput;
    RasterOutput mOutput;
    Log mLog;
    std::string mWhy;
};

} // namespace filter
