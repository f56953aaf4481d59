// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelEntry.h"

#include "graphics_panel/LevelEntryFixture.h"
#include "platform/Controls.h"
#include "platform/NotificationCenter.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LevelEntry : public LevelEntryTest
{
protected:
    std::string choice(const char *level) const
    {
        return std::string(GetParam().option) + '=' + level;
    }
};

INSTANTIATE_TEST_SUITE_P(Levels, LevelEntry, testing::ValuesIn(allLevels()), levelName);

TEST_P(LevelEntry, ReturnTakesTheLevelOverOnce)
{
    open();
    type("7");
    EXPECT_EQ(level(), 0);
    EXPECT_THAT(committed(), IsEmpty());
    key(Qt::Key_Return);
    EXPECT_EQ(level(), 7);
    EXPECT_EQ(number(), "7");
    EXPECT_THAT(committed(), ElementsAre(choice("7")));
    EXPECT_EQ(selected(GetParam().option), 13);
    key(Qt::Key_Return);
    QTest::keyClick(field(), Qt::Key_Tab);
    EXPECT_THAT(committed(), IsEmpty());
    EXPECT_EQ(beeps, 0);
}

TEST_P(LevelEntry, LeavingTheFieldTakesTheLevelOverOnce)
{
    open();
    type("-12");
    QTest::keyClick(field(), Qt::Key_Tab);
    EXPECT_FALSE(field()->hasFocus());
    EXPECT_EQ(level(), -12);
    EXPECT_THAT(committed(), ElementsAre(choice("-12")));
    field()->setFocus();
    type("4");
    control<QCheckBox>("mBiDiPrintChkBx")->setFocus();
    EXPECT_EQ(level(), 4);
    EXPECT_THAT(committed(), ElementsAre(choice("4")));
}

TEST_P(LevelEntry, TheTypedLevelGoesTheWayOfTheSlider)
{
    open();
    takeCalls();
    levelSlider()->setValue(9);
    const auto bySlider = takeCalls();
    levelSlider()->setValue(0);
    takeCalls();
    type("9");
    EXPECT_THAT(takeCalls(), IsEmpty());
    key(Qt::Key_Return);
    EXPECT_EQ(takeCalls(), bySlider);
}

TEST_P(LevelEntry, AnUnchangedLevelCommitsNothing)
{
    open();
    levelSlider()->setValue(5);
    committed();
    type("5");
    key(Qt::Key_Return);
    type("05");
    key(Qt::Key_Return);
    EXPECT_THAT(committed(), IsEmpty());
    EXPECT_EQ(number(), "5");
    EXPECT_EQ(level(), 5);
    EXPECT_EQ(toolTip(), "");
}

TEST_P(LevelEntry, AFieldThatNobodyTypedIntoIsLeftAsItIs)
{
    open();
    setNumber("30");
    key(Qt::Key_Return);
    QTest::keyClick(field(), Qt::Key_Tab);
    EXPECT_EQ(number(), "30");
    EXPECT_THAT(committed(), IsEmpty());
}

TEST_P(LevelEntry, LevelsAreCutToTheBoundsAndThatIsExplained)
{
    open();
    type("99");
    key(Qt::Key_Return);
    EXPECT_EQ(level(), 20);
    EXPECT_EQ(number(), "20");
    EXPECT_THAT(committed(), ElementsAre(choice("20")));
    EXPECT_EQ(toolTip(), "HC_LevelRange");
    type("-99");
    QTest::keyClick(field(), Qt::Key_Tab);
    EXPECT_EQ(number(), "-20");
    EXPECT_THAT(committed(), ElementsAre(choice("-20")));
    EXPECT_EQ(toolTip(), "HC_LevelRange");
    EXPECT_EQ(beeps, 0);
}

TEST_P(LevelEntry, AnEmptyTextAndALoneMinusGoBackToTheSlidersLevel)
{
    open();
    levelSlider()->setValue(-3);
    committed();
    field()->selectAll();
    key(Qt::Key_Delete);
    EXPECT_EQ(number(), "");
    key(Qt::Key_Return);
    EXPECT_EQ(number(), "-3");
    type("-");
    EXPECT_EQ(number(), "-");
    QTest::keyClick(field(), Qt::Key_Tab);
    EXPECT_EQ(number(), "-3");
    EXPECT_EQ(level(), -3);
    EXPECT_THAT(committed(), IsEmpty());
}

TEST_P(LevelEntry, EscapeBringsTheSlidersLevelBack)
{
    open();
    levelSlider()->setValue(6);
    committed();
    type("15");
    key(Qt::Key_Escape);
    EXPECT_EQ(number(), "6");
    QTest::keyClick(field(), Qt::Key_Tab);
    EXPECT_EQ(level(), 6);
    EXPECT_THAT(committed(), IsEmpty());
}

TEST_P(LevelEntry, ArrowsStepByOneAndPageKeysByFive)
{
    open();
    key(Qt::Key_Up);
    EXPECT_EQ(number(), "1");
    EXPECT_THAT(committed(), ElementsAre(choice("1")));
    key(Qt::Key_PageUp);
    EXPECT_EQ(level(), 6);
    key(Qt::Key_Down);
    key(Qt::Key_PageDown);
    EXPECT_EQ(level(), 0);
    EXPECT_EQ(number(), "0");
    EXPECT_THAT(committed(), ElementsAre(choice("6"), choice("5"), choice("0")));
}

TEST_P(LevelEntry, StepsEndAtTheBounds)
{
    open();
    levelSlider()->setValue(18);
    committed();
    key(Qt::Key_PageUp);
    key(Qt::Key_PageUp);
    key(Qt::Key_Up);
    EXPECT_EQ(number(), "20");
    EXPECT_THAT(committed(), ElementsAre(choice("20")));
    levelSlider()->setValue(-20);
    committed();
    key(Qt::Key_Down);
    EXPECT_THAT(committed(), IsEmpty());
    EXPECT_EQ(number(), "-20");
}

TEST_P(LevelEntry, AStepStartsFromWhatIsTyped)
{
    open();
    type("7");
    key(Qt::Key_Up);
    EXPECT_EQ(number(), "8");
    EXPECT_THAT(committed(), ElementsAre(choice("8")));
    type("-");
    key(Qt::Key_Down);
    EXPECT_THAT(committed(), ElementsAre(choice("7")));
    type("99");
    key(Qt::Key_Down);
    EXPECT_THAT(committed(), ElementsAre(choice("19")));
    EXPECT_EQ(toolTip(), "HC_LevelRange");
}

TEST_P(LevelEntry, ARefusedKeyBeepsOnceAndExplainsItself)
{
    open();
    std::vector<std::string> posts;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(
        &posts,
        [&posts](const platform::Notification &posted) {
            posts.push_back(posted.name.toStdString());
        },
        std::nullopt);
    type("1x");
    center.removeObserver(&posts);
    EXPECT_EQ(number(), "1");
    EXPECT_EQ(beeps, 1);
    EXPECT_THAT(
        posts,
        ElementsAre("TextFieldResignFirstResponderNotification", "InvalidCharacterNotification"));
    EXPECT_EQ(toolTip(), "HC_LevelRange");
    key(Qt::Key_Return);
    EXPECT_EQ(level(), 1);
}

TEST_P(LevelEntry, WhileTheSliderIsDisabledNothingCanBeTyped)
{
    open();
    levelSlider()->setEnabled(false);
    EXPECT_TRUE(field()->isEnabled());
    type("7");
    key(Qt::Key_Up);
    key(Qt::Key_PageDown);
    key(Qt::Key_Return);
    EXPECT_EQ(number(), "0");
    EXPECT_EQ(level(), 0);
    EXPECT_THAT(committed(), IsEmpty());
    levelSlider()->setEnabled(true);
    type("7");
    key(Qt::Key_Return);
    EXPECT_THAT(committed(), ElementsAre(choice("7")));
}

TEST_P(LevelEntry, ADisabledFieldTakesNoKeys)
{
    open();
    field()->setEnabled(false);
    key(Qt::Key_Up);
    EXPECT_THAT(committed(), IsEmpty());
}

TEST_P(LevelEntry, ALevelThatThePrinterLacksIsExplained)
{
    useChoices(levelChoices(31, 20));
    open();
    levelSlider()->setValue(5);
    committed();
    type("-15");
    key(Qt::Key_Return);
    EXPECT_EQ(level(), 5);
    EXPECT_EQ(number(), "5");
    EXPECT_THAT(committed(), IsEmpty());
    EXPECT_EQ(toolTip(), "HC_LevelMissing");
}

TEST_P(LevelEntry, WithoutTheSliderTheNumberAloneIsTheLevel)
{
    open({QLatin1String(GetParam().slider)});
    type("25");
    key(Qt::Key_Return);
    EXPECT_EQ(number(), "20");
    EXPECT_THAT(committed(), ElementsAre(choice("20")));
    key(Qt::Key_Down);
    EXPECT_EQ(number(), "19");
    EXPECT_THAT(committed(), ElementsAre(choice("19")));
}

TEST_P(LevelEntry, WithoutTheNumberTheSliderWorksOn)
{
    open({QLatin1String(GetParam().text)});
    levelSlider()->setValue(3);
    EXPECT_THAT(committed(), ElementsAre(choice("3")));
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_TRUE(panel->shouldPrint());
}

TEST_P(LevelEntry, AViewThatGoesLeavesTheTypedLevelBehind)
{
    open();
    type("7");
    delete view;
    EXPECT_THAT(committed(), ElementsAre(choice("7")));
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_THAT(committed(), IsEmpty());
    panel.reset();
}

TEST_P(LevelEntry, ReturnEndsTheTypingBeforeItReachesTheDialog)
{
    showPanel();
    QDialog dialog;
    auto *column = new QVBoxLayout(&dialog);
    auto *print = new QPushButton(&dialog);
    print->setDefault(true);
    column->addWidget(view);
    column->addWidget(print);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    int prints = 0;
    QObject::connect(print, &QPushButton::clicked, [&prints] { ++prints; });
    field()->setFocus();
    type("7");
    key(Qt::Key_Return);
    EXPECT_EQ(prints, 0);
    EXPECT_EQ(level(), 7);
    key(Qt::Key_Return);
    EXPECT_EQ(prints, 1);
    type("9");
    key(Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(number(), "7");
    panel.reset();
}

} // namespace
