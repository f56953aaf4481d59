// SPDX-License-Identifier: Apache-2.0
#include "filter/RasterInput.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace filter {

namespace {

/// libcups asks for so much, and for more than a row, only to have something in reserve.
constexpr std::size_t kReserve = 65536;

constexpr std::size_t kSync = 4;

std::string_view textOf(std::span<const std::uint8_t> bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

unsigned number(std::span<const std::uint8_t> bytes, bool isBigEndian)
{
    unsigned value = 0;
    for (std::size_t i = 0; i < sizeof(unsigned); ++i) {
        value = value << 8 | bytes[isBigEndian ? i : sizeof(unsigned) - 1 - i];
    }
    return value;
}

/// An enumeration that a file has filled holds any number, which must not be read as one of it.
template <typename Enumeration> bool isAtMost(const Enumeration &field, Enumeration highest)
{
    unsigned value = 0;
    static_assert(sizeof(field) == sizeof(value));
    std::memcpy(&value, &field, sizeof(value));
    return value <= static_cast<unsigned>(highest);
}

bool isPage(const cups_page_header2_t &header)
{
    return header.cupsWidth > 0 && isAtMost(header.cupsColorOrder, CUPS_ORDER_PLANAR)
        && isAtMost(header.cupsColorSpace, CUPS_CSPACE_DEVICEF);
}

} // namespace

RasterInput::RasterInput(int file)
    : mSource(file)
{ }

/// Never more than libcups uses up, so that the source stands at the end of the page when the page
/// has been read.
ssize_t RasterInput::give(void *self, unsigned char *to, std::size_t count)
{
    auto *input = static_cast<RasterInput *>(self);
    const bool isReserve = count >= kReserve && count > input->mHeader.cupsBytesPerLine;
    return static_cast<ssize_t>(input->mSource.take(to, isReserve ? 1 : count));
}

RasterInput::State RasterInput::fail(const std::string &why)
{
    mWhy = mSource.error() != 0
        ? std::string("the raster cannot be read: ") + std::strerror(mSource.error())
        : why;
    return State::Failed;
}

RasterInput::State RasterInput::open()
{
    const std::string sync(textOf(mSource.peek(kSync)));
    if (sync.empty()) {
        return fail("there are no pages: the input is empty");
    }
    const std::string mirrored(sync.rbegin(), sync.rend());
    const auto isRaster = [](const std::string &word) {
        return word == "RaSt" || word == "RaS2" || word == "RaS3";
    };
    if (!isRaster(sync) && !isRaster(mirrored)) {
        return fail("the input is not CUPS raster, which would begin with RaSt, RaS2 or RaS3");
    }
    mIsBigEndian = isRaster(sync);
    mIsFirstVersion = (mIsBigEndian ? sync : mirrored) == "RaSt";
    mRaster.reset(cupsRasterOpenIO(give, this, CUPS_RASTER_READ));
    return mRaster ? State::Ready : fail("there is no memory to read the raster");
}

std::size_t RasterInput::headerSize() const
{
    return mIsFirstVersion ? sizeof(cups_page_header_t) : sizeof(cups_page_header2_t);
}

/// Before libcups sees the header, as it makes room for whatever that says.
RasterInput::State RasterInput::checkSize()
{
    const std::string name = "page " + std::to_string(mPage);
    const auto bytes = mSource.peek(headerSize());
    if (bytes.size() < headerSize()) {
        return fail("the raster is cut off in the header of " + name);
    }
    const std::size_t place = offsetof(cups_page_header_t, cupsBytesPerLine);
    const unsigned row = number(bytes.subspan(place, sizeof(unsigned)), mIsBigEndian);
    if (row > kLongestRow) {
        return fail(name + " has rows of " + std::to_string(row) + " bytes; "
                    + std::to_string(kLongestRow) + " is the most that can be printed");
    }
    return State::Ready;
}

RasterInput::State RasterInput::nextPage()
{
    if (!mRaster && open() == State::Failed) {
        return State::Failed;
    }
    if (mSource.peek(1).empty()) {
        if (mPage == 0 || mSource.error() != 0) {
            return fail("there are no pages: the input ends at once");
        }
        return State::End;
    }
    ++mPage;
    mRow = 0;
    if (checkSize() == State::Failed) {
        return State::Failed;
    }
    if (cupsRasterReadHeader2(mRaster.get(), &mHeader) == 0 || !isPage(mHeader)) {
        return fail("the header of page " + std::to_string(mPage)
                    + " is damaged: its size, bits and colours do not make a page");
    }
    return State::Ready;
}

std::size_t RasterInput::rows() const
{
    const bool isPlanar = mHeader.cupsColorOrder == CUPS_ORDER_PLANAR;
    return std::size_t(mHeader.cupsHeight) * (isPlanar ? std::max(1U, mHeader.cupsNumColors) : 1);
}

RasterInput::State RasterInput::readRow(std::span<std::uint8_t> row)
{
    ++mRow;
    const auto length = static_cast<unsigned>(row.size());
    if (cupsRasterReadPixels(mRaster.get(), row.data(), length) != length) {
        return fail("the raster is cut off in row " + std::to_string(mRow) + " of "
                    + std::to_string(rows()) + " of page " + std::to_string(mPage));
    }
    return State::Ready;
}

} // namespace filter
