// SPDX-License-Identifier: Apache-2.0
#include "TestPanel.h"
#include "ppd/PDEUtilsMethod.h"

#include <cstring>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BasePDEChoices : public BasePanelTest
{
protected:
    BasePDEChoices()
    {
        init();
        brightness = choicesOf("CvBrightness");
    }

    std::shared_ptr<ChoiceList> choicesOf(const QByteArray &option) const
    {
        return PDEUtilsMethod13::arrayFromPPDOption(testPpd.option(option));
    }

    PDEChoice *select(qint64 index, const ChoiceList *choices)
    {
        return panel->selectionForItem(index, QStringLiteral("CvBrightness"), choices, 64);
    }

    void setDefault(const char *key, const ChoiceList *choices)
    {
        panel->setDefaultChoices(testPpd.option(key), choices, key, QLatin1String(key));
    }

    const ChoiceList empty;
    std::shared_ptr<ChoiceList> brightness;
};

TEST_F(BasePDEChoices, SelectionIsMarkedThenReadBackAndAnswered)
{
    EXPECT_EQ(select(2, brightness.get()), brightness->at(2).get());
    EXPECT_THAT(host->calls, ElementsAre("willChange CvBrightness=2", "updateMarkedSelections 64"));
    EXPECT_EQ(testPpd.marked("CvBrightness"), "2");
    EXPECT_EQ(select(0, brightness.get()), brightness->at(0).get());
    EXPECT_EQ(testPpd.marked("CvBrightness"), "0");
}

TEST_F(BasePDEChoices, IndexOutOfRangeSelectsAndMarksNothing)
{
    for (const qint64 index : {qint64(3), qint64(-1), qint64(1) << 32, qint64(-1) << 32}) {
        EXPECT_EQ(select(index, brightness.get()), nullptr) << index;
    }
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, MissingAndEmptyListsSelectNothing)
{
    EXPECT_EQ(select(0, nullptr), nullptr);
    EXPECT_EQ(select(0, &empty), nullptr);
    EXPECT_EQ(select(-1, &empty), nullptr);
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, ChoiceWithoutAnAsciiKeywordIsAskedForAsNothing)
{
    std::strcpy(testPpd.option("CvBrightness")->choices[1].choice, "\xC3\xA9");
    const auto choices = choicesOf("CvBrightness");
    EXPECT_EQ(select(1, choices.get()), choices->at(1).get());
    EXPECT_THAT(host->calls,
                ElementsAre("willChange CvBrightness=(nil)", "updateMarkedSelections 64"));
}

TEST_F(BasePDEChoices, SelectionWithoutAHostIsReadBackAndAnswered)
{
    panel->initWithCallback(nullptr, nullptr);
    EXPECT_EQ(select(1, brightness.get()), brightness->at(1).get());
    EXPECT_THAT(host->calls, ElementsAre("updateMarkedSelections 64"));
}

TEST_F(BasePDEChoices, MarkedOptionIsThePlaceOfThePPDsMark)
{
    const QString key = QStringLiteral("CvBrightness");
    EXPECT_EQ(panel->indexOfMarkedOption(brightness.get(), key), -1);
    testPpd.mark("CvBrightness", "2");
    EXPECT_EQ(panel->indexOfMarkedOption(brightness.get(), key), 2);
    EXPECT_EQ(panel->indexOfMarkedOption(brightness.get(), QStringLiteral("CvElse")), -1);
    EXPECT_EQ(panel->indexOfMarkedOption(choicesOf("CvNothing").get(), key), -1)
        << "a list without the marked keyword";
    EXPECT_EQ(panel->indexOfMarkedOption(nullptr, key), -1);
    EXPECT_EQ(panel->indexOfMarkedOption(&empty, key), -1);
}

TEST_F(BasePDEChoices, MarkedOptionWithoutAPPDIsNone)
{
    panel->initWithCallback(std::make_shared<RecordingHost>(), nullptr);
    EXPECT_EQ(panel->indexOfMarkedOption(brightness.get(), QStringLiteral("CvBrightness")), -1);
}

TEST_F(BasePDEChoices, MarkedChoiceWithoutAnAsciiKeywordIsInNoList)
{
    testPpd.mark("CvBrightness", "1");
    std::strcpy(testPpd.option("CvBrightness")->choices[1].choice, "\xC3\xA9");
    const auto choices = choicesOf("CvBrightness");
    EXPECT_EQ(panel->indexOfMarkedOption(choices.get(), QStringLiteral("CvBrightness")), -1);
}

TEST_F(BasePDEChoices, IndexForAKeywordIsTheFirstExactMatch)
{
    const auto nothing = choicesOf("CvNothing");
    EXPECT_EQ(panel->indexOfChoices(nothing.get(), QStringLiteral("a")), 0);
    EXPECT_EQ(panel->indexOfChoices(nothing.get(), QStringLiteral("b")), 1);
    EXPECT_EQ(panel->indexOfChoices(nothing.get(), QStringLiteral("A")), -1);
    EXPECT_EQ(panel->indexOfChoices(nothing.get(), QString()), -1);
    const ChoiceList twice{nothing->at(1), nothing->at(0), nothing->at(0)};
    EXPECT_EQ(panel->indexOfChoices(&twice, QStringLiteral("a")), 1);
}

TEST_F(BasePDEChoices, IndexWithoutAListOrAKeywordIsNone)
{
    EXPECT_EQ(panel->indexOfChoices(nullptr, QStringLiteral("a")), -1);
    EXPECT_EQ(panel->indexOfChoices(&empty, QStringLiteral("a")), -1);
    EXPECT_EQ(panel->indexOfChoices(brightness.get(), std::nullopt), -1);
    std::strcpy(testPpd.option("CvBrightness")->choices[1].choice, "\xC3\xA9");
    EXPECT_EQ(panel->indexOfChoices(choicesOf("CvBrightness").get(), std::nullopt), -1)
        << "a choice without a keyword does not match a missing keyword";
}

TEST_F(BasePDEChoices, DefaultIsTheOptionsOwn)
{
    EXPECT_EQ(panel->indexOfDefaultOption(brightness.get()), 1);
}

TEST_F(BasePDEChoices, DefaultOfAListWithoutOneIsNone)
{
    EXPECT_EQ(panel->indexOfDefaultOption(choicesOf("CvNothing").get()), -1);
}

TEST_F(BasePDEChoices, DefaultOfAnEmptyOrMissingListIsZero)
{
    EXPECT_EQ(panel->indexOfDefaultOption(&empty), 0);
    EXPECT_EQ(panel->indexOfDefaultOption(nullptr), 0);
}

TEST_F(BasePDEChoices, DefaultOfAListWithTwoIsTheFirst)
{
    const ChoiceList two{brightness->at(0), brightness->at(1), brightness->at(1)};
    EXPECT_EQ(panel->indexOfDefaultOption(&two), 1);
}

TEST_F(BasePDEChoices, SetDefaultMarksTheDefaultOfAnUnmarkedOption)
{
    setDefault("CvBrightness", brightness.get());
    EXPECT_THAT(host->calls, ElementsAre("willChange CvBrightness=1"));
    EXPECT_EQ(testPpd.marked("CvBrightness"), "1");
}

TEST_F(BasePDEChoices, SetDefaultLeavesAMarkAlone)
{
    testPpd.mark("CvBrightness", "2");
    setDefault("CvBrightness", brightness.get());
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, SetDefaultWithoutAnOptionDoesNothing)
{
    setDefault("CvElse", brightness.get());
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, SetDefaultSkipsTheMarkWhenThereIsNoDefault)
{
    setDefault("CvNothing", choicesOf("CvNothing").get());
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, SetDefaultSkipsTheMarkForAnEmptyOrMissingList)
{
    setDefault("CvBrightness", &empty);
    setDefault("CvBrightness", nullptr);
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, SetDefaultTakesTheIndexFromTheListAndTheKeywordFromTheOption)
{
    const ChoiceList shifted{brightness->at(1), brightness->at(2)};
    setDefault("CvBrightness", &shifted);
    EXPECT_THAT(host->calls, ElementsAre("willChange CvBrightness=0"));
}

TEST_F(BasePDEChoices, SetDefaultSkipsAnIndexBeyondTheOptionsChoices)
{
    const ChoiceList longer{brightness->at(0), brightness->at(0), brightness->at(0),
                            brightness->at(1)};
    setDefault("CvBrightness", &longer);
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEChoices, SetDefaultReadsTheKeywordAsUtf8)
{
    ppd_option_t *option = testPpd.option("CvBrightness");
    std::strcpy(option->choices[1].choice, "\xC3\xA9");
    std::strcpy(option->defchoice, "\xC3\xA9");
    setDefault("CvBrightness", choicesOf("CvBrightness").get());
    EXPECT_THAT(host->calls, ElementsAre("willChange CvBrightness=\xC3\xA9"));
}

TEST_F(BasePDEChoices, SetDefaultLooksForTheMarkUnderTheCTextAndAsksUnderTheString)
{
    testPpd.mark("CvNothing", "a");
    panel->setDefaultChoices(testPpd.option("CvBrightness"), brightness.get(), "CvNothing",
                             QStringLiteral("CvBrightness"));
    EXPECT_THAT(host->calls, IsEmpty());
    panel->setDefaultChoices(testPpd.option("CvBrightness"), brightness.get(), "CvBrightness",
                             QStringLiteral("Other"));
    EXPECT_THAT(host->calls, ElementsAre("willChange Other=1"));
}

} // namespace
