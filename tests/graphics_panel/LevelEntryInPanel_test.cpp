// SPDX-License-Identifier: Apache-2.0
// What the rest of the panel does while a level is being typed.
#include "graphics_panel/LevelEntryFixture.h"
#include "platform/Controls.h"

#include <QTest>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Brightness, contrast and red level stand for each other where only the order counts.
class TypedLevels : public LevelEntryTest
{ };

INSTANTIATE_TEST_SUITE_P(Levels, TypedLevels, testing::ValuesIn(allLevels()), levelName);

TEST_P(TypedLevels, AreTakenOverBeforeThePanelIsHidden)
{
    open();
    type("7");
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_EQ(level(), 7);
    EXPECT_THAT(committed(), ElementsAre(std::string(GetParam().option) + "=7"));
}

TEST_P(TypedLevels, AreTakenOverBeforeThePanelIsShownAgain)
{
    open();
    type("7");
    panel->willShow();
    EXPECT_EQ(level(), 7);
    EXPECT_EQ(number(), "7");
    EXPECT_THAT(committed(), ElementsAre(std::string(GetParam().option) + "=7"));
}

TEST_P(TypedLevels, AreTakenOverBeforeTheColourModeIsCommittedForAJob)
{
    open();
    type("7");
    EXPECT_TRUE(panel->shouldPrint());
    const auto changes = committed();
    ASSERT_GE(changes.size(), 2U);
    EXPECT_EQ(changes[0], std::string(GetParam().option) + "=7");
    EXPECT_EQ(changes[1], "CvMultiColor=CvMultiColorMonochrome");
}

TEST_P(TypedLevels, AreTakenOverBeforeTheFourSettingsAreSaved)
{
    open();
    type("99");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    const auto changes = committed();
    ASSERT_EQ(changes.size(), 5U);
    EXPECT_EQ(changes[0], std::string(GetParam().option) + "=20");
    EXPECT_EQ(changes[1], "CvHalftonePattern=ErrorDiffusion");
    EXPECT_EQ(changes[2], GetParam().place == kBrightness ? "CvBrightness=20" : "CvBrightness=0");
    EXPECT_EQ(changes[3], GetParam().place == kContrast ? "CvContrast=20" : "CvContrast=0");
    EXPECT_EQ(changes[4], "CvBiDiPrint=ON");
}

TEST_P(TypedLevels, GiveWayToARestore)
{
    open();
    levelSlider()->setValue(3);
    type("7");
    committed();
    ppd->mark(GetParam().option, "-4");
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_THAT(committed(), IsEmpty());
    // The red level is not among what a restore shows; what is typed there stays to be taken over.
    const bool isRestored = GetParam().place != kRedLevel;
    EXPECT_EQ(number(), isRestored ? "-4" : "7");
}

/// The preview writes the sliders' levels into the number fields whenever it is drawn.
class PreviewWhileTyping : public LevelEntryTest
{
protected:
    BriConView13_v300_ *preview() const { return GraphicsPDETestAccess(*panel).briConView(); }
    QLineEdit *previewText() const
    {
        return GetParam().place == kBrightness ? preview()->brightnessStr()
                                               : preview()->contrastStr();
    }
};

INSTANTIATE_TEST_SUITE_P(Levels, PreviewWhileTyping,
                         testing::Values(allLevels()[0], allLevels()[1]), levelName);

TEST_P(PreviewWhileTyping, TypingDrawsNothing)
{
    open();
    recordEverything();
    type("1");
    type("x");
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_P(PreviewWhileTyping, ADrawingLeavesWhatIsBeingTyped)
{
    open();
    type("1");
    preview()->grab();
    EXPECT_EQ(number(), "1");
    QTest::keyClicks(field(), QStringLiteral("5"));
    preview()->grab();
    key(Qt::Key_Return);
    EXPECT_EQ(number(), "15");
    EXPECT_EQ(level(), 15);
}

TEST_P(PreviewWhileTyping, ADrawingBringsTextAndSliderTogetherAgainAfterwards)
{
    open();
    EXPECT_EQ(previewText(), field());
    type("7");
    key(Qt::Key_Return);
    EXPECT_EQ(previewText(), field());
    type("9");
    key(Qt::Key_Escape);
    EXPECT_EQ(previewText(), field());
    setNumber("8");
    preview()->grab();
    EXPECT_EQ(number(), "7");
}

TEST_P(PreviewWhileTyping, AMoveOfTheSliderEndsTheTyping)
{
    open();
    type("1");
    preview()->grab();
    levelSlider()->setValue(5);
    EXPECT_EQ(number(), "5");
    platform::setStringValue(field(), QStringLiteral("8"));
    preview()->grab();
    EXPECT_EQ(number(), "5");
    EXPECT_EQ(previewText(), field());
}

TEST_P(PreviewWhileTyping, TheOtherFieldStillFollowsItsSlider)
{
    open();
    type("1");
    const char *other = GetParam().place == kBrightness ? "mContrustText" : "mBrightnessText";
    setText(other, "8");
    preview()->grab();
    EXPECT_EQ(text(other), "0");
}

} // namespace
