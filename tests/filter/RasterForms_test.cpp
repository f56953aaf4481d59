// SPDX-License-Identifier: Apache-2.0
#include "filter/FilterProcess.h"
#include "filter/GraphicsDots.h"
#include "filter/GraphicsPpd.h"
#include "filter/OpenPpd.h"
#include "filter/SmallPpd.h"
#include "filter/TestRaster.h"

#include <array>
#include <map>

#include <gmock/gmock.h>

namespace {

using imaging::ColorMode;
using imaging::PageSettings;

/// What libcups makes of the choice Resolution=300dpi; also the size of the pages here.
constexpr unsigned kWidth = 675;
constexpr unsigned kHeight = 6;

struct Form
{
    unsigned bits;
    cups_cspace_t space;
    cups_order_t order;
};

std::string nameOf(const testing::TestParamInfo<Form> &form)
{
    static const std::map<int, std::string> spaces = {
        {CUPS_CSPACE_K, "K"},       {CUPS_CSPACE_W, "W"},       {CUPS_CSPACE_SW, "Sgray"},
        {CUPS_CSPACE_RGB, "Rgb"},   {CUPS_CSPACE_SRGB, "Srgb"}, {CUPS_CSPACE_CMY, "Cmy"},
        {CUPS_CSPACE_CMYK, "Cmyk"}, {CUPS_CSPACE_KCMY, "Kcmy"}};
    const std::array orders = {"Chunked", "Banded", "Planar"};
    return spaces.at(form.param.space) + std::to_string(form.param.bits)
        + orders.at(form.param.order);
}

/// A printer that prints black with 203dpi and in the form with 300dpi.
std::string ppdWith(const Form &form)
{
    return with(smallPpd(), "300]/cupsBitsPerColor 1/cupsColorSpace 3",
                "300]/cupsBitsPerColor " + std::to_string(form.bits) + "/cupsColorOrder "
                    + std::to_string(form.order) + "/cupsColorSpace " + std::to_string(form.space));
}

bool isBlackOnly(const Form &form)
{
    return form.space == CUPS_CSPACE_K || form.space == CUPS_CSPACE_W
        || form.space == CUPS_CSPACE_SW;
}

enum class Dot
{
    White,
    Black,
    Red
};

/// The colours of a dot, full or not, in the order in which they stand in a pixel.
std::vector<bool> colorsOf(Dot dot, cups_cspace_t space)
{
    const bool isInked = dot != Dot::White;
    const bool isBlack = dot == Dot::Black;
    const bool isRed = dot == Dot::Red;
    switch (space) {
    case CUPS_CSPACE_K:
        return {isInked};
    case CUPS_CSPACE_W:
    case CUPS_CSPACE_SW:
        return {!isInked};
    case CUPS_CSPACE_RGB:
    case CUPS_CSPACE_SRGB:
        return {!isBlack, !isInked, !isInked};
    case CUPS_CSPACE_CMY:
        return {isBlack, isInked, isInked};
    case CUPS_CSPACE_CMYK:
        return {false, isRed, isRed, isBlack};
    default:
        return {isBlack, false, isRed, isRed};
    }
}

/// Reads single colours out of a page as the description of CUPS raster has them.
class PageReader
{
public:
    explicit PageReader(const TestPage &page)
        : mPage(page)
        , mHeader(page.header)
    { }

    unsigned at(unsigned x, unsigned y, unsigned color) const
    {
        const unsigned colors = mHeader.cupsNumColors;
        const unsigned bits = mHeader.cupsBitsPerColor;
        const std::size_t row = mHeader.cupsBytesPerLine;
        if (mHeader.cupsColorOrder == CUPS_ORDER_PLANAR) {
            return bitsAt((color * std::size_t(kHeight) + y) * row, x * bits);
        }
        if (mHeader.cupsColorOrder == CUPS_ORDER_BANDED) {
            return bitsAt(y * row + color * row / colors, x * bits);
        }
        const unsigned spare = mHeader.cupsBitsPerPixel - colors * bits;
        return bitsAt(y * row, x * mHeader.cupsBitsPerPixel + spare + color * bits);
    }

private:
    unsigned bitsAt(std::size_t row, unsigned bit) const
    {
        const std::uint8_t byte = mPage.rows.at(row + bit / 8);
        return mHeader.cupsBitsPerColor == 8 ? byte : (byte >> (7 - bit % 8)) & 1;
    }

    const TestPage &mPage;
    const cups_page_header2_t &mHeader;
};

class RasterFormOfThePrinter : public testing::TestWithParam<Form>
{
protected:
    RasterFormOfThePrinter()
    {
        const auto colours =
            isBlackOnly(GetParam()) ? filter::Colours::Black : filter::Colours::BlackAndRed;
        mPpd = std::get<std::string>(filter::withGraphicsOptions(ppdWith(GetParam()), colours));
    }

    TestPage printed(const TestPage &page, const std::string &options) const
    {
        FilterProcess process(LABELGRAPHICS, mPpd);
        process.options = options;
        const FilterResult result = process.run(rasterOf({page}));
        EXPECT_EQ(result.status, 0) << result.log;
        return pagesOf(result.output).at(0);
    }

    /// Compares every pixel.
    static void expectDots(const TestPage &made, const PageDots &dots)
    {
        const PageReader reader(made);
        const unsigned full = made.header.cupsBitsPerColor == 8 ? 255 : 1;
        for (unsigned y = 0; y < kHeight; ++y) {
            for (unsigned x = 0; x < kWidth; ++x) {
                const std::size_t byte = y * std::size_t((kWidth + 7) / 8) + x / 8;
                const unsigned bit = 0x80U >> x % 8;
                const Dot dot = (dots.black[byte] & bit) != 0 ? Dot::Black
                    : (dots.red[byte] & bit) != 0             ? Dot::Red
                                                              : Dot::White;
                const std::vector<bool> colors = colorsOf(dot, made.header.cupsColorSpace);
                for (unsigned c = 0; c < colors.size(); ++c) {
                    ASSERT_EQ(reader.at(x, y, c), colors[c] ? full : 0) << x << ' ' << y;
                }
            }
        }
    }

    std::string mPpd;
};

TEST_P(RasterFormOfThePrinter, IsTheOneThatThePpdAskedForBefore)
{
    auto opened = filter::openPpd(ppdWith(GetParam()));
    auto &ppd = std::get<filter::OpenPpd>(opened);
    ppdMarkOption(ppd.get(), "Resolution", "300dpi");
    cups_page_header2_t asked;
    cupsRasterInterpretPPD(&asked, ppd.get(), 0, nullptr, nullptr);
    ASSERT_EQ(asked.cupsWidth, kWidth);

    const auto made = printed(greyPage(kWidth, kHeight), "Resolution=300dpi").header;
    EXPECT_EQ(made.cupsBitsPerColor, asked.cupsBitsPerColor);
    EXPECT_EQ(made.cupsBitsPerPixel, asked.cupsBitsPerPixel);
    EXPECT_EQ(made.cupsBytesPerLine, asked.cupsBytesPerLine);
    EXPECT_EQ(made.cupsColorOrder, asked.cupsColorOrder);
    EXPECT_EQ(made.cupsColorSpace, asked.cupsColorSpace);
    EXPECT_EQ(made.cupsNumColors, asked.cupsNumColors);
}

TEST_P(RasterFormOfThePrinter, HoldsTheDotsOfTheImagingLibrary)
{
    const TestPage page = rgbPage(kWidth, kHeight);
    expectDots(printed(page, "Resolution=300dpi"), dotsOf(page, {}));
    if (isBlackOnly(GetParam())) {
        return;
    }
    for (const int level : {-20, 0, 9}) {
        PageSettings settings;
        settings.colorMode = ColorMode::BlackRed;
        settings.redLevel = level;
        expectDots(printed(page,
                           "Resolution=300dpi CvMultiColor=CvMultiColorBlackRed CvRedLevel="
                               + std::to_string(level)),
                   dotsOf(page, settings));
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, RasterFormOfThePrinter,
    testing::Values(
        Form{1, CUPS_CSPACE_K, CUPS_ORDER_CHUNKED}, Form{8, CUPS_CSPACE_K, CUPS_ORDER_CHUNKED},
        Form{1, CUPS_CSPACE_W, CUPS_ORDER_CHUNKED}, Form{8, CUPS_CSPACE_W, CUPS_ORDER_BANDED},
        Form{1, CUPS_CSPACE_SW, CUPS_ORDER_PLANAR}, Form{8, CUPS_CSPACE_SW, CUPS_ORDER_CHUNKED},
        Form{1, CUPS_CSPACE_RGB, CUPS_ORDER_CHUNKED}, Form{8, CUPS_CSPACE_RGB, CUPS_ORDER_BANDED},
        Form{8, CUPS_CSPACE_SRGB, CUPS_ORDER_CHUNKED}, Form{1, CUPS_CSPACE_SRGB, CUPS_ORDER_PLANAR},
        Form{1, CUPS_CSPACE_CMY, CUPS_ORDER_CHUNKED}, Form{1, CUPS_CSPACE_CMY, CUPS_ORDER_BANDED},
        Form{8, CUPS_CSPACE_CMY, CUPS_ORDER_PLANAR}, Form{1, CUPS_CSPACE_CMYK, CUPS_ORDER_CHUNKED},
        Form{8, CUPS_CSPACE_CMYK, CUPS_ORDER_CHUNKED}, Form{1, CUPS_CSPACE_CMYK, CUPS_ORDER_PLANAR},
        Form{1, CUPS_CSPACE_KCMY, CUPS_ORDER_CHUNKED}, Form{1, CUPS_CSPACE_KCMY, CUPS_ORDER_BANDED},
        Form{8, CUPS_CSPACE_KCMY, CUPS_ORDER_PLANAR}),
    nameOf);

class TwoColourPrinter : public testing::Test
{
protected:
    /// The page with red chosen, for black raster unless `options` say otherwise.
    TestPage printed(const TestPage &page, const std::string &options)
    {
        FilterProcess process(
            LABELGRAPHICS,
            std::get<std::string>(filter::withGraphicsOptions(
                ppdWith({1, CUPS_CSPACE_CMYK, CUPS_ORDER_PLANAR}), filter::Colours::BlackAndRed)));
        process.options = "CvMultiColor=CvMultiColorBlackRed " + options;
        const FilterResult result = process.run(rasterOf({page}));
        EXPECT_EQ(result.status, 0) << result.log;
        return pagesOf(result.output).at(0);
    }
};

TEST_F(TwoColourPrinter, PrintsRedInBlackWhereItsRasterHasNoPlaceForRed)
{
    const TestPage page = rgbPage(60, 20);
    PageSettings settings;
    settings.colorMode = ColorMode::BlackRed;
    const PageDots dots = dotsOf(page, settings);
    std::vector<std::uint8_t> both;
    for (std::size_t i = 0; i < dots.black.size(); ++i) {
        both.push_back(dots.black[i] | dots.red[i]);
    }
    const TestPage made = printed(page, "");
    EXPECT_EQ(made.header.cupsColorSpace, CUPS_CSPACE_K);
    EXPECT_EQ(made.rows, both);
    EXPECT_NE(dots.black, both);
}

TEST_F(TwoColourPrinter, MovesOnlyTheBorderBetweenBlackAndRedWithTheRedLevel)
{
    const TestPage page = rgbPage(kWidth, kHeight);
    const TestPage low = printed(page, "Resolution=300dpi CvRedLevel=-10");
    const TestPage high = printed(page, "Resolution=300dpi CvRedLevel=10");
    const auto red = [](const TestPage &made) {
        unsigned dots = 0;
        const PageReader reader(made);
        for (unsigned x = 0; x < kWidth; ++x) {
            dots += reader.at(x, 0, 1);
        }
        return dots;
    };
    EXPECT_LT(red(low), red(high));
}

TEST_F(TwoColourPrinter, PrintsGreyWithoutRed)
{
    const TestPage page = greyPage(kWidth, kHeight);
    PageSettings settings;
    settings.colorMode = ColorMode::BlackRed;
    const TestPage made = printed(page, "Resolution=300dpi");
    const PageReader reader(made);
    for (unsigned x = 0; x < kWidth; ++x) {
        ASSERT_EQ(reader.at(x, 0, 1), 0U);
        ASSERT_EQ(reader.at(x, 0, 3), dotsOf(page, {}).black[x / 8] >> (7 - x % 8) & 1U);
    }
}

TEST_F(TwoColourPrinter, PassesOnPagesInTheFormOfThePrintersFilter)
{
    FilterProcess process(
        LABELGRAPHICS,
        std::get<std::string>(filter::withGraphicsOptions(
            ppdWith({8, CUPS_CSPACE_CMYK, CUPS_ORDER_CHUNKED}), filter::Colours::BlackAndRed)));
    process.options = "Resolution=300dpi";
    const TestPage page = pageOf(8, CUPS_CSPACE_CMYK, 4, CUPS_ORDER_CHUNKED, 30, 5);
    EXPECT_EQ(pagesOf(process.run(rasterOf({page})).output).at(0).rows, page.rows);
    process.options = "Resolution=203dpi";
    EXPECT_EQ(process.run(rasterOf({page})).status, 1);
}

} // namespace
