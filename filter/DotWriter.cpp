// SPDX-License-Identifier: Apache-2.0
#include "filter/DotWriter.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <cups/cups.h>
#include <unistd.h>

namespace filter {

DotWriter::DotWriter(const RasterForm &form, RasterOutput &output)
    : mForm(form)
    , mOutput(output)
{ }

bool DotWriter::failedSpool()
{
    mWhy =
        std::string("a page for colours one after the other cannot be kept in a temporary file: ")
        + std::strerror(errno);
    return false;
}

/// In the scheduler's folder for them, $TMPDIR.
bool DotWriter::openSpool()
{
    std::array<char, 1024> name{};
    const int file = cupsTempFd(name.data(), name.size());
    if (file < 0) {
        return failedSpool();
    }
    unlink(name.data());
    mSpool.reset(fdopen(file, "w+b"));
    return mSpool || failedSpool();
}

bool DotWriter::start(cups_page_header2_t header)
{
    mForm.describe(header);
    mWidth = header.cupsWidth;
    mHeight = header.cupsHeight;
    mRow.resize(header.cupsBytesPerLine);
    if (mForm.isPlanar() && !openSpool()) {
        return false;
    }
    return mOutput.startPage(header);
}

bool DotWriter::keep(std::span<const std::uint8_t> dots)
{
    return std::fwrite(dots.data(), 1, dots.size(), mSpool.get()) == dots.size() || failedSpool();
}

bool DotWriter::write(const DotRow &dots)
{
    if (mSpool) {
        return keep(dots.black) && keep(dots.red);
    }
    mForm.write(dots, mWidth, 0, mRow);
    return mOutput.writeRow(mRow);
}

bool DotWriter::writePlane(unsigned plane)
{
    if (std::fflush(mSpool.get()) != 0 || std::fseek(mSpool.get(), 0, SEEK_SET) != 0) {
        return failedSpool();
    }
    const std::size_t size = (mWidth + 7) / 8;
    std::vector<std::uint8_t> dots(2 * size);
    const std::span<const std::uint8_t> all(dots);
    for (std::size_t y = 0; y < mHeight; ++y) {
        if (std::fread(dots.data(), 1, dots.size(), mSpool.get()) != dots.size()) {
            return failedSpool();
        }
        mForm.write({all.first(size), all.last(size)}, mWidth, plane, mRow);
        if (!mOutput.writeRow(mRow)) {
            return false;
        }
    }
    return true;
}

bool DotWriter::finish()
{
    for (unsigned plane = 0; mSpool && plane < mForm.colors(); ++plane) {
        if (!writePlane(plane)) {
            return false;
        }
    }
    mSpool.reset();
    return mOutput.finishPage();
}

} // namespace filter
