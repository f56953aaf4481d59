// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/ColorFixture.h"

#include <QApplication>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDEColorSetUp : public ColorTest
{ };

TEST_F(GraphicsPDEColorSetUp, SetUpEnablesTitlesAndTranslates)
{
    useTranslations();
    makeView();
    popUp()->setEnabled(false);
    panel->initializeUI_Color();
    EXPECT_TRUE(popUp()->isEnabled());
    EXPECT_EQ(label("mColorTitle"), "[Colour mode : ]");
    EXPECT_EQ(items(),
              QStringList({QStringLiteral("[Monochrome]"), QStringLiteral("[Black and red]")}));
}

TEST_F(GraphicsPDEColorSetUp, SetUpGivesTheTitleTheColourOfEnabledText)
{
    makeView();
    auto *title = control<QLabel>("mColorTitle");
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::magenta);
    title->setPalette(palette);
    panel->initializeUI_Color();
    EXPECT_EQ(title->palette().color(QPalette::Active, QPalette::WindowText),
              QApplication::palette().color(QPalette::Active, QPalette::WindowText));
}

TEST_F(GraphicsPDEColorSetUp, SetUpWithoutATitleInThePPDTakesTheKeys)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    useTranslations();
    makeView();
    panel->initializeUI_Color();
    EXPECT_EQ(label("mColorTitle"), "[HC_Color]");
}

TEST_F(GraphicsPDEColorSetUp, ChoicesWithTitlesTakeThePlacesOfTheItems)
{
    useColor("CvMultiColorMonochrome", {"A/T0", "B/T1", "C/T2"});
    makeView();
    panel->initializeUI_Color();
    EXPECT_EQ(items(),
              QStringList({QStringLiteral("T0"), QStringLiteral("T1"), QStringLiteral("T2")}));
}

TEST_F(GraphicsPDEColorSetUp, ChoicesWithTheSameTitleAreBothKept)
{
    useColor("A", {"A/Same", "B/Same"});
    makeView();
    panel->initializeUI_Color();
    EXPECT_EQ(items(), QStringList({QStringLiteral("Same"), QStringLiteral("Same")}));
}

TEST_F(GraphicsPDEColorSetUp, TwoChoicesWithoutTitlesPutBothItemsInFrontTwice)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    makeView();
    panel->initializeUI_Color();
    EXPECT_EQ(items(),
              QStringList({QStringLiteral("HC_Monochrome"), QStringLiteral("HC_BlackRed"),
                           QStringLiteral("HC_Monochrome"), QStringLiteral("HC_BlackRed"),
                           QStringLiteral("nib0"), QStringLiteral("nib1")}));
}

TEST_F(GraphicsPDEColorSetUp, WithoutTicketAndDefaultTheSelectedItemStays)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    makeView();
    setTicket("");
    ppd->option("CvMultiColor")->defchoice[0] = 'X';
    panel->initializeUI_Color();
    EXPECT_EQ(popUp()->currentIndex(), 4);
}

TEST_F(GraphicsPDEColorSetUp, WithoutTicketTheDefaultIsSelected)
{
    useColor("CvMultiColorBlackRed");
    makeView();
    setTicket("");
    recordEverything();
    takeCalls();
    panel->initializeUI_Color();
    EXPECT_EQ(popUp()->currentIndex(), 1);
    EXPECT_THAT(takeCalls(), ElementsAre("printSettings", "pageFormat"));
    EXPECT_EQ(panel->imageModeFlag(), 0);
}

TEST_F(GraphicsPDEColorSetUp, TicketDecidesTheItemAndTheRedSlider)
{
    makeView();
    setTicket("CvMultiColorBlackRed");
    panel->initializeUI_Color();
    panel->initializeUI_RedLevel();
    EXPECT_EQ(popUp()->currentIndex(), 1);
    EXPECT_TRUE(redSliderEnabled());
    setTicket("CvMultiColorMonochrome");
    panel->initializeUI_Color();
    panel->initializeUI_RedLevel();
    EXPECT_EQ(popUp()->currentIndex(), 0);
    EXPECT_FALSE(redSliderEnabled());
}

TEST_F(GraphicsPDEColorSetUp, WithoutAPaperTheItemIsMonochromeWhateverTheTicketSays)
{
    useColor("CvMultiColorBlackRed");
    makeView();
    setTicket("CvMultiColorBlackRed");
    host->format.chosen.reset();
    popUp()->setCurrentIndex(1);
    panel->initializeUI_Color();
    EXPECT_EQ(popUp()->currentIndex(), 0);
}

TEST_F(GraphicsPDEColorSetUp, WithoutTheOptionSetUpAndSaveDoNothing)
{
    usePpdFile(QStringLiteral("no-colour.ppd"));
    makeView();
    takeCalls();
    panel->initializeUI_Color();
    EXPECT_EQ(label("mColorTitle"), "nib");
    EXPECT_EQ(items(), QStringList({QStringLiteral("nib0"), QStringLiteral("nib1")}));
    panel->saveSetting_Color();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDEColorSetUp, MissingControlsAreNoHindranceToTheSetUp)
{
    makeView({QStringLiteral("mColorTitle")});
    panel->initializeUI_Color();
    EXPECT_EQ(items().first(), QStringLiteral("Monochrome"));
    panel.reset();
    makeView({QStringLiteral("mColorPUBtn")});
    panel->initializeUI_Color();
    EXPECT_EQ(label("mColorTitle"), "Colour mode : ");
}

} // namespace
