// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEChoice.h"

#include "support/PpdFixture.h"

#include <gmock/gmock.h>

#include <cstring>
#include <regex>

namespace {

class PDEChoiceOfFive : public testing::Test
{
protected:
    PDEChoiceOfFive()
        : ppd(TestPpd::fromText("*PPD-Adobe: \"4.3\"\n"
                                "*LanguageEncoding: UTF-8\n"
                                "*OpenUI *CvTest/Test: PickOne\n"
                                "*DefaultCvTest: Three\n"
                                "*CvTest One/1st: \"\"\n"
                                "*CvTest Two/2nd: \"\"\n"
                                "*CvTest Three/Dr\xC3\xA4i: \"\"\n"
                                "*CvTest Four/Caf\xE9: \"\"\n"
                                "*CvTest three/3rd in small letters: \"\"\n"
                                "*CloseUI: *CvTest\n"))
    { }
    ppd_choice_t *record(int index) { return &ppd.option("CvTest")->choices[index]; }

    TestPpd ppd;
};

TEST_F(PDEChoiceOfFive, HasTheKeywordAndTheTranslationAsTitles)
{
    const PDEChoice choice(record(2));
    EXPECT_EQ(choice.ppdTitle(), QStringLiteral("Three"));
    EXPECT_EQ(choice.userTitle(), QStringLiteral("Dräi"));
    EXPECT_EQ(choice.choice(), record(2));
}

TEST_F(PDEChoiceOfFive, UndecodableTranslationHasNoUserTitle)
{
    const PDEChoice choice(record(3));
    EXPECT_EQ(choice.userTitle(), std::nullopt);
    EXPECT_EQ(choice.ppdTitle(), QStringLiteral("Four"));
}

TEST_F(PDEChoiceOfFive, KeywordOutsideAsciiHasNoPpdTitle)
{
    std::strcpy(record(0)->choice, "Caf\xC3\xA9");
    EXPECT_EQ(PDEChoice(record(0)).ppdTitle(), std::nullopt);
}

TEST_F(PDEChoiceOfFive, EmptyTranslationIsAnEmptyTitle)
{
    record(0)->text[0] = '\0';
    const std::optional<QString> title = PDEChoice(record(0)).userTitle();
    ASSERT_TRUE(title.has_value());
    EXPECT_EQ(*title, QString());
}

TEST_F(PDEChoiceOfFive, TitlesAreMadeOnFirstUseAndKept)
{
    const PDEChoice choice(record(0));
    std::strcpy(record(0)->text, "First");
    std::strcpy(record(0)->choice, "Uno");
    EXPECT_EQ(choice.userTitle(), QStringLiteral("First"));
    EXPECT_EQ(choice.ppdTitle(), QStringLiteral("Uno"));
    std::strcpy(record(0)->text, "Premier");
    std::strcpy(record(0)->choice, "Un");
    EXPECT_EQ(choice.userTitle(), QStringLiteral("First"));
    EXPECT_EQ(choice.ppdTitle(), QStringLiteral("Uno"));
}

TEST_F(PDEChoiceOfFive, OnlyTheExactKeywordOfTheDefaultIsTheDefaultChoice)
{
    EXPECT_TRUE(PDEChoice(record(2)).isDefaultChoice());
    EXPECT_FALSE(PDEChoice(record(0)).isDefaultChoice());
    EXPECT_FALSE(PDEChoice(record(4)).isDefaultChoice()) << "letter case counts";
}

TEST_F(PDEChoiceOfFive, FortyOneBytesOfTheKeywordDecideAboutTheDefault)
{
    ppd_option_t *option = ppd.option("CvTest");
    std::memset(option->defchoice, 'x', PPD_MAX_NAME);
    std::memset(record(0)->choice, 'x', PPD_MAX_NAME);
    EXPECT_TRUE(PDEChoice(record(0)).isDefaultChoice());
    record(0)->choice[PPD_MAX_NAME - 1] = 'y';
    EXPECT_FALSE(PDEChoice(record(0)).isDefaultChoice());
}

TEST(PDEChoice, LeftOversBehindAShorterDefaultDoNotCount)
{
    const TestPpd ppd = TestPpd::fromText("*PPD-Adobe: \"4.3\"\n"
                                          "*OpenUI *CvTest/Test: PickOne\n"
                                          "*DefaultCvTest: LongDefaultName\n"
                                          "*DefaultCvTest: 0\n"
                                          "*CvTest 0/Zero: \"\"\n"
                                          "*CvTest LongDefaultName/Long: \"\"\n"
                                          "*CloseUI: *CvTest\n");
    ppd_option_t *option = ppd.option("CvTest");
    EXPECT_TRUE(PDEChoice(&option->choices[0]).isDefaultChoice());
    EXPECT_FALSE(PDEChoice(&option->choices[1]).isDefaultChoice());
}

TEST_F(PDEChoiceOfFive, DescriptionOfTheThirdSaysThreeOfFive)
{
    const PDEChoice choice(record(2));
    const std::string description = choice.description().toStdString();
    EXPECT_TRUE(std::regex_match(description,
                                 std::regex("<PDEChoice 0x[0-9a-f]+ userTitle:\"Dr\xC3\xA4i\" "
                                            "ppdTitle:\"Three\" marked:NO choice:3 of 5>")))
        << description;
}

TEST_F(PDEChoiceOfFive, DescriptionSaysWhichChoiceIsMarked)
{
    ppd.mark("CvTest", "Two");
    EXPECT_TRUE(PDEChoice(record(1)).description().contains(QStringLiteral("marked:YES choice:2")));
    EXPECT_TRUE(PDEChoice(record(0)).description().contains(QStringLiteral("marked:NO choice:1")));
}

TEST_F(PDEChoiceOfFive, DescriptionShowsAMissingTitleAsNull)
{
    EXPECT_TRUE(PDEChoice(record(3)).description().contains(
        QStringLiteral("userTitle:\"(null)\" ppdTitle:\"Four\"")));
}

TEST_F(PDEChoiceOfFive, TwoWrappersOfOneRecordAreTwoObjects)
{
    const auto first = PDEChoice::choiceWithChoice(record(1));
    const auto second = PDEChoice::choiceWithChoice(record(1));
    EXPECT_NE(first, second);
    EXPECT_EQ(first->choice(), second->choice());
}

TEST(PDEChoice, WithoutARecordHasNoTitlesAndIsNoDefault)
{
    const PDEChoice choice(nullptr);
    EXPECT_EQ(choice.userTitle(), std::nullopt);
    EXPECT_EQ(choice.ppdTitle(), std::nullopt);
    EXPECT_EQ(choice.choice(), nullptr);
    EXPECT_FALSE(choice.isDefaultChoice());
    EXPECT_TRUE(choice.description().endsWith(QStringLiteral("marked:NO choice:0 of 0>")));
}

} // namespace
