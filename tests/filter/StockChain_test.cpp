// SPDX-License-Identifier: Apache-2.0
// The stock filter for label printers behind labelgraphics: its commands, taken apart again.
#include "filter/FilterProcess.h"
#include "filter/GraphicsDots.h"
#include "filter/GraphicsPpd.h"
#include "filter/TestRaster.h"

#include <array>
#include <cctype>
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

/// Commands of a printer, read from the front.
class Commands
{
public:
    explicit Commands(const std::string &bytes)
        : mBytes(bytes)
    { }

    /// Goes on behind the next `word`; no when there is none.
    bool skipTo(const std::string &word)
    {
        const std::size_t found = mBytes.find(word, mPlace);
        mPlace = found == std::string::npos ? mPlace : found + word.size();
        return found != std::string::npos;
    }

    std::size_t number(std::size_t digits = std::string::npos)
    {
        std::size_t value = 0;
        for (; digits > 0 && std::isdigit(static_cast<unsigned char>(mBytes.at(mPlace))) != 0;
             --digits) {
            value = value * 10 + std::size_t(mBytes[mPlace++] - '0');
        }
        return value;
    }

    char next() { return mBytes.at(mPlace++); }

    void append(Bytes &to, std::size_t count, std::uint8_t mask = 0)
    {
        for (std::size_t i = 0; i < count; ++i) {
            to.push_back(std::uint8_t(next()) ^ mask);
        }
    }

private:
    std::string mBytes;
    std::size_t mPlace = 0;
};

/// ZPL: hexadecimal digits with counts before them (G = 1 .. Y = 19, g = 20 .. z = 400), a comma
/// for zeros to the end of the row, a colon for the row above once more.
Bytes zplLabel(Commands &commands)
{
    const std::size_t total = commands.number();
    commands.next();
    const std::size_t row = commands.number();
    commands.next();
    std::string digits;
    std::size_t count = 0;
    const auto pad = [&](std::size_t to) { digits.append(to - digits.size() % to, '0'); };
    while (digits.size() < 2 * total) {
        const char c = commands.next();
        if (c >= 'G' && c <= 'Y') {
            count += std::size_t(c - 'G' + 1);
        } else if (c >= 'g' && c <= 'z') {
            count += std::size_t(c - 'g' + 1) * 20;
        } else if (c == ',') {
            pad(2 * row);
        } else if (c == ':') {
            digits += digits.substr(digits.size() - 2 * row);
        } else if (std::isxdigit(static_cast<unsigned char>(c)) != 0) {
            digits.append(count == 0 ? 1 : count, c);
            count = 0;
        }
    }
    Bytes dots;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        dots.push_back(std::uint8_t(std::stoi(digits.substr(i, 2), nullptr, 16)));
    }
    return dots;
}

/// The dots of all labels, one after the other.
Bytes zplDots(const std::string &zpl)
{
    Commands commands(zpl);
    Bytes dots;
    while (commands.skipTo("~DGR:CUPS.GRF,")) {
        const Bytes label = zplLabel(commands);
        dots.insert(dots.end(), label.begin(), label.end());
    }
    return dots;
}

/// EPL2: GW, x, y, bytes and height of each row, then its dots, where 1 is paper.
Bytes epl2Dots(const std::string &epl)
{
    Commands commands(epl);
    Bytes dots;
    while (commands.skipTo("\nGW0,")) {
        EXPECT_EQ(commands.number(), dots.size() / kRow);
        commands.next();
        EXPECT_EQ(commands.number(), kRow);
        EXPECT_TRUE(commands.skipTo(",1\n"));
        commands.append(dots, kRow, 0xff);
    }
    return dots;
}

/// EPL1: escape, g, bytes in three digits, then the dots.
Bytes epl1Dots(const std::string &epl)
{
    Commands commands(epl);
    Bytes dots;
    for (unsigned y = 0; y < kHeight && commands.skipTo("\x1bg"); ++y) {
        EXPECT_EQ(commands.number(3), kRow);
        commands.append(dots, kRow);
    }
    return dots;
}

/// CPCL: CG, bytes, height, x and y of each row that has dots, then the dots.
Bytes cpclDots(const std::string &cpcl)
{
    Commands commands(cpcl);
    Bytes dots;
    while (commands.skipTo("CG ")) {
        EXPECT_EQ(commands.number(), kRow);
        EXPECT_TRUE(commands.skipTo(" 1 0 "));
        dots.resize(commands.number() * kRow);
        commands.next();
        commands.append(dots, kRow);
    }
    dots.resize(kHeight * kRow);
    return dots;
}

struct Language
{
    const char *printer;
    Bytes (*dots)(const std::string &);
};

class StockChain : public testing::TestWithParam<Language>
{ };

TEST_P(StockChain, PrintsTheDotsOfTheImagingLibrary)
{
    const std::string ppd = stockPpd(GetParam().printer);
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
        EXPECT_EQ(GetParam().dots(printed.output), dotsOf(page, settings).black) << method;
    }
}

INSTANTIATE_TEST_SUITE_P(All, StockChain,
                         testing::Values(Language{"zebra", zplDots}, Language{"zebraep1", epl1Dots},
                                         Language{"zebraep2", epl2Dots},
                                         Language{"zebracpl", cpclDots}),
                         [](const auto &language) { return language.param.printer; });

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
    EXPECT_EQ(zplDots(label.run(graphics.run(raster.output).output).output), expected);
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
