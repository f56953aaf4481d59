// SPDX-License-Identifier: Apache-2.0
#include "filter/TestRaster.h"

#include "filter/MemoryFile.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <stdexcept>

#include <unistd.h>

namespace {

class File
{
public:
    explicit File(const std::string &bytes)
        : mFile(filter::memoryFile(bytes))
    { }
    ~File() { close(mFile); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    int number() const { return mFile; }

    std::string contents() const
    {
        std::string bytes(static_cast<std::size_t>(lseek(mFile, 0, SEEK_END)), '\0');
        if (pread(mFile, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
            throw std::runtime_error("the raster cannot be read back");
        }
        return bytes;
    }

private:
    int mFile;
};

/// Zero bytes end the texts of a header, so they get none.
void fillWithValues(cups_page_header2_t &header)
{
    std::snprintf(header.MediaClass, sizeof(header.MediaClass), "class");
    std::snprintf(header.MediaColor, sizeof(header.MediaColor), "yellow");
    std::snprintf(header.MediaType, sizeof(header.MediaType), "Labels");
    std::snprintf(header.OutputType, sizeof(header.OutputType), "output");
    header.CutMedia = CUPS_CUT_PAGE;
    header.Jog = CUPS_JOG_SET;
    header.LeadingEdge = CUPS_EDGE_LEFT;
    header.HWResolution[0] = 203;
    header.HWResolution[1] = 305;
    header.ImagingBoundingBox[2] = 7;
    header.NumCopies = 3;
    header.PageSize[0] = 162;
    header.PageSize[1] = 90;
    header.cupsMediaType = 2;
    header.cupsCompression = 33;
    header.cupsRowStep = 4;
    header.cupsInteger[5] = 77;
    header.cupsReal[3] = 2.5F;
    std::snprintf(header.cupsString[15], sizeof(header.cupsString[15]), "own");
    std::snprintf(header.cupsPageSizeName, sizeof(header.cupsPageSizeName), "w162h90");
}

unsigned bitsPerPixel(unsigned bits, unsigned colors, cups_order_t order)
{
    if (order != CUPS_ORDER_CHUNKED || colors == 1) {
        return bits;
    }
    return bits == 1 && colors == 3 ? 4 : bits * colors;
}

void writePage(cups_raster_t *raster, TestPage page)
{
    if (cupsRasterWriteHeader2(raster, &page.header) == 0) {
        throw std::runtime_error("libcups refuses the header");
    }
    const unsigned row = page.header.cupsBytesPerLine;
    for (std::size_t place = 0; place + row <= page.rows.size(); place += row) {
        cupsRasterWritePixels(raster, page.rows.data() + place, row);
    }
}

} // namespace

TestPage pageOf(unsigned bits, cups_cspace_t space, unsigned colors, cups_order_t order,
                unsigned width, unsigned height)
{
    TestPage page;
    fillWithValues(page.header);
    page.header.cupsWidth = width;
    page.header.cupsHeight = height;
    page.header.cupsBitsPerColor = bits;
    page.header.cupsBitsPerPixel = bitsPerPixel(bits, colors, order);
    page.header.cupsColorSpace = space;
    page.header.cupsColorOrder = order;
    page.header.cupsNumColors = colors;
    page.header.cupsBytesPerLine =
        (width * page.header.cupsBitsPerPixel + 7) / 8 * (order == CUPS_ORDER_BANDED ? colors : 1);
    page.rows.resize(std::size_t(page.header.cupsBytesPerLine) * height
                     * (order == CUPS_ORDER_PLANAR ? colors : 1));
    std::mt19937 random(width + height);
    std::generate(page.rows.begin(), page.rows.end(), [&] { return std::uint8_t(random()); });
    return page;
}

TestPage greyPage(unsigned width, unsigned height, unsigned seed)
{
    TestPage page = pageOf(8, CUPS_CSPACE_SW, 1, CUPS_ORDER_CHUNKED, width, height);
    std::mt19937 random(seed);
    std::generate(page.rows.begin(), page.rows.end(), [&] { return std::uint8_t(random()); });
    return page;
}

TestPage rgbPage(unsigned width, unsigned height, unsigned seed)
{
    TestPage page = pageOf(8, CUPS_CSPACE_SRGB, 3, CUPS_ORDER_CHUNKED, width, height);
    std::mt19937 random(seed);
    std::generate(page.rows.begin(), page.rows.end(), [&] { return std::uint8_t(random()); });
    return page;
}

std::string rasterOf(const std::vector<TestPage> &pages, cups_mode_t mode)
{
    const File file("");
    cups_raster_t *raster = cupsRasterOpen(file.number(), mode);
    for (const TestPage &page : pages) {
        writePage(raster, page);
    }
    cupsRasterClose(raster);
    return file.contents();
}

void writeLongPage(int file, const TestPage &page, unsigned rows)
{
    TestPage copy = page;
    copy.header.cupsHeight = rows;
    cups_raster_t *raster = cupsRasterOpen(file, CUPS_RASTER_WRITE);
    cupsRasterWriteHeader2(raster, &copy.header);
    for (unsigned y = 0; y < rows; ++y) {
        cupsRasterWritePixels(raster, copy.rows.data(), copy.header.cupsBytesPerLine);
    }
    cupsRasterClose(raster);
}

std::vector<TestPage> pagesOf(const std::string &bytes)
{
    std::vector<TestPage> pages;
    if (bytes.empty()) {
        return pages;
    }
    const File file(bytes);
    cups_raster_t *raster = cupsRasterOpen(file.number(), CUPS_RASTER_READ);
    TestPage page;
    while (raster && cupsRasterReadHeader2(raster, &page.header) != 0) {
        page.rows.clear();
        std::vector<std::uint8_t> row(page.header.cupsBytesPerLine);
        const auto length = static_cast<unsigned>(row.size());
        while (cupsRasterReadPixels(raster, row.data(), length) == length) {
            page.rows.insert(page.rows.end(), row.begin(), row.end());
        }
        pages.push_back(page);
    }
    cupsRasterClose(raster);
    return pages;
}
