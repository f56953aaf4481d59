// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsJob.h"

#include "filter/Cancel.h"
#include "filter/DotWriter.h"
#include "imaging/PagePreparation.h"

#include <vector>

namespace filter {

namespace {

using State = RasterInput::State;

bool isRgb(cups_cspace_t space)
{
    return space == CUPS_CSPACE_RGB || space == CUPS_CSPACE_SRGB || space == CUPS_CSPACE_ADOBERGB;
}

bool isGrey(cups_cspace_t space)
{
    return space == CUPS_CSPACE_W || space == CUPS_CSPACE_SW;
}

/// Black ink as the light that it takes.
void invert(std::span<std::uint8_t> row)
{
    for (std::uint8_t &value : row) {
        value = std::uint8_t(255 - value);
    }
}

std::string pixelsOf(const cups_page_header2_t &header)
{
    return std::to_string(header.cupsBitsPerColor) + " bits for each colour, "
        + std::to_string(header.cupsBitsPerPixel) + " for each pixel, colour space "
        + std::to_string(static_cast<int>(header.cupsColorSpace)) + ", colour order "
        + std::to_string(static_cast<int>(header.cupsColorOrder));
}

} // namespace

GraphicsJob::GraphicsJob(const JobSettings &settings, int input, int output, Log log)
    : mSettings(settings)
    , mInput(input)
    , mOutput(output)
    , mLog(std::move(log))
{ }

bool GraphicsJob::refuse(const std::string &why)
{
    mWhy = why;
    return false;
}

bool GraphicsJob::isWanted(const cups_page_header2_t &header) const
{
    cups_page_header2_t wanted = header;
    mSettings.form.describe(wanted);
    return header.cupsBitsPerColor == wanted.cupsBitsPerColor
        && header.cupsBitsPerPixel == wanted.cupsBitsPerPixel
        && header.cupsColorSpace == wanted.cupsColorSpace
        && header.cupsColorOrder == wanted.cupsColorOrder;
}

GraphicsJob::Kind GraphicsJob::kindOf(const cups_page_header2_t &header) const
{
    const bool isOneRound = header.cupsColorOrder == CUPS_ORDER_CHUNKED || header.cupsNumColors < 2;
    if (header.cupsBitsPerColor == 8 && header.cupsBitsPerPixel == 8 && isOneRound) {
        if (isGrey(header.cupsColorSpace)) {
            return Kind::Grey;
        }
        if (header.cupsColorSpace == CUPS_CSPACE_K) {
            return Kind::Black;
        }
    }
    if (header.cupsBitsPerColor == 8 && header.cupsBitsPerPixel == 24
        && header.cupsColorOrder == CUPS_ORDER_CHUNKED && isRgb(header.cupsColorSpace)) {
        return Kind::Rgb;
    }
    return header.cupsBitsPerColor == 1 || isWanted(header) ? Kind::Dots : Kind::Unknown;
}

bool GraphicsJob::page()
{
    const std::string name = std::to_string(mInput.page());
    mLog("INFO: Preparing page " + name + ".");
    const cups_page_header2_t &header = mInput.header();
    const Kind kind = kindOf(header);
    mLog("DEBUG: Page " + name + " has " + std::to_string(header.cupsWidth) + " x "
         + std::to_string(header.cupsHeight) + " pixels of " + pixelsOf(header) + ".");
    if (kind == Kind::Unknown) {
        return refuse("page " + name + " has pixels that labelgraphics cannot prepare ("
                      + pixelsOf(header)
                      + "); send 8 bits of grey or of red, green and blue together, or 1 bit");
    }
    return kind == Kind::Dots ? passOn() : prepare(kind);
}

bool GraphicsJob::passOn()
{
    if (!mOutput.startPage(mInput.header())) {
        return refuse(mOutput.why());
    }
    std::vector<std::uint8_t> row(mInput.header().cupsBytesPerLine);
    for (std::size_t y = 0; y < mInput.rows(); ++y) {
        if (mInput.readRow(row) == State::Failed) {
            return refuse(mInput.why());
        }
        if (!mOutput.writeRow(row)) {
            return refuse(mOutput.why());
        }
    }
    return mOutput.finishPage() || refuse(mOutput.why());
}

bool GraphicsJob::prepare(Kind kind)
{
    const cups_page_header2_t &header = mInput.header();
    const auto format =
        kind == Kind::Rgb ? imaging::InputFormat::Rgb24 : imaging::InputFormat::Gray8;
    std::vector<std::uint8_t> row(header.cupsBytesPerLine);
    const std::size_t pixels = header.cupsWidth * (kind == Kind::Rgb ? std::size_t(3) : 1);
    if (row.size() < pixels) {
        return refuse("the header of page " + std::to_string(mInput.page())
                      + " is damaged: its rows are shorter than its pixels");
    }
    imaging::PagePreparation preparation(mSettings.page, header.cupsWidth, format);
    std::vector<std::uint8_t> black(preparation.outputRowBytes());
    std::vector<std::uint8_t> red(black.size());
    DotWriter writer(mSettings.form, mOutput);
    if (!writer.start(header)) {
        return refuse(writer.why());
    }
    for (std::size_t y = 0; y < mInput.rows(); ++y) {
        if (mInput.readRow(row) == State::Failed) {
            return refuse(mInput.why());
        }
        if (kind == Kind::Black) {
            invert(row);
        }
        if (!preparation.row(std::span(row).first(pixels), black, red)
            || !writer.write({black, red})) {
            return refuse(writer.why());
        }
    }
    return writer.finish() || refuse(writer.why());
}

GraphicsJob::Outcome GraphicsJob::run()
{
    for (const std::string &warning : mSettings.warnings) {
        mLog("WARNING: " + warning);
    }
    State state = mInput.nextPage();
    while (state == State::Ready && page()) {
        state = mInput.nextPage();
    }
    if (isCancelled()) {
        mLog("DEBUG: The job was cancelled.");
        return Outcome::Cancelled;
    }
    if (state == State::End) {
        return Outcome::Done;
    }
    mLog("ERROR: labelgraphics: " + (mWhy.empty() ? mInput.why() : mWhy) + ".");
    return Outcome::Failed;
}

} // namespace filter
