// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/ColorFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const char kMonochrome[] = "CvMultiColor=CvMultiColorMonochrome";
const char kBlackRed[] = "CvMultiColor=CvMultiColorBlackRed";

class GraphicsPDEColor : public ColorTest
{ };

TEST_F(GraphicsPDEColor, SaveCommitsTheItemAndNeitherFlagsNorPosts)
{
    makeView();
    recordPosts();
    platform::selectItemAtIndex(popUp(), 1);
    EXPECT_THAT(saveCalls(), ElementsAre("willChange CvMultiColor=CvMultiColorBlackRed"));
    EXPECT_EQ(panel->imageModeFlag(), 0);
    platform::selectItemAtIndex(popUp(), 0);
    EXPECT_THAT(saveCalls(), ElementsAre("willChange CvMultiColor=CvMultiColorMonochrome"));
}

TEST_F(GraphicsPDEColor, SaveWithThePopUpDoesNotAskForTheTicket)
{
    makeView();
    setTicket("CvMultiColorBlackRed");
    takeCalls();
    panel->saveSetting_Color();
    EXPECT_THAT(takeCalls(), ElementsAre(std::string("willChange ") + kMonochrome));
}

TEST_F(GraphicsPDEColor, ItemsOutOfRangeAreCommittedAsTheFirstOrTheLastChoice)
{
    makeView();
    platform::selectItemAtIndex(popUp(), -1);
    takeCalls();
    panel->saveSetting_Color();
    EXPECT_THAT(takeChanges(), ElementsAre(kMonochrome));
    popUp()->addItem(QStringLiteral("third"));
    platform::selectItemAtIndex(popUp(), 2);
    panel->saveSetting_Color();
    EXPECT_THAT(takeChanges(), ElementsAre(kBlackRed));
}

TEST_F(GraphicsPDEColor, WithoutPopUpABlackRedTicketIsFlaggedPostedAndCommitted)
{
    makeViewWithoutPopUp();
    setTicket("CvMultiColorBlackRed");
    EXPECT_THAT(saveCalls(), ElementsAre("post true", std::string("willChange ") + kBlackRed));
    EXPECT_EQ(panel->imageModeFlag(), 1);
}

TEST_F(GraphicsPDEColor, WithoutPopUpAMonochromeTicketIsUnflaggedAndCommittedWithoutAPost)
{
    makeViewWithoutPopUp();
    GraphicsPDETestAccess(*panel).setImageModeFlag(qint16(-1));
    ppd->mark("CvMultiColor", "CvMultiColorBlackRed");
    setTicket("CvMultiColorMonochrome");
    EXPECT_THAT(saveCalls(), ElementsAre(std::string("willChange ") + kMonochrome));
    EXPECT_EQ(panel->imageModeFlag(), qint16(-2));
}

TEST_F(GraphicsPDEColor, WithoutPopUpAndTicketTheMarkThenTheDefaultIsCommitted)
{
    useColor("CvMultiColorBlackRed");
    makeViewWithoutPopUp();
    setTicket("");
    GraphicsPDETestAccess(*panel).setImageModeFlag(1);
    EXPECT_THAT(saveCalls(), ElementsAre(std::string("willChange ") + kBlackRed));
    ppd->mark("CvMultiColor", "CvMultiColorMonochrome");
    EXPECT_THAT(saveCalls(), ElementsAre(std::string("willChange ") + kMonochrome));
    EXPECT_EQ(panel->imageModeFlag(), 1);
}

TEST_F(GraphicsPDEColor, WithoutPopUpATicketThatTheListLacksCommitsTheDefault)
{
    useColor("Third", {"CvMultiColorMonochrome", "Second", "Third"});
    makeViewWithoutPopUp();
    setTicket("CvMultiColorBlackRed");
    EXPECT_THAT(saveCalls(), ElementsAre("post true", "willChange CvMultiColor=Third"));
}

TEST_F(GraphicsPDEColor, WithoutPopUpAndPaperMonochromeIsCommitted)
{
    useColor("CvMultiColorBlackRed");
    makeViewWithoutPopUp();
    setTicket("CvMultiColorBlackRed");
    host->hasPageFormat = false;
    EXPECT_THAT(saveCalls(), ElementsAre(std::string("willChange ") + kMonochrome));
}

TEST_F(GraphicsPDEColor, WithoutPopUpTheHostIsAskedForSettingsThenPageFormat)
{
    makeViewWithoutPopUp();
    takeCalls();
    panel->saveSetting_Color();
    EXPECT_THAT(
        takeCalls(),
        ElementsAre("printSettings", "pageFormat", std::string("willChange ") + kMonochrome));
}

TEST_F(GraphicsPDEColor, EmptyListOrNoPrintSettingsSaveNothing)
{
    makeView();
    GraphicsPDETestAccess(*panel).emptyChoices("CvMultiColor");
    EXPECT_THAT(saveCalls(), IsEmpty());
    panel.reset();
    host = std::make_shared<RecordingHost>(&*ppd);
    host->hasSettings = false;
    makeView();
    EXPECT_THAT(saveCalls(), IsEmpty());
}

TEST_F(GraphicsPDEColor, PickOfBlackRedCommitsShowsAndPostsTwice)
{
    makeView();
    recordEverything();
    takeCalls();
    pickItem(1);
    EXPECT_THAT(takeCalls(),
                ElementsAre(std::string("willChange ") + kBlackRed, "updateMarkedSelections 327680",
                            "updateUIItem 327680", "post true", "post true"));
    EXPECT_EQ(panel->imageModeFlag(), 1);
    EXPECT_TRUE(redSliderEnabled());
}

TEST_F(GraphicsPDEColor, PickOfMonochromeClearsTheFlagAndDisablesTheRedSliderOnly)
{
    makeView();
    pickItem(1);
    recordPosts();
    takeCalls();
    pickItem(0);
    EXPECT_THAT(takeCalls(),
                ElementsAre(std::string("willChange ") + kMonochrome, "post false", "post false"));
    EXPECT_EQ(panel->imageModeFlag(), 0);
    EXPECT_FALSE(redSliderEnabled());
    EXPECT_TRUE(control<QLineEdit>("mRedLevelText")->isEnabled());
    EXPECT_TRUE(control<QLabel>("mRedLevelTitle")->isEnabled());
    EXPECT_TRUE(control<QLabel>("mRedLevelMinTx")->isEnabled());
}

TEST_F(GraphicsPDEColor, PickWithoutTheOptionPostsOnce)
{
    usePpdFile(QStringLiteral("no-colour.ppd"));
    makeView();
    recordPosts();
    takeCalls();
    pickItem(1);
    EXPECT_THAT(takeCalls(), ElementsAre("post true"));
    EXPECT_EQ(panel->imageModeFlag(), 1);
}

TEST_F(GraphicsPDEColor, PickWithoutAnItemMarksNothingButCountsAsBlackRed)
{
    makeView();
    recordPosts();
    platform::selectItemAtIndex(popUp(), -1);
    platform::setEnabled(control<QSlider>("mRedLevelSlider"), false);
    takeCalls();
    panel->changeColor(popUp());
    EXPECT_THAT(takeCalls(), ElementsAre("post true"));
    EXPECT_EQ(panel->imageModeFlag(), 1);
    EXPECT_TRUE(redSliderEnabled());
}

TEST_F(GraphicsPDEColor, MissingPopUpReadsAsMonochrome)
{
    makeViewWithoutPopUp();
    takeCalls();
    panel->changeColor(nullptr);
    EXPECT_THAT(takeCalls(),
                ElementsAre(std::string("willChange ") + kMonochrome, "post false", "post false"));
    EXPECT_FALSE(redSliderEnabled());
}

TEST_F(GraphicsPDEColor, MissingRedSliderIsNoHindranceToThePick)
{
    makeView({QStringLiteral("mRedLevelSlider")});
    recordPosts();
    takeCalls();
    pickItem(1);
    EXPECT_THAT(takeCalls(),
                ElementsAre(std::string("willChange ") + kBlackRed, "post true", "post true"));
    EXPECT_EQ(panel->imageModeFlag(), 1);
}

TEST_F(GraphicsPDEColor, ShownSelectionSetsItemSliderFlagAndPostsOnce)
{
    makeView();
    recordPosts();
    GraphicsPDETestAccess(*panel).setImageModeFlag(qint16(0x8000));
    takeCalls();
    show(1);
    EXPECT_EQ(popUp()->currentIndex(), 1);
    EXPECT_TRUE(redSliderEnabled());
    EXPECT_EQ(panel->imageModeFlag(), qint16(0x8001));
    show(0);
    EXPECT_EQ(popUp()->currentIndex(), 0);
    EXPECT_FALSE(redSliderEnabled());
    EXPECT_EQ(panel->imageModeFlag(), qint16(0x8000));
    EXPECT_THAT(takeCalls(), ElementsAre("post true", "post false"));
}

TEST_F(GraphicsPDEColor, OtherBitsOfTheFlagStay)
{
    makeView();
    GraphicsPDETestAccess(*panel).setImageModeFlag(qint16(0x7FFF));
    show(0);
    EXPECT_EQ(panel->imageModeFlag(), 0x7FFE);
    show(1);
    EXPECT_EQ(panel->imageModeFlag(), 0x7FFF);
}

TEST_F(GraphicsPDEColor, SelectionOfAnotherListIsNotShown)
{
    makeView();
    recordPosts();
    PDEChoice foreign(ppd->option("CvMultiColor")->choices + 1);
    GraphicsPDETestAccess(*panel).selectForeign("CvMultiColor", &foreign);
    takeCalls();
    panel->updateUIItem(327680);
    EXPECT_EQ(popUp()->currentIndex(), 0);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

} // namespace
