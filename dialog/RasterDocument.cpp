// SPDX-License-Identifier: Apache-2.0
#include "dialog/RasterDocument.h"

#include "dialog/PpdRaster.h"
#include "dialog/RasterFile.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

namespace dialog {

namespace {

bool isFor(const cups_page_header2_t &header, imaging::InputFormat format)
{
    const bool grey = format == imaging::InputFormat::Gray8;
    return header.cupsBitsPerColor == 8 && header.cupsColorOrder == CUPS_ORDER_CHUNKED
        && header.cupsColorSpace == (grey ? CUPS_CSPACE_SW : CUPS_CSPACE_SRGB)
        && header.cupsBitsPerPixel == (grey ? 8U : 24U);
}

/// Nothing when the marks ask for other pages than those of `form`.
std::optional<cups_page_header2_t> headerFor(const DotForm &form, ppd_file_t *ppd)
{
    std::optional<cups_page_header2_t> header = pageHeaderOf(ppd);
    if (!header || !isFor(*header, form.format())) {
        return {};
    }
    // A PPD may name its resolution where libcups does not look for it.
    header->HWResolution[0] = unsigned(form.resolution.width());
    header->HWResolution[1] = unsigned(form.resolution.height());
    header->cupsWidth = unsigned(form.dots.width());
    header->cupsHeight = unsigned(form.dots.height());
    header->cupsBytesPerLine = header->cupsWidth * header->cupsBitsPerPixel / 8;
    return header;
}

bool isMarked(ppd_file_t *ppd, const char *option, std::string_view choice)
{
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option);
    return marked != nullptr && choice == marked->choice;
}

bool isReversed(ppd_file_t *ppd)
{
    if (ppdFindOption(ppd, "OutputOrder") != nullptr) {
        return isMarked(ppd, "OutputOrder", "Reverse");
    }
    const ppd_attr_t *usual = ppdFindAttr(ppd, "DefaultOutputOrder", nullptr);
    return usual != nullptr && usual->value != nullptr
        && std::string_view(usual->value) == "Reverse";
}

} // namespace

std::optional<RasterDocument> RasterDocument::of(DotPages pages, ppd_file_t *ppd, int copies)
{
    if (!hasGraphicsFilter(ppd)) {
        return {};
    }
    const std::optional<cups_page_header2_t> header = headerFor(pages.form, ppd);
    const bool tooLarge = std::any_of(pages.pages.begin(), pages.pages.end(),
                                      [&](int page) { return pages.pixels(page).isTooLarge(); });
    if (!header || tooLarge) {
        return {};
    }
    RasterDocument document;
    document.mPages = std::move(pages);
    document.mHeader = *header;
    document.arrange(ppd, copies);
    return document;
}

// As the filters for documents do it: the printer's filter makes the copies unless the PPD says
// that it cannot, and then each page comes several times in a row. Whole sets are for who asks.
void RasterDocument::arrange(ppd_file_t *ppd, int copies)
{
    std::vector<int> once(mPages.pages.size());
    std::iota(once.begin(), once.end(), 0);
    if (isReversed(ppd)) {
        std::reverse(once.begin(), once.end());
    }
    const bool inSets = isMarked(ppd, "Collate", "True") && once.size() > 1;
    const bool byPrinter = ppd->manual_copies == 0 && !inSets;
    mHeader.NumCopies = byPrinter ? unsigned(copies) : 1;
    const int repeats = byPrinter ? 1 : copies;
    if (inSets) {
        for (int set = 0; set < repeats; ++set) {
            mOrder.insert(mOrder.end(), once.begin(), once.end());
        }
        return;
    }
    for (const int page : once) {
        mOrder.insert(mOrder.end(), std::size_t(repeats), page);
    }
}

int RasterDocument::bands() const
{
    return int(mPages.pages.size()) * mPages.pixels(mPages.pages.front()).bands();
}

Result<std::unique_ptr<QIODevice>> RasterDocument::render(const BandsDone &progress) const
{
    auto file = std::make_unique<RasterFile>();
    if (const auto failure = file->open()) {
        return *failure;
    }
    const int all = bands();
    int done = 0;
    for (const int page : mPages.pages) {
        const SheetPixels pixels = mPages.pixels(page);
        if (const auto failure = file->startPage(mHeader)) {
            return *failure;
        }
        for (int i = 0; i < pixels.bands(); ++i) {
            if (!progress(done++, all)) {
                return Failure{FailureKind::Cancelled, {}, {}};
            }
            Result<PixelBand> band = pixels.band(i);
            if (!band) {
                return band.failure();
            }
            if (const auto failure = file->add(std::move(band).value())) {
                return *failure;
            }
        }
    }
    return RasterFile::inOrder(std::move(file), mOrder);
}

} // namespace dialog
