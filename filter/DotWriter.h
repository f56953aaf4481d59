// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/RasterForm.h"
#include "filter/RasterOutput.h"

#include <cstdio>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace filter {

/// Writes the dots of one page in the form that the printer's filter takes. Rows go on at once,
/// except where that takes one colour of the whole page after the other: then the dots wait in a
/// file without a name. One thread.
class DotWriter
{
public:
    DotWriter(const RasterForm &form, RasterOutput &output);

    /// Begins the page of `header`, which is described in the form here. Like the other operations
    /// no when that fails; why() says the reason.
    bool start(cups_page_header2_t header);

    bool write(const DotRow &dots);

    /// After the last row.
    bool finish();

    std::string why() const { return mWhy.empty() ? mOutput.why() : mWhy; }

private:
    struct FileCloser
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    bool openSpool();
    bool keep(std::span<const std::uint8_t> dots);
    bool writePlane(unsigned plane);
    bool failedSpool();

    RasterForm mForm;
    RasterOutput &mOutput;
    std::size_t mWidth = 0;
    std::size_t mHeight = 0;
    std::vector<std::uint8_t> mRow;
    std::unique_ptr<std::FILE, FileCloser> mSpool;
    std::string mWhy;
};

} // namespace filter
