// SPDX-License-Identifier: Apache-2.0
// The stock filter for label printers behind labelgraphics: its commands, taken apart again.
#include "filter/FilterProcess.h"
#include "filter/GraphicsDots.h"
#include "filter/GraphicsPpd.h"
#include "filter/PrintedJob.h"
#include "filter/TestRaster.h"

#include <cstdio>
#include <memory>
#include <stdexcept>

#include <gmock/gmock.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr unsigned kWidth = 205;
constexpr unsigned kHeight = 60;
constexpr std::size_t kRow = (kWidth + 7) / 8;

/// The PPD that CUPS makes of one of its label printers, with the six options.
std::string stockPpd(const std::string &name)
{
    const TestFolder cache;
    const std::string command = "CUPS_CACHEDIR=" + cache.path("")
        + " " CUPS_DRIVERD " cat drv:///sample.drv/" + name + ".ppd 2>/dev/null";
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> pipe(popen(command.c_str(), "r"),
                                                                pclose);
    std::string text;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) {
        text += char(c);
    }
    return std::get<std::string>(filter::withGraphicsOptions(text, filter::Colours::Black));
}

class StockChain : public testing::TestWithParam<std::string>
{ };

TEST_P(StockChain, PrintsTheDotsOfTheImagingLibrary)
{
    const std::string ppd = stockPpd(GetParam());
    FilterProcess graphics(LABELGRAPHICS, ppd);
    const FilterProcess label(STOCK_FILTERS "rastertolabel", ppd);
    const TestPage page = greyPage(kWidth, kHeight);
    for (const char *method : {"Binary", "Dither", "ErrorDiffusion"}) {
        graphics.options = std::string("CvBrightness=4 CvHalftonePattern=") + method;
        imaging::PageSettings settings;
        settings.brightness = 4;
        settings.method = *method == 'B' ? imaging::HalftoneMethod::Binary
            : *method == 'D'             ? imaging::HalftoneMethod::Dither
                                         : imaging::HalftoneMethod::ErrorDiffusion;
        const FilterResult prepared = graphics.run(rasterOf({page}));
        ASSERT_EQ(prepared.status, 0) << prepared.log;
        const FilterResult printed = label.run(prepared.output);
        ASSERT_EQ(printed.status, 0) << printed.log;
        const PrintedJob job = printedJob(GetParam(), printed.output);
        ASSERT_EQ(job.labels.size(), 1U);
        EXPECT_EQ(job.labels[0].rowBytes, kRow);
        EXPECT_EQ(job.labels[0].dotsOf(kHeight), dotsOf(page, settings).black) << method;
    }
}

INSTANTIATE_TEST_SUITE_P(All, StockChain,
                         testing::Values("dymo", "intelbar", "zebra", "zebracpl", "zebraep1",
                                         "zebraep2"),
                         [](const auto &printer) { return printer.param; });

struct Document
{
    const char *name;
    const char *rasterizer;
    const char *file;
    std::size_t pages;
};

class StockDocument : public testing::TestWithParam<Document>
{ };

TEST_P(StockDocument, IsPrintedWithTheDotsOfTheImagingLibrary)
{
    const std::string ppd = stockPpd("zebra");
    FilterProcess rasterizer(GetParam().rasterizer, ppd);
    rasterizer.file = GetParam().file;
    const FilterResult raster = rasterizer.run("");
    const std::vector<TestPage> pages = pagesOf(raster.output);
    ASSERT_EQ(pages.size(), GetParam().pages) << raster.log;

    FilterProcess graphics(LABELGRAPHICS, ppd);
    graphics.options = "CvContrast=6";
    const FilterProcess label(STOCK_FILTERS "rastertolabel", ppd);
    imaging::PageSettings settings;
    settings.contrast = 6;
    Bytes expected;
    for (const TestPage &page : pages) {
        const Bytes dots = dotsOf(page, settings).black;
        expected.insert(expected.end(), dots.begin(), dots.end());
    }
    Bytes printed;
    for (const PrintedLabel &one :
         printedJob("zebra", label.run(graphics.run(raster.output).output).output).labels) {
        printed.insert(printed.end(), one.dots.begin(), one.dots.end());
    }
    EXPECT_EQ(printed, expected);
    // There is something on the label.
    EXPECT_NE(expected, Bytes(expected.size()));
}

INSTANTIATE_TEST_SUITE_P(All, StockDocument,
                         testing::Values(Document{"Picture", STOCK_FILTERS "imagetoraster",
                                                  SOURCE_DIR "/resources/images/Effect.png", 1},
                                         Document{"Pdf", STOCK_FILTERS "pdftoraster",
                                                  SOURCE_DIR "/resources/sample/sample-label.pdf",
                                                  2}),
                         [](const auto &document) { return document.param.name; });

} // namespace
