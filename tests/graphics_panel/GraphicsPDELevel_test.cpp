// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelFixture.h"

#include "platform/Controls.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDELevelSave : public LevelTest
{ };

INSTANTIATE_TEST_SUITE_P(Levels, GraphicsPDELevelSave, testing::ValuesIn(allLevels()), levelName);

TEST_P(GraphicsPDELevelSave, NumberDecidesWhatIsCommitted)
{
    makeView();
    for (const char *number : {"20", "19", "0", "-1", "-20"}) {
        setNumber(number);
        EXPECT_THAT(saved(), ElementsAre(number));
    }
}

TEST_P(GraphicsPDELevelSave, NumberDecidesNotTheSlider)
{
    makeView();
    platform::setIntValue(control<QSlider>(GetParam().slider), 11);
    setNumber("3");
    EXPECT_THAT(saved(), ElementsAre("3"));
}

TEST_P(GraphicsPDELevelSave, TextThatIsNoNumberCountsAs0)
{
    makeView();
    for (const char *number : {"abc", "", "-"}) {
        setNumber(number);
        EXPECT_THAT(saved(), ElementsAre("0")) << number;
    }
}

TEST_P(GraphicsPDELevelSave, NumberAbove20FoldsBack)
{
    makeView();
    setNumber("25");
    EXPECT_THAT(saved(), ElementsAre("15"));
}

TEST_P(GraphicsPDELevelSave, NumberBeyondTheListCommitsTheLastChoice)
{
    makeView();
    for (const char *number : {"-21", "-1000", "61", "2147483647", "-2147483648", "-9999999999"}) {
        setNumber(number);
        EXPECT_THAT(saved(), ElementsAre("-20")) << number;
    }
}

TEST_P(GraphicsPDELevelSave, SmallestIndexCommitsTheFirstChoice)
{
    makeView();
    setNumber("-2147483628");
    EXPECT_THAT(saved(), ElementsAre("20"));
}

TEST_P(GraphicsPDELevelSave, ShortListCommitsItsLastChoice)
{
    for (const auto &[count, last] : {std::pair(21, "0"), std::pair(2, "19"), std::pair(1, "20")}) {
        useChoices(levelChoices(count));
        panel.reset();
        host.reset();
        makeView();
        setNumber("-20");
        EXPECT_THAT(saved(), ElementsAre(last)) << count;
    }
}

TEST_P(GraphicsPDELevelSave, EmptyListSavesNothing)
{
    makeView();
    GraphicsPDETestAccess(*panel).emptyChoices(GetParam().option);
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_P(GraphicsPDELevelSave, WithoutTheOptionNothingIsSaved)
{
    useNoOption();
    makeView();
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_P(GraphicsPDELevelSave, WithoutPrintSettingsNothingIsSaved)
{
    host = std::make_shared<RecordingHost>(&*ppd);
    host->hasSettings = false;
    makeView();
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_P(GraphicsPDELevelSave, WithoutTheNumberFieldTheMarkThenTheDefaultIsCommitted)
{
    useDefault("4");
    makeView({QLatin1String(GetParam().text)});
    EXPECT_THAT(saved(), ElementsAre("4"));
    ppd->mark(GetParam().option, "-8");
    EXPECT_THAT(saved(), ElementsAre("-8"));
}

TEST_P(GraphicsPDELevelSave, WithoutNumberFieldMarkAndDefaultTheSecondChoiceIsCommitted)
{
    useDefault("Nowhere");
    makeView({QLatin1String(GetParam().text)});
    EXPECT_THAT(saved(), ElementsAre("19"));
}

TEST_P(GraphicsPDELevelSave, UnreadableChoiceKeywordIsNotSaved)
{
    makeView();
    ppd->option(GetParam().option)->choices[20].choice[0] = '\xE9';
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_P(GraphicsPDELevelSave, DisabledSliderIsNoHindrance)
{
    makeView();
    control<QSlider>(GetParam().slider)->setEnabled(false);
    setNumber("6");
    EXPECT_THAT(saved(), ElementsAre("6"));
}

class GraphicsPDELevelChange : public LevelTest
{
protected:
    /// Brightness and contrast have a preview, the red level has none.
    bool hasPreview() const { return GetParam().place != kRedLevel; }
    std::vector<std::string> withPreview(std::vector<std::string> calls) const
    {
        if (hasPreview()) {
            calls.insert(calls.begin(), "display preview");
            calls.emplace_back("display preview");
        }
        return calls;
    }
};

INSTANTIATE_TEST_SUITE_P(Levels, GraphicsPDELevelChange, testing::ValuesIn(allLevels()), levelName);

TEST_P(GraphicsPDELevelChange, LevelsStandForChoicesFromTheTopDown)
{
    makeView();
    EXPECT_THAT(changedTo(20), ElementsAre("20"));
    EXPECT_EQ(selected(GetParam().option), 0);
    EXPECT_THAT(changedTo(0), ElementsAre("0"));
    EXPECT_EQ(selected(GetParam().option), 20);
    EXPECT_THAT(changedTo(-20), ElementsAre("-20"));
    EXPECT_EQ(selected(GetParam().option), 40);
}

TEST_P(GraphicsPDELevelChange, UserMoveCommitsReadsBackAndShows)
{
    makeView();
    recordEverything();
    takeCalls();
    moveSlider(GetParam().slider, 5);
    const std::string bits = std::to_string(GetParam().itemType);
    EXPECT_EQ(takeCalls(),
              withPreview({"willChange " + std::string(GetParam().option) + "=5",
                           "updateMarkedSelections " + bits, "updateUIItem " + bits}));
    EXPECT_EQ(number(), "5");
    EXPECT_EQ(ppd->marked(GetParam().option), "5");
}

TEST_P(GraphicsPDELevelChange, LevelBeyondTheListMarksNothingAndShowsTheSelection)
{
    useChoices(levelChoices(21));
    makeView();
    moveSlider(GetParam().slider, 5);
    recordEverything();
    takeCalls();
    moveSlider(GetParam().slider, -20);
    EXPECT_EQ(takeCalls(), withPreview({"updateUIItem " + std::to_string(GetParam().itemType)}));
    EXPECT_EQ(level(), 5);
}

TEST_P(GraphicsPDELevelChange, MissingSliderReadsAsLevel0)
{
    makeView({QLatin1String(GetParam().slider)});
    takeCalls();
    (panel.get()->*GetParam().change)(nullptr);
    EXPECT_THAT(takeChanges(), ElementsAre(std::string(GetParam().option) + "=0"));
    EXPECT_EQ(number(), "0");
}

TEST_P(GraphicsPDELevelChange, MissingNumberFieldIsNoHindrance)
{
    makeView({QLatin1String(GetParam().text)});
    EXPECT_THAT(changedTo(7), ElementsAre("7"));
    EXPECT_EQ(selected(GetParam().option), 13);
}

TEST_P(GraphicsPDELevelChange, WithoutTheOptionNothingIsMarkedOrShown)
{
    useNoOption();
    makeView();
    EXPECT_THAT(changedTo(7), IsEmpty());
    EXPECT_EQ(level(), 7);
    EXPECT_EQ(number(), "0");
}

TEST_P(GraphicsPDELevelChange, WithoutPrintSettingsTheChoiceIsStillMarked)
{
    host = std::make_shared<RecordingHost>(&*ppd);
    host->hasSettings = false;
    makeView();
    EXPECT_THAT(changedTo(7), ElementsAre("7"));
}

TEST(GraphicsPDEBrightnessKeyword, SaveSpellsItAsThePPDTheActionAsThePanel)
{
    // The two ways to commit in a PPD that writes "cvbrightness".
    TestPpd ppd = TestPpd::fromFile(QStringLiteral("other-spelling.ppd"));
    const auto host = std::make_shared<RecordingHost>(&ppd);
    GraphicsPDE13_v300_ panel;
    panel.initWithCallback(host, nullptr);
    panel.saveSetting_Brightness();
    panel.changeBrightness(nullptr);
    EXPECT_THAT(host->changes(), ElementsAre("cvbrightness=0", "CvBrightness=0"));
}

} // namespace
