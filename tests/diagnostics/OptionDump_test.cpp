// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/Captured.h"
#include "diagnostics/Diagnostics.h"
#include "platform/TextEncodings.h"
#include "support/PpdFixture.h"

#include <clocale>
#include <cstring>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

TestPpd contrastPpd()
{
    return TestPpd::fromText("*PPD-Adobe: \"4.3\"\n"
                             "*OpenUI *CvContrast/Contrast: PickOne\n"
                             "*OrderDependency: 20.5 AnySetup *CvContrast\n"
                             "*DefaultCvContrast: 0\n"
                             "*CvContrast 5/Five: \"\"\n"
                             "*CvContrast 0/Zero: \"\"\n"
                             "*CloseUI: *CvContrast\n"
                             "*OpenUI *CvBiDiPrint/Both ways: Boolean\n"
                             "*DefaultCvBiDiPrint: True\n"
                             "*CvBiDiPrint True/Yes: \"\"\n"
                             "*CloseUI: *CvBiDiPrint\n");
}

std::vector<std::string> dumpOf(const TestPpd &ppd, const char *keyword)
{
    const CapturedLog log;
    _PDELog_ppd_option_t(ppd.get(), keyword);
    return log.lines();
}

TEST(OptionDump, LogsTheFieldsInOrder)
{
    EXPECT_THAT(dumpOf(contrastPpd(), "CvContrast"),
                ElementsAre("+-+-+-+-+-+-+-+-+-+- start is CvContrast", "***** conflicted | ",
                            "***** keyword | CvContrast", "***** defchoice | 0",
                            "***** text | Contrast", "***** ui == 1", "***** section == 0",
                            "***** order == 20.500000", "***** num_choices == 2",
                            "***** choices->marked | ", "***** choices->choice | 5",
                            "***** choices->text | Five",
                            "+-+-+-+-+-+-+-+-+-+- end is CvContrast"));
}

TEST(OptionDump, BooleanIsKindZero)
{
    const auto lines = dumpOf(contrastPpd(), "CvBiDiPrint");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(5), "***** ui == 0");
    EXPECT_EQ(lines.at(8), "***** num_choices == 1");
}

TEST(OptionDump, FlagsThatAreSetRunOnIntoTheKeyword)
{
    const TestPpd ppd = contrastPpd();
    ppd.option("CvContrast")->conflicted = 1;
    ppd.option("CvContrast")->choices[0].marked = 1;
    const auto lines = dumpOf(ppd, "CvContrast");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(1),
              "***** conflicted | \x01"
              "CvContrast");
    EXPECT_EQ(lines.at(9),
              "***** choices->marked | \x01"
              "5");
}

TEST(OptionDump, FieldsWithoutAnEndAreNotOverrun)
{
    const TestPpd ppd = contrastPpd();
    ppd_option_t *option = ppd.option("CvContrast");
    option->conflicted = 1;
    const ppd_option_t former = *option;
    std::memset(option->defchoice, 'd', sizeof option->defchoice);
    std::memset(option->text, 't', sizeof option->text);
    const auto lines = dumpOf(ppd, "CvContrast");
    *option = former;
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(3), "***** defchoice | " + std::string(41, 'd'));
    EXPECT_EQ(lines.at(4), "***** text | " + std::string(81, 't'));
}

TEST(OptionDump, NoPpdOrNoKeywordIsSaid)
{
    const TestPpd ppd = contrastPpd();
    const CapturedLog log;
    _PDELog_ppd_option_t(nullptr, "CvContrast");
    _PDELog_ppd_option_t(ppd.get(), nullptr);
    _PDELog_ppd_option_t(nullptr, nullptr);
    EXPECT_THAT(log.lines(),
                ElementsAre("PPD file is not loaded!!", "ppdOptionName is NULL!!",
                            "PPD file is not loaded!!"));
}

TEST(OptionDump, UnknownKeywordLogsTheStartAlone)
{
    EXPECT_THAT(dumpOf(contrastPpd(), "CvSharpness"),
                ElementsAre("+-+-+-+-+-+-+-+-+-+- start is CvSharpness"));
    EXPECT_THAT(dumpOf(contrastPpd(), ""), ElementsAre("+-+-+-+-+-+-+-+-+-+- start is "));
}

TEST(OptionDump, KeywordIsNoFormat)
{
    EXPECT_THAT(dumpOf(contrastPpd(), "%s%n"), ElementsAre("+-+-+-+-+-+-+-+-+-+- start is %s%n"));
}

TEST(OptionDump, UndecodableTextsAreNull)
{
    EXPECT_THAT(dumpOf(contrastPpd(), "\xE9"), ElementsAre("+-+-+-+-+-+-+-+-+-+- start is (null)"));
    const TestPpd ppd = contrastPpd();
    std::strcpy(ppd.option("CvContrast")->text, "caf\xE9");
    std::strcpy(ppd.option("CvContrast")->choices[0].text, "f\xC3\xBCnf");
    const auto lines = dumpOf(ppd, "CvContrast");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(4), "***** text | (null)");
    EXPECT_EQ(lines.at(11), "***** choices->text | fünf");
}

TEST(OptionDump, TextsAreInTheSystemEncoding)
{
    const TestPpd ppd = contrastPpd();
    std::strcpy(ppd.option("CvContrast")->text, "caf\x8E");
    platform::setSystemEncoding(platform::TextEncoding::MacRoman);
    const auto lines = dumpOf(ppd, "CvContrast");
    platform::setSystemEncoding(platform::TextEncoding::Utf8);
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(4), "***** text | café");
}

TEST(OptionDump, NumberOfChoicesCountsNotTheirRecords)
{
    const TestPpd ppd = contrastPpd();
    ppd_option_t *option = ppd.option("CvContrast");
    const int former = option->num_choices;
    option->num_choices = 0;
    const auto lines = dumpOf(ppd, "CvContrast");
    option->num_choices = former;
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(10), "***** choices->choice | (null)");
}

TEST(OptionDump, OptionWithoutChoices)
{
    const auto lines =
        dumpOf(TestPpd::fromFile(QStringLiteral("empty-choice-list.ppd")), "CvBrightness");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(8), "***** num_choices == 0");
    EXPECT_EQ(lines.at(9), "***** choices->marked | (null)");
    EXPECT_EQ(lines.at(10), "***** choices->choice | (null)");
    EXPECT_EQ(lines.at(11), "***** choices->text | (null)");
}

} // namespace
