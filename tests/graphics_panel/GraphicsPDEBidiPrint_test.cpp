// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "platform/Controls.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDEBidiPrint : public PanelTest
{
protected:
    void useBiDi(const QByteArray &defaultChoice,
                 const QList<QByteArray> &choices = {"OFF/Off", "ON/On"})
    {
        auto options = sixOptions();
        options[kBiDiPrint].defaultChoice = defaultChoice;
        options[kBiDiPrint].choices = choices;
        usePpd(options);
    }
    QCheckBox *box() const { return control<QCheckBox>("mBiDiPrintChkBx"); }
    std::vector<std::string> saved()
    {
        takeCalls();
        panel->saveSetting_BidiPrint();
        return takeChanges();
    }
    void show(qint64 index)
    {
        GraphicsPDETestAccess(*panel).select("CvBiDiPrint", index);
        panel->updateUIItem(32768);
    }
};

TEST_F(GraphicsPDEBidiPrint, DefaultONStartsChecked)
{
    makeView();
    takeCalls();
    panel->initializeUI_BidiPrint();
    EXPECT_TRUE(box()->isChecked());
    EXPECT_TRUE(box()->isEnabled());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDEBidiPrint, AnyOtherDefaultStartsUnchecked)
{
    for (const char *other : {"OFF", "on", "On", "ONE", "Nowhere"}) {
        useBiDi(other);
        panel.reset();
        host.reset();
        makeView();
        box()->setChecked(true);
        panel->initializeUI_BidiPrint();
        EXPECT_FALSE(box()->isChecked()) << other;
    }
}

TEST_F(GraphicsPDEBidiPrint, DefaultInOtherLettersStartsUncheckedThoughItIsMarked)
{
    useBiDi("On");
    ppd->markDefaults();
    ASSERT_EQ(ppd->marked("CvBiDiPrint"), "ON");
    makeView();
    panel->initializeUI_BidiPrint();
    EXPECT_FALSE(box()->isChecked());
}

TEST_F(GraphicsPDEBidiPrint, TitleIsTheTranslatedTitleOfThePPDAlone)
{
    useTranslations();
    makeView();
    panel->initializeUI_BidiPrint();
    EXPECT_EQ(platform::buttonTitle(box()), QStringLiteral("[Bi-directional printing]"));
}

TEST_F(GraphicsPDEBidiPrint, TitleWithoutATitleInThePPDIsTheTranslatedKey)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    useTranslations();
    makeView();
    panel->initializeUI_BidiPrint();
    EXPECT_EQ(platform::buttonTitle(box()), QStringLiteral("[RS_BiDiPrint]"));
}

TEST_F(GraphicsPDEBidiPrint, WithoutTheOptionTheBoxIsDisabledAndKeepsTitleAndState)
{
    usePpdFile(QStringLiteral("no-bidi.ppd"));
    makeView();
    box()->setChecked(true);
    panel->initializeUI_BidiPrint();
    EXPECT_FALSE(box()->isEnabled());
    EXPECT_EQ(box()->text(), QStringLiteral("nib"));
    EXPECT_TRUE(box()->isChecked());
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEBidiPrint, EmptyListSetsTheTitleAndKeepsTheState)
{
    makeView();
    GraphicsPDETestAccess(*panel).emptyChoices("CvBiDiPrint");
    box()->setEnabled(false);
    panel->initializeUI_BidiPrint();
    EXPECT_EQ(box()->text(), QStringLiteral("Bi-directional printing"));
    EXPECT_FALSE(box()->isChecked());
    EXPECT_TRUE(box()->isEnabled());
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEBidiPrint, StateIsThePlaceThatIsSaved)
{
    makeView();
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=OFF"));
    platform::setState(box(), 1);
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=ON"));
}

TEST_F(GraphicsPDEBidiPrint, ListInTheOtherOrderSavesTheOtherKeyword)
{
    useBiDi("ON", {"ON", "OFF"});
    makeView();
    panel->initializeUI_BidiPrint();
    EXPECT_TRUE(box()->isChecked());
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEBidiPrint, OnlyChoiceIsCommittedWithTheBoxOn)
{
    useBiDi("ON", {"OFF"});
    makeView();
    panel->initializeUI_BidiPrint();
    EXPECT_TRUE(box()->isChecked());
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEBidiPrint, MixedStateCountsAsOff)
{
    makeView();
    box()->setTristate(true);
    platform::setState(box(), -1);
    ASSERT_EQ(platform::state(box()), -1);
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEBidiPrint, WithoutTheBoxTheMarkThenTheDefaultIsCommitted)
{
    makeView({QStringLiteral("mBiDiPrintChkBx")});
    panel->initializeUI_BidiPrint();
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=ON"));
    ppd->mark("CvBiDiPrint", "OFF");
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEBidiPrint, WithoutBoxMarkAndDefaultTheFirstChoiceIsCommitted)
{
    useBiDi("Nowhere");
    makePanel();
    EXPECT_THAT(saved(), ElementsAre("CvBiDiPrint=OFF"));
}

TEST_F(GraphicsPDEBidiPrint, WithoutPrintSettingsNothingIsSaved)
{
    host = std::make_shared<RecordingHost>(&*ppd);
    host->hasSettings = false;
    makeView();
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEBidiPrint, ClickCommitsReadsBackAndShows)
{
    makeView();
    recordEverything();
    takeCalls();
    box()->click();
    EXPECT_THAT(takeCalls(),
                ElementsAre("willChange CvBiDiPrint=ON", "updateMarkedSelections 32768",
                            "updateUIItem 32768"));
    EXPECT_EQ(selected("CvBiDiPrint"), 1);
    EXPECT_TRUE(box()->isChecked());
}

TEST_F(GraphicsPDEBidiPrint, MissingBoxReadsAsOff)
{
    makeView({QStringLiteral("mBiDiPrintChkBx")});
    takeCalls();
    panel->changeBidiPrint(nullptr);
    EXPECT_THAT(takeChanges(), ElementsAre("CvBiDiPrint=OFF"));
    EXPECT_EQ(selected("CvBiDiPrint"), 0);
}

TEST_F(GraphicsPDEBidiPrint, MixedStateMarksNothing)
{
    makeView();
    box()->setTristate(true);
    platform::setState(box(), -1);
    takeCalls();
    panel->changeBidiPrint(box());
    EXPECT_THAT(takeChanges(), IsEmpty());
}

TEST_F(GraphicsPDEBidiPrint, SelectionIsShownAsState)
{
    useBiDi("ON", {"OFF", "ON", "AUTO"});
    makeView();
    takeCalls();
    show(1);
    EXPECT_TRUE(box()->isChecked());
    show(0);
    EXPECT_FALSE(box()->isChecked());
    show(2);
    EXPECT_TRUE(box()->isChecked());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDEBidiPrint, DisabledBoxKeepsItsState)
{
    makeView();
    box()->setEnabled(false);
    show(1);
    EXPECT_FALSE(box()->isChecked());
}

TEST_F(GraphicsPDEBidiPrint, BoxInADisabledViewStillFollowsTheSelection)
{
    makeView();
    view->setEnabled(false);
    show(1);
    EXPECT_TRUE(box()->isChecked());
}

TEST_F(GraphicsPDEBidiPrint, SelectionOfAnotherListKeepsTheState)
{
    makeView();
    platform::setState(box(), 1);
    PDEChoice foreign(ppd->option("CvBiDiPrint")->choices);
    GraphicsPDETestAccess(*panel).selectForeign("CvBiDiPrint", &foreign);
    panel->updateUIItem(32768);
    EXPECT_TRUE(box()->isChecked());
}

} // namespace
