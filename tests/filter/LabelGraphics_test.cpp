// SPDX-License-Identifier: Apache-2.0
#include "filter/FilterProcess.h"
#include "filter/GraphicsDots.h"
#include "filter/GraphicsPpd.h"
#include "filter/SmallPpd.h"
#include "filter/TestRaster.h"

#include <cstring>

#include <gmock/gmock.h>

namespace {

using imaging::HalftoneMethod;
using imaging::PageSettings;
using testing::HasSubstr;
using testing::Not;

std::string blackPpd()
{
    return std::get<std::string>(filter::withGraphicsOptions(smallPpd(), filter::Colours::Black));
}

/// The program as it stands in a queue for black labels.
class LabelGraphics : public testing::Test
{
protected:
    /// The one page that the filter makes of `page`.
    TestPage printed(const TestPage &page, const std::string &options = {})
    {
        mProcess.options = options;
        mResult = mProcess.run(rasterOf({page}));
        EXPECT_EQ(mResult.status, 0) << mResult.log;
        const std::vector<TestPage> pages = pagesOf(mResult.output);
        EXPECT_EQ(pages.size(), 1U);
        return pages.empty() ? TestPage{} : pages.front();
    }

    FilterProcess mProcess{LABELGRAPHICS, blackPpd()};
    FilterResult mResult;
};

struct Setting
{
    const char *name;
    const char *options;
    PageSettings settings;
};

class LabelGraphicsSetting : public LabelGraphics, public testing::WithParamInterface<Setting>
{ };

TEST_P(LabelGraphicsSetting, GivesTheDotsOfTheImagingLibrary)
{
    const TestPage page = greyPage(101, 40);
    EXPECT_EQ(printed(page, GetParam().options).rows, dotsOf(page, GetParam().settings).black);
    EXPECT_THAT(mResult.log, Not(HasSubstr("WARNING")));
}

INSTANTIATE_TEST_SUITE_P(
    All, LabelGraphicsSetting,
    testing::Values(
        Setting{"Defaults", "", {}},
        Setting{"Binary", "CvHalftonePattern=Binary", {HalftoneMethod::Binary}},
        Setting{"Dither", "CvHalftonePattern=Dither", {HalftoneMethod::Dither}},
        Setting{"Diffusion", "CvHalftonePattern=ErrorDiffusion", {}},
        Setting{"Brighter", "CvBrightness=13", {HalftoneMethod::ErrorDiffusion, 13}},
        Setting{"Darkest", "CvBrightness=-20", {HalftoneMethod::ErrorDiffusion, -20}},
        Setting{"MoreContrast", "CvContrast=20", {HalftoneMethod::ErrorDiffusion, 0, 20}},
        Setting{"LessContrast", "CvContrast=-7", {HalftoneMethod::ErrorDiffusion, 0, -7}},
        Setting{"OneWayOnly", "CvBiDiPrint=OFF", {}},
        Setting{"RedLevelInMonochrome", "CvRedLevel=20", {}},
        Setting{"RedThatThePrinterLacks", "CvMultiColor=CvMultiColorMonochrome", {}},
        Setting{"AllTogether",
                "CvHalftonePattern=Dither CvBrightness=3 CvContrast=-4 CvBiDiPrint=OFF "
                "PageSize=w162h90 nonsense=1",
                {HalftoneMethod::Dither, 3, -4}}),
    [](const auto &setting) { return setting.param.name; });

TEST_F(LabelGraphics, TakesDefaultsFromThePpd)
{
    const FilterProcess process(
        LABELGRAPHICS, with(blackPpd(), "*DefaultCvBrightness: 0", "*DefaultCvBrightness: -11"));
    const TestPage page = greyPage(33, 21);
    const auto pages = pagesOf(process.run(rasterOf({page})).output);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0].rows, dotsOf(page, {HalftoneMethod::ErrorDiffusion, -11}).black);
}

TEST_F(LabelGraphics, ChangesOnlyWhatDescribesThePixelsInTheHeader)
{
    TestPage page = greyPage(101, 3);
    const TestPage made = printed(page);
    EXPECT_EQ(made.header.cupsBitsPerColor, 1U);
    EXPECT_EQ(made.header.cupsBitsPerPixel, 1U);
    EXPECT_EQ(made.header.cupsBytesPerLine, 13U);
    EXPECT_EQ(made.header.cupsColorSpace, CUPS_CSPACE_K);
    EXPECT_EQ(made.header.cupsNumColors, 1U);
    page.header.cupsBitsPerColor = page.header.cupsBitsPerPixel = 1;
    page.header.cupsBytesPerLine = 13;
    page.header.cupsColorSpace = CUPS_CSPACE_K;
    EXPECT_EQ(std::memcmp(&made.header, &page.header, sizeof(page.header)), 0);
}

TEST_F(LabelGraphics, TakesEveryWidth)
{
    for (unsigned width = 1; width <= 34; ++width) {
        const TestPage page = greyPage(width, 5, width);
        ASSERT_EQ(printed(page).rows, dotsOf(page, {}).black) << width;
    }
    const TestPage wide = greyPage(70001, 2);
    EXPECT_EQ(printed(wide).rows, dotsOf(wide, {}).black);
}

TEST_F(LabelGraphics, TakesColoursForMonochrome)
{
    for (const auto space : {CUPS_CSPACE_SRGB, CUPS_CSPACE_RGB, CUPS_CSPACE_ADOBERGB}) {
        TestPage page = rgbPage(45, 20);
        page.header.cupsColorSpace = space;
        EXPECT_EQ(printed(page, "CvContrast=5").rows,
                  dotsOf(page, {HalftoneMethod::ErrorDiffusion, 0, 5}).black);
    }
}

TEST_F(LabelGraphics, TakesBlackInkAsTheNegativeOfGrey)
{
    TestPage page = greyPage(45, 20);
    const std::vector<std::uint8_t> expected = dotsOf(page, {}).black;
    for (std::uint8_t &value : page.rows) {
        value = std::uint8_t(255 - value);
    }
    page.header.cupsColorSpace = CUPS_CSPACE_K;
    EXPECT_EQ(printed(page).rows, expected);
    page.header.cupsColorSpace = CUPS_CSPACE_W;
    EXPECT_NE(printed(page).rows, expected);
}

TEST_F(LabelGraphics, LeavesAsideWhatIsBehindThePixelsOfARow)
{
    const TestPage page = greyPage(20, 7);
    TestPage padded = page;
    padded.header.cupsBytesPerLine = 26;
    padded.rows.clear();
    for (std::size_t y = 0; y < 7; ++y) {
        padded.rows.insert(padded.rows.end(), page.rows.begin() + 20 * long(y),
                           page.rows.begin() + 20 * long(y + 1));
        padded.rows.insert(padded.rows.end(), 6, 0);
    }
    EXPECT_EQ(printed(padded).rows, dotsOf(page, {}).black);
}

TEST_F(LabelGraphics, BeginsEachPageAnew)
{
    const std::vector<TestPage> pages = {greyPage(50, 30, 1), rgbPage(20, 10, 2),
                                         greyPage(50, 30, 1)};
    mResult = mProcess.run(rasterOf(pages, CUPS_RASTER_WRITE_COMPRESSED));
    const auto made = pagesOf(mResult.output);
    ASSERT_EQ(made.size(), 3U);
    for (std::size_t i = 0; i < made.size(); ++i) {
        EXPECT_EQ(made[i].rows, dotsOf(pages[i], {}).black);
    }
}

TEST_F(LabelGraphics, LeavesCopiesAndCountingToThePrintersFilter)
{
    const std::string raster = rasterOf({greyPage(20, 9), greyPage(20, 9)});
    const std::string once = mProcess.run(raster).output;
    mProcess.copies = "3";
    mResult = mProcess.run(raster);
    EXPECT_EQ(mResult.output, once);
    EXPECT_EQ(pagesOf(once).size(), 2U);
    EXPECT_EQ(pagesOf(once)[0].header.NumCopies, 3U);
    EXPECT_THAT(mResult.log, HasSubstr("INFO: Preparing page 2.\n"));
    EXPECT_THAT(mResult.log, Not(HasSubstr("PAGE:")));
    EXPECT_THAT(mResult.log, Not(HasSubstr("ATTR:")));
}

TEST_F(LabelGraphics, ReadsTheFileThatIsNamed)
{
    const TestFolder folder;
    const TestPage page = greyPage(20, 9);
    mProcess.file = folder.write("page.ras", rasterOf({page}));
    mResult = mProcess.run("not this");
    ASSERT_EQ(pagesOf(mResult.output).size(), 1U);
    EXPECT_EQ(pagesOf(mResult.output)[0].rows, dotsOf(page, {}).black);
}

TEST_F(LabelGraphics, PassesOnDotsAsTheyAre)
{
    for (const auto space : {CUPS_CSPACE_K, CUPS_CSPACE_W}) {
        const TestPage page = pageOf(1, space, 1, CUPS_ORDER_CHUNKED, 43, 12);
        const TestPage made = printed(page, "CvBrightness=20");
        EXPECT_EQ(made.rows, page.rows);
        EXPECT_EQ(std::memcmp(&made.header, &page.header, sizeof(page.header)), 0);
    }
    const TestPage planes = pageOf(1, CUPS_CSPACE_CMY, 3, CUPS_ORDER_PLANAR, 43, 12);
    EXPECT_EQ(printed(planes).rows, planes.rows);
}

TEST_F(LabelGraphics, WarnsOnceOfAnUnknownChoiceAndTakesTheDefault)
{
    const TestPage page = greyPage(40, 10);
    struct Case
    {
        const char *options;
        const char *warning;
    };
    for (const Case &bad :
         {Case{"CvBrightness=21",
               "CvBrightness=21, which is no choice of this printer; its default "
               "0 is used."},
          Case{"CvContrast=high", "CvContrast=high, which is"},
          Case{"CvHalftonePattern=Rosette",
               "CvHalftonePattern=Rosette, which is no choice of this "
               "printer; its default ErrorDiffusion is used."},
          Case{"CvBiDiPrint=maybe", "CvBiDiPrint=maybe, which is"},
          Case{"CvMultiColor=CvMultiColorBlackRed", "its default CvMultiColorMonochrome is used."},
          Case{"CvRedLevel=", "CvRedLevel=, which is"}}) {
        EXPECT_EQ(printed(page, bad.options).rows, dotsOf(page, {}).black);
        EXPECT_THAT(mResult.log, HasSubstr(std::string("WARNING: The job asks for ")));
        EXPECT_THAT(mResult.log, HasSubstr(bad.warning));
        EXPECT_EQ(mResult.log.find("WARNING"), mResult.log.rfind("WARNING")) << mResult.log;
    }
}

TEST_F(LabelGraphics, AValueCannotWriteLinesOfItsOwnIntoTheLog)
{
    printed(greyPage(8, 2), "CvContrast='a\nPAGE: 1 99'");
    EXPECT_THAT(mResult.log, HasSubstr("CvContrast=a?PAGE: 1 99, which is no choice"));
    EXPECT_THAT(mResult.log, Not(HasSubstr("\nPAGE:")));
}

TEST_F(LabelGraphics, WarnsOfAPpdWhoseDefaultMeansNothing)
{
    const FilterProcess process(
        LABELGRAPHICS,
        with(with(blackPpd(), "*DefaultCvContrast: 0", "*DefaultCvContrast: lots"),
             "*CvContrast 20/", "*CvContrast lots/Lots: \"\"\n*CvContrast 20/"));
    const TestPage page = greyPage(40, 10);
    const FilterResult result = process.run(rasterOf({page}));
    EXPECT_EQ(pagesOf(result.output).at(0).rows, dotsOf(page, {}).black);
    EXPECT_THAT(result.log,
                HasSubstr("WARNING: The printer's PPD has \"lots\" for CvContrast, which means "
                          "nothing; 0 is used.\n"));
}

} // namespace
