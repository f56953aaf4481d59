// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelFixture.h"

using testing::IsEmpty;

namespace {

class GraphicsPDELevelSetUp : public LevelTest
{ };

INSTANTIATE_TEST_SUITE_P(Levels, GraphicsPDELevelSetUp, testing::ValuesIn(allLevels()), levelName);

TEST_P(GraphicsPDELevelSetUp, ScaleLabelsAndTitleAreTranslated)
{
    useTranslations();
    makeView();
    initialize();
    EXPECT_EQ(label(GetParam().minimum), "[HC_MinValue]");
    EXPECT_EQ(label(GetParam().middle), "[HC_MidValue]");
    EXPECT_EQ(label(GetParam().maximum), "[HC_MaxValue]");
    EXPECT_EQ(label(GetParam().titleLabel), "[" + std::string(GetParam().title) + " : ]");
}

TEST_P(GraphicsPDELevelSetUp, TitleWithoutTranslationIsShownWithAColon)
{
    makeView();
    initialize();
    EXPECT_EQ(label(GetParam().titleLabel), std::string(GetParam().title) + " : ");
}

TEST_P(GraphicsPDELevelSetUp, WithoutATitleInThePPDTheKeyIsTranslated)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    useTranslations();
    makeView();
    initialize();
    EXPECT_EQ(label(GetParam().titleLabel), "[" + std::string(GetParam().fallbackKey) + "]");
}

TEST_P(GraphicsPDELevelSetUp, NumberAndSliderShowTheDefaultAndSendNothing)
{
    useDefault("5");
    ppd->mark(GetParam().option, "9");
    makeView();
    recordEverything();
    takeCalls();
    initialize();
    EXPECT_EQ(number(), "5");
    EXPECT_EQ(level(), 5);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_P(GraphicsPDELevelSetUp, DefaultBeyondTheSliderStaysInTheNumber)
{
    useDefault("30");
    makeView();
    initialize();
    EXPECT_EQ(number(), "30");
    EXPECT_EQ(level(), 20);
}

TEST_P(GraphicsPDELevelSetUp, DefaultThatIsNoNumberPutsTheSliderTo0)
{
    useDefault("abc");
    makeView();
    control<QSlider>(GetParam().slider)->setValue(3);
    initialize();
    EXPECT_EQ(number(), "abc");
    EXPECT_EQ(level(), 0);
}

TEST_P(GraphicsPDELevelSetUp, UnreadableDefaultKeepsTheNumber)
{
    makeView();
    ppd->option(GetParam().option)->defchoice[0] = '\xE9';
    setNumber("4");
    initialize();
    EXPECT_EQ(number(), "4");
    EXPECT_EQ(level(), 0);
}

TEST_P(GraphicsPDELevelSetUp, SliderMovesInStepsOf1)
{
    makeView();
    control<QSlider>(GetParam().slider)->setSingleStep(7);
    initialize();
    EXPECT_EQ(control<QSlider>(GetParam().slider)->singleStep(), 1);
}

TEST_P(GraphicsPDELevelSetUp, WithoutTheOptionOnlyTheTextsAreSet)
{
    useNoOption();
    useTranslations();
    makeView();
    setNumber("4");
    control<QSlider>(GetParam().slider)->setSingleStep(7);
    initialize();
    EXPECT_EQ(label(GetParam().minimum), "[HC_MinValue]");
    EXPECT_EQ(label(GetParam().titleLabel), "[" + std::string(GetParam().fallbackKey) + "]");
    EXPECT_EQ(number(), "4");
    EXPECT_EQ(level(), 0);
    EXPECT_EQ(control<QSlider>(GetParam().slider)->singleStep(), 7);
}

TEST_P(GraphicsPDELevelSetUp, EachMissingControlIsNoHindranceToTheOthers)
{
    const LevelNames &names = GetParam();
    for (const char *missing :
         {names.minimum, names.middle, names.maximum, names.titleLabel, names.text, names.slider}) {
        useDefault("5");
        panel.reset();
        host.reset();
        makeView({QLatin1String(missing)});
        initialize();
        for (const char *name : {names.minimum, names.middle, names.maximum, names.titleLabel}) {
            EXPECT_TRUE(name == missing || label(name) != "nib") << missing << " " << name;
        }
        EXPECT_TRUE(names.text == missing || number() == "5") << missing;
        EXPECT_TRUE(names.slider == missing || level() == 5) << missing;
    }
}

TEST_P(GraphicsPDELevelSetUp, ShowsSelectionsFromTheTopDown)
{
    makeView();
    for (const auto &[index, expected] : {std::pair(0, 20), std::pair(20, 0), std::pair(40, -20)}) {
        GraphicsPDETestAccess(*panel).select(GetParam().option, index);
        panel->updateUIItem(GetParam().itemType);
        EXPECT_EQ(level(), expected);
        EXPECT_EQ(number(), std::to_string(expected));
    }
}

TEST_P(GraphicsPDELevelSetUp, ShowingASelectionAsksTheHostForNothing)
{
    makeView();
    takeCalls();
    GraphicsPDETestAccess(*panel).select(GetParam().option, 3);
    panel->updateUIItem(GetParam().itemType);
    EXPECT_EQ(level(), 17);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_P(GraphicsPDELevelSetUp, SelectionBeyondTheSliderShowsInTheNumberOnly)
{
    useChoices(levelChoices(43));
    makeView();
    GraphicsPDETestAccess(*panel).select(GetParam().option, 41);
    panel->updateUIItem(GetParam().itemType);
    EXPECT_EQ(number(), "-21");
    EXPECT_EQ(level(), -20);
}

TEST_P(GraphicsPDELevelSetUp, SelectionOfAnotherListShowsAs21)
{
    makeView();
    PDEChoice foreign(ppd->option(GetParam().option)->choices);
    GraphicsPDETestAccess(*panel).selectForeign(GetParam().option, &foreign);
    panel->updateUIItem(GetParam().itemType);
    EXPECT_EQ(number(), "21");
    EXPECT_EQ(level(), 20);
}

} // namespace
