// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/ByteSink.h"
#include "filter/RasterInput.h"

#include <memory>
#include <span>
#include <string>

#include <cups/raster.h>

namespace filter {

/// CUPS raster on its way to the printer's filter. Nothing is written before the first page. One
/// thread; the process must ignore SIGPIPE.
class RasterOutput
{
public:
    /// `file` stays the caller's.
    explicit RasterOutput(int file);

    /// Begins a page. Like the other operations no when writing has failed or the job was
    /// cancelled; then nothing more can be written.
    bool startPage(cups_page_header2_t header);

    /// Writes the next row of the page, of header.cupsBytesPerLine bytes.
    bool writeRow(std::span<std::uint8_t> row);

    /// All that was written is on its way.
    bool finishPage();

    /// What is wrong, as a sentence without its full stop.
    std::string why() const;

private:
    static ssize_t accept(void *self, unsigned char *bytes, std::size_t count);

    ByteSink mSink;
    std::unique_ptr<cups_raster_t, RasterCloser> mRaster;
};

} // namespace filter
