// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsPpd.h"

#include "filter/AskedRaster.h"
#include "filter/FilterRoutes.h"
#include "filter/OpenPpd.h"
#include "filter/SmallPpd.h"

#include <gmock/gmock.h>

namespace {

using namespace filter;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string added(const std::string &text, Colours colours = Colours::Black)
{
    auto result = withGraphicsOptions(text, colours);
    if (const auto *refusal = std::get_if<Refusal>(&result)) {
        throw std::runtime_error(refusal->why);
    }
    return std::get<std::string>(result);
}

OpenPpd opened(const std::string &text)
{
    auto result = openPpd(text);
    if (const auto *why = std::get_if<std::string>(&result)) {
        throw std::runtime_error(*why);
    }
    return std::get<OpenPpd>(std::move(result));
}

/// "keyword/text" of each choice.
std::vector<std::string> choicesOf(const ppd_option_t &option)
{
    std::vector<std::string> choices;
    for (int i = 0; i < option.num_choices; ++i) {
        choices.push_back(std::string(option.choices[i].choice) + "/" + option.choices[i].text);
    }
    return choices;
}

const ppd_option_t &optionOf(const OpenPpd &ppd, const std::string &keyword)
{
    const ppd_option_t *option = ppdFindOption(ppd.get(), keyword.c_str());
    if (!option) {
        throw std::runtime_error("no option " + keyword);
    }
    return *option;
}

std::string twoColourPpd()
{
    return with(smallPpd(), "*DefaultFont",
                R"(*OpenUI *ColorModel/Colours: PickOne
*OrderDependency: 40 AnySetup *ColorModel
*DefaultColorModel: Gray
*ColorModel Gray/Black: "<</cupsColorSpace 3/cupsBitsPerColor 1>>setpagedevice"
*ColorModel RGB/Black and red: "<</cupsColorSpace 1/cupsBitsPerColor 1>>setpagedevice"
*CloseUI: *ColorModel
*DefaultFont)");
}

class AddedOption : public testing::TestWithParam<std::string>
{ };

TEST_P(AddedOption, IsThatOfTheSamplePrinter)
{
    const OpenPpd ppd = opened(added(twoColourPpd(), Colours::BlackAndRed));
    const OpenPpd sample = opened(contentsOf(SOURCE_DIR "/resources/ppd/label-300.ppd"));
    const ppd_option_t &option = optionOf(ppd, GetParam());
    const ppd_option_t &expected = optionOf(sample, GetParam());
    EXPECT_STREQ(option.text, expected.text);
    EXPECT_STREQ(option.defchoice, expected.defchoice);
    EXPECT_EQ(option.ui, expected.ui);
    EXPECT_EQ(choicesOf(option), choicesOf(expected));
}

INSTANTIATE_TEST_SUITE_P(All, AddedOption,
                         testing::Values("CvHalftonePattern", "CvBrightness", "CvContrast",
                                         "CvBiDiPrint", "CvMultiColor", "CvRedLevel"),
                         [](const auto &name) { return name.param; });

TEST(GraphicsPpd, APrinterOfOneColourOffersNoRed)
{
    const OpenPpd ppd = opened(added(smallPpd()));
    EXPECT_THAT(choicesOf(optionOf(ppd, "CvMultiColor")),
                testing::ElementsAre("CvMultiColorMonochrome/Monochrome"));
}

TEST(GraphicsPpd, TheOptionsStandInTheGroupGraphicsInThePanelsOrder)
{
    const OpenPpd ppd = opened(added(smallPpd()));
    const ppd_group_t &group = ppd->groups[ppd->num_groups - 1];
    EXPECT_STREQ(group.name, "Graphics");
    std::vector<std::string> keywords;
    for (int i = 0; i < group.num_options; ++i) {
        keywords.emplace_back(group.options[i].keyword);
    }
    EXPECT_THAT(keywords,
                testing::ElementsAre("CvHalftonePattern", "CvBrightness", "CvContrast",
                                     "CvBiDiPrint", "CvMultiColor", "CvRedLevel"));
}

TEST(GraphicsPpd, LabelgraphicsStandsBeforeThePrintersOwnFilter)
{
    const OpenPpd ppd = opened(added(smallPpd()));
    const auto before = preFilterRoutes(ppd.get());
    ASSERT_EQ(before.size(), 1U);
    EXPECT_EQ(before[0].type, "application/vnd.cups-raster");
    EXPECT_EQ(before[0].program, "labelgraphics");
    const auto own = filterRoutes(ppd.get());
    ASSERT_EQ(own.size(), 1U);
    EXPECT_EQ(own[0].program, "rastertolabel");
}

TEST(GraphicsPpd, AddsItsLinesInOnePieceBeforeTheCommentAtTheEnd)
{
    const std::string text = smallPpd();
    const std::string comment = "*% End of SMALL.PPD\n";
    const std::string result = added(text);
    EXPECT_THAT(result, StartsWith(text.substr(0, text.size() - comment.size())));
    EXPECT_THAT(result, EndsWith("\n\n" + comment));
}

TEST(GraphicsPpd, LeavesBytesOfAnyAsciiBasedEncodingAsTheyAre)
{
    const std::string text = with(smallPpd(), "Resolution/Resolution", "Resolution/Aufl\xf6sung");
    EXPECT_THAT(added(text), HasSubstr("*OpenUI *Resolution/Aufl\xf6sung: PickOne\n"));
}

std::string withLineEnds(const std::string &text, const std::string &lineEnd)
{
    std::string result;
    for (const char c : text) {
        result += c == '\n' ? lineEnd : std::string(1, c);
    }
    return result;
}

class LineEnd : public testing::TestWithParam<std::string>
{ };

TEST_P(LineEnd, OfTheAddedLinesIsThatOfThePpd)
{
    EXPECT_EQ(added(withLineEnds(smallPpd(), GetParam())),
              withLineEnds(added(smallPpd()), GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, LineEnd, testing::Values("\n", "\r\n", "\r"), [](const auto &end) {
    return end.param == "\n" ? "Unix" : end.param == "\r" ? "OldMacintosh" : "Dos";
});

TEST(GraphicsPpd, ALastLineWithoutLineEndGetsOne)
{
    const std::string text = with(smallPpd(), "*% End of SMALL.PPD\n", "*cupsManualCopies: True");
    EXPECT_THAT(added(text), HasSubstr("*cupsManualCopies: True\n\n*% Added by label-ppd"));
}

TEST(GraphicsPpd, EveryLanguageOfThePpdGetsTextsForTheOptions)
{
    const std::string text =
        with(smallPpd(), "*cupsModelNumber", "*cupsLanguages: \"en de pt_BR\"\n*cupsModelNumber");
    const std::string result = added(text);
    EXPECT_THAT(result,
                HasSubstr("*de.Translation CvBrightness/Helligkeit: \"\"\n"
                          "*de.CvBrightness 20/+20: \"\"\n"));
    EXPECT_THAT(result, HasSubstr("*de.CvHalftonePattern Binary/Schwellwert: \"\"\n"));
    // Nobody has written a translation, so the English text stands there.
    EXPECT_THAT(result, HasSubstr("*pt_BR.Translation CvBrightness/Brightness: \"\"\n"));
    EXPECT_THAT(result, Not(HasSubstr("*en.")));
}

TEST(GraphicsPpd, APpdWithoutFurtherLanguagesGetsNoTranslations)
{
    EXPECT_THAT(added(smallPpd()), Not(HasSubstr("Translation")));
}

/// The section and order of an option that asks for 1 bit.
class OptionOf1Bit : public testing::TestWithParam<std::tuple<std::string, std::string>>
{ };

TEST_P(OptionOf1Bit, IsOverruled)
{
    const auto &[order, section] = GetParam();
    const std::string text =
        with(smallPpd(), "20 AnySetup *Resolution", order + " " + section + " *Resolution");
    const OpenPpd ppd = opened(added(text));
    for (const AskedRaster &raster : askedRasters(ppd.get())) {
        EXPECT_EQ(raster.bitsPerColor, 8U) << raster.name();
        EXPECT_EQ(raster.colorSpace, CUPS_CSPACE_SW) << raster.name();
    }
}

INSTANTIATE_TEST_SUITE_P(All, OptionOf1Bit,
                         testing::Combine(testing::Values("0", "20", "9999", "123456.5"),
                                          testing::Values("AnySetup", "DocumentSetup", "Prolog",
                                                          "PageSetup")));

TEST(GraphicsPpd, TheOtherFieldsOfTheRasterStayAsThePrinterWantsThem)
{
    const OpenPpd ppd = opened(added(smallPpd()));
    ppdMarkOption(ppd.get(), "Darkness", "20");
    cups_page_header2_t header;
    cupsRasterInterpretPPD(&header, ppd.get(), 0, nullptr, nullptr);
    EXPECT_EQ(header.cupsCompression, 66U);
    EXPECT_EQ(header.HWResolution[0], 203U);
}

TEST(GraphicsPpd, ATwoColourPageIsAskedForInRgbWhileRedIsChosen)
{
    const OpenPpd ppd = opened(added(twoColourPpd(), Colours::BlackAndRed));
    ppdMarkOption(ppd.get(), "CvMultiColor", "CvMultiColorBlackRed");
    cups_page_header2_t header;
    cupsRasterInterpretPPD(&header, ppd.get(), 0, nullptr, nullptr);
    EXPECT_EQ(header.cupsBitsPerColor, 8U);
    EXPECT_EQ(header.cupsColorSpace, CUPS_CSPACE_SRGB);
}

TEST(GraphicsPpd, TheRasterOfThePrintersFilterIsFoundBehindTheColourModesCode)
{
    // This is how labelgraphics learns what the filter behind it expects.
    const OpenPpd ppd = opened(added(smallPpd()));
    ppd_choice_t *marked = ppdFindMarkedChoice(ppd.get(), "CvMultiColor");
    ASSERT_NE(marked, nullptr);
    char *code = std::exchange(marked->code, nullptr);
    cups_page_header2_t header;
    cupsRasterInterpretPPD(&header, ppd.get(), 0, nullptr, nullptr);
    marked->code = code;
    EXPECT_EQ(header.cupsBitsPerColor, 1U);
    EXPECT_EQ(header.cupsColorSpace, CUPS_CSPACE_K);
}

struct Refused
{
    std::string name;
    std::string text;
    std::string why;
    Colours colours = Colours::Black;
};

void PrintTo(const Refused &refused, std::ostream *stream)
{
    *stream << refused.name;
}

class RefusedPpd : public testing::TestWithParam<Refused>
{ };

TEST_P(RefusedPpd, IsToldWhy)
{
    const auto result = withGraphicsOptions(GetParam().text, GetParam().colours);
    const auto *refusal = std::get_if<Refusal>(&result);
    ASSERT_NE(refusal, nullptr);
    EXPECT_THAT(refusal->why, HasSubstr(GetParam().why));
}

const std::string kFilter = "*cupsFilter: \"application/vnd.cups-raster 50 rastertolabel\"\n";

std::string withFilters(const std::string &lines)
{
    return with(smallPpd(), kFilter, lines);
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedPpd,
    testing::Values(
        Refused{"EmptyFile", "", "the file is empty"},
        Refused{"OtherText", "%!PS-Adobe-3.0\n", "this is not a PPD"},
        Refused{"Utf16", std::string("*\0P\0P\0D\0", 8), "UTF-16"},
        Refused{"BrokenPpd", with(smallPpd(), "*DefaultFont", "DefaultFont"),
                "line 48 keeps libcups from opening it"},
        Refused{"PostScriptPrinter", withFilters(""), "the printer gets PostScript"},
        Refused{"PdfPrinter", withFilters("*cupsFilter: \"application/vnd.cups-pdf 0 topdf\"\n"),
                "none of its filters takes CUPS raster (topdf takes application/vnd.cups-pdf)"},
        Refused{"DriverlessPrinter",
                withFilters("*cupsFilter2: \"image/urf image/urf 0 -\"\n" + kFilter),
                "(- takes image/urf)"},
        Refused{"RasterWithoutFilter",
                withFilters("*cupsFilter: \"application/vnd.cups-raster 0 -\"\n"),
                "without a filter"},
        Refused{"SecondWayIn",
                withFilters(kFilter + "*cupsFilter: \"application/vnd.cups-postscript 0 ps\"\n"),
                "the filter ps takes application/vnd.cups-postscript"},
        Refused{"OtherPreFilter",
                withFilters(kFilter + "*cupsPreFilter: \"application/vnd.cups-raster 0 pre\"\n"),
                "its pre-filter pre takes the place"},
        Refused{"OptionsTwice", added(smallPpd()), "it has the option CvHalftonePattern already"},
        Refused{"OneOfTheOptions",
                with(with(with(with(smallPpd(), "*Darkness/", "*CvRedLevel/"), "*DefaultDarkness",
                               "*DefaultCvRedLevel"),
                          "30 AnySetup *Darkness", "30 AnySetup *CvRedLevel"),
                     "*CloseUI: *Darkness", "*CloseUI: *CvRedLevel"),
                "it has the option CvRedLevel already"},
        Refused{"FourBits",
                with(smallPpd(), "[300 300]/cupsBitsPerColor 1", "[300 300]/cupsBitsPerColor 4"),
                "Resolution=300dpi asks for raster of 4 bits"},
        Refused{"OtherColourSpace", with(smallPpd(), "cupsColorSpace 3", "cupsColorSpace 15"),
                "the default asks for raster of the colour space 15"},
        Refused{"ColourPrinter", twoColourPpd(), "ColorModel=RGB prints in colour"},
        Refused{"RedOnABlackPrinter", smallPpd(), "leave --two-colour out", Colours::BlackAndRed},
        Refused{"BrokenCode",
                with(with(smallPpd(), "20 AnySetup *Resolution", "20 PageSetup *Resolution"),
                     "<</HWResolution[300 300]", "(no end"),
                "Resolution=300dpi keeps the page from being asked for in 8 bits"}),
    [](const auto &refused) { return refused.param.name; });

TEST(GraphicsPpd, AFilterForPrinterCommandsMayStandBesideTheRasterFilter)
{
    const std::string text =
        withFilters(kFilter + "*cupsFilter: \"application/vnd.cups-command 0 commandtolabel\"\n");
    EXPECT_THAT(added(text), HasSubstr("labelgraphics"));
}

TEST(GraphicsPpd, OfAPpdWithBothKindsOfFilterLinesTheSecondKindCounts)
{
    const std::string second =
        "*cupsFilter2: \"application/vnd.cups-raster application/octet-stream 0 maxsize(9) own\"\n";
    const OpenPpd ppd = opened(added(withFilters(second + kFilter)));
    const auto routes = filterRoutes(ppd.get());
    ASSERT_EQ(routes.size(), 1U);
    EXPECT_EQ(routes[0].program, "own");
}

} // namespace
