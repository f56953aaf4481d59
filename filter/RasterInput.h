// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filter/ByteSource.h"

#include <memory>
#include <span>
#include <string>

#include <cups/raster.h>

namespace filter {

struct RasterCloser
{
    void operator()(cups_raster_t *raster) const { cupsRasterClose(raster); }
};

/// CUPS raster of any version and byte order, read page by page and row by row. Unlike libcups
/// alone it tells the end from a cut, and no header makes it take more memory than a row of
/// kLongestRow needs. One thread.
class RasterInput
{
public:
    enum class State
    {
        Ready, ///< the page or row is there
        End, ///< there are no more pages
        Failed ///< why() says it
    };

    static constexpr unsigned kLongestRow = 1U << 20;

    /// `file` stays the caller's, and is read from where it stands.
    explicit RasterInput(int file);

    /// Goes on to the next page; all rows of the one before must have been read.
    State nextPage();

    /// Counted from 1.
    unsigned page() const { return mPage; }

    /// The header of the page, in the byte order of this machine.
    const cups_page_header2_t &header() const { return mHeader; }

    /// The rows of the page: its height, for each colour if the colours come one after the other.
    std::size_t rows() const;

    /// Reads the next row of the page into `row`, which has header().cupsBytesPerLine bytes.
    State readRow(std::span<std::uint8_t> row);

    /// What is wrong, as a sentence without its full stop. Empty unless something has failed.
    const std::string &why() const { return mWhy; }

private:
    State open();
    State checkSize();
    State fail(const std::string &why);
    std::size_t headerSize() const;
    static ssize_t give(void *self, unsigned char *to, std::size_t count);

    ByteSource mSource;
    std::unique_ptr<cups_raster_t, RasterCloser> mRaster;
    cups_page_header2_t mHeader{};
    unsigned mPage = 0;
    std::size_t mRow = 0;
    bool mIsBigEndian = false;
    bool mIsFirstVersion = false;
    std::string mWhy;
};

} // namespace filter
