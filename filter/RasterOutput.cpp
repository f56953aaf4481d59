// SPDX-License-Identifier: Apache-2.0
#include "filter/RasterOutput.h"

#include <cerrno>
#include <cstring>

namespace filter {

RasterOutput::RasterOutput(int file)
    : mSink(file)
{ }

ssize_t RasterOutput::accept(void *self, unsigned char *bytes, std::size_t count)
{
    ByteSink &sink = static_cast<RasterOutput *>(self)->mSink;
    return sink.put(bytes, count) ? static_cast<ssize_t>(count) : -1;
}

bool RasterOutput::startPage(cups_page_header2_t header)
{
    if (!mRaster) {
        mRaster.reset(cupsRasterOpenIO(accept, this, CUPS_RASTER_WRITE));
    }
    return mRaster && cupsRasterWriteHeader2(mRaster.get(), &header) != 0;
}

bool RasterOutput::writeRow(std::span<std::uint8_t> row)
{
    const auto length = static_cast<unsigned>(row.size());
    return cupsRasterWritePixels(mRaster.get(), row.data(), length) == length;
}

bool RasterOutput::finishPage()
{
    return mSink.flush();
}

std::string RasterOutput::why() const
{
    if (mSink.error() == EPIPE) {
        return "the printer's filter ended before it had all pages; its own messages say why";
    }
    return std::string("the page cannot be passed on to the printer's filter: ")
        + (mSink.error() != 0 ? std::strerror(mSink.error()) : "libcups refuses its header");
}

} // namespace filter
