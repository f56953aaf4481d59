// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "platform/Controls.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDESelection : public PanelTest
{
protected:
    std::vector<qint64> allSelected() const
    {
        std::vector<qint64> all;
        for (const PpdOption &option : sixOptions()) {
            all.push_back(selected(option.keyword));
        }
        return all;
    }
    void select(const QByteArray &option, qint64 index)
    {
        GraphicsPDETestAccess(*panel).select(option, index);
    }
    void report(const char *option, const char *choice)
    {
        panel->GraphicsPDE13_v300_::PPDOptionKeyValueDidChange(QString::fromLatin1(option),
                                                               QString::fromLatin1(choice));
    }
    int selectedRow() const
    {
        return platform::selectedRow(control<platform::RadioMatrix>("mHalftoneRadio"));
    }
};

TEST_F(GraphicsPDESelection, MarkedChoicesBecomeTheSelectionsOfTheNamedItemsOnly)
{
    ppd->markDefaults();
    ppd->mark("CvBrightness", "15");
    makePanel();
    panel->updateMarkedSelections(64);
    EXPECT_THAT(allSelected(), ElementsAre(-1, 5, -1, -1, -1, -1));
    panel->updateMarkedSelections(32 | 128 | 32768 | 327680 | 6291456);
    EXPECT_THAT(allSelected(), ElementsAre(2, 5, 20, 1, 0, 20));
}

TEST_F(GraphicsPDESelection, WithoutAMarkTheDefaultBecomesTheSelection)
{
    makePanel();
    panel->updateMarkedSelections(-1);
    EXPECT_THAT(allSelected(), ElementsAre(2, 20, 20, 1, 0, 20));
}

TEST_F(GraphicsPDESelection, WithoutMarkAndDefaultTheSelectionStays)
{
    usePpdFile(QStringLiteral("default-is-no-choice.ppd"));
    makePanel();
    select("CvContrast", 7);
    panel->updateMarkedSelections(-1);
    EXPECT_THAT(allSelected(), ElementsAre(-1, -1, 7, -1, -1, -1));
}

TEST_F(GraphicsPDESelection, EmptyListKeepsTheSelectionAway)
{
    makePanel();
    GraphicsPDETestAccess(*panel).emptyChoices("CvBrightness");
    panel->updateMarkedSelections(64);
    EXPECT_EQ(selected("CvBrightness"), -1);
}

TEST_F(GraphicsPDESelection, OfTwoDefaultsTheMarkedOneIsTaken)
{
    usePpdFile(QStringLiteral("two-defaults.ppd"));
    makePanel();
    ppd->mark("CvBrightness", "5");
    panel->updateMarkedSelections(64);
    EXPECT_EQ(selected("CvBrightness"), 15);
}

TEST_F(GraphicsPDESelection, EitherBitOfTheColourAndRedLevelMasksNamesTheItem)
{
    for (const auto &[bits, option] :
         {std::pair(0x10000, "CvMultiColor"), std::pair(0x40000, "CvMultiColor"),
          std::pair(0x200000, "CvRedLevel"), std::pair(0x400000, "CvRedLevel")}) {
        makePanel();
        panel->updateMarkedSelections(bits);
        for (const PpdOption &other : sixOptions()) {
            EXPECT_EQ(selected(other.keyword) != -1, other.keyword == option) << bits;
        }
    }
}

TEST_F(GraphicsPDESelection, EitherBitOfTheColourMaskShowsTheColourAlone)
{
    for (const qint32 bit : {0x10000, 0x40000}) {
        panel.reset();
        makeView();
        select("CvMultiColor", 1);
        select("CvRedLevel", 1);
        panel->updateUIItem(bit);
        EXPECT_EQ(control<QComboBox>("mColorPUBtn")->currentIndex(), 1) << bit;
        EXPECT_EQ(panel->imageModeFlag(), 1) << bit;
        EXPECT_EQ(slider("mRedLevelSlider"), 0) << bit;
    }
}

TEST_F(GraphicsPDESelection, EitherBitOfTheRedLevelMaskShowsTheRedLevelAlone)
{
    for (const qint32 bit : {0x200000, 0x400000}) {
        panel.reset();
        makeView();
        select("CvMultiColor", 1);
        select("CvRedLevel", 1);
        panel->updateUIItem(bit);
        EXPECT_EQ(slider("mRedLevelSlider"), 19) << bit;
        EXPECT_EQ(control<QComboBox>("mColorPUBtn")->currentIndex(), 0) << bit;
    }
}

TEST_F(GraphicsPDESelection, ReadingMarksTouchesNoControl)
{
    ppd->mark("CvBrightness", "15");
    makeView();
    recordEverything();
    takeCalls();
    panel->GraphicsPDE13_v300_::updateMarkedSelections(-1);
    EXPECT_EQ(slider("mBrightnessSlider"), 0);
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDESelection, NoBitsDoNothing)
{
    ppd->markDefaults();
    makeView();
    recordEverything();
    takeCalls();
    panel->GraphicsPDE13_v300_::updateMarkedSelections(0);
    EXPECT_THAT(allSelected(), ElementsAre(-1, -1, -1, -1, -1, -1));
    select("CvBrightness", 0);
    panel->GraphicsPDE13_v300_::updateUIItem(0);
    EXPECT_EQ(slider("mBrightnessSlider"), 0);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDESelection, BitsOfNoItemDoNothing)
{
    ppd->markDefaults();
    makePanel();
    panel->updateMarkedSelections(~(32 | 64 | 128 | 32768 | 327680 | 6291456));
    EXPECT_THAT(allSelected(), ElementsAre(-1, -1, -1, -1, -1, -1));
}

TEST_F(GraphicsPDESelection, ItemWithoutSelectionIsNotShown)
{
    makeView();
    recordEverything();
    takeCalls();
    panel->GraphicsPDE13_v300_::updateUIItem(-1);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDESelection, ShowsHalftoneAndRedrawsItsSample)
{
    makeView();
    recordEverything();
    takeCalls();
    select("CvHalftonePattern", 1);
    panel->GraphicsPDE13_v300_::updateUIItem(32);
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_THAT(takeCalls(), ElementsAre("display halftone"));
}

TEST_F(GraphicsPDESelection, ForeignHalftoneSelectionOnlyRedrawsTheSample)
{
    makeView();
    recordEverything();
    takeCalls();
    PDEChoice foreign(ppd->option("CvHalftonePattern")->choices + 1);
    GraphicsPDETestAccess(*panel).selectForeign("CvHalftonePattern", &foreign);
    panel->GraphicsPDE13_v300_::updateUIItem(32);
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_THAT(takeCalls(), ElementsAre("display halftone"));
}

TEST_F(GraphicsPDESelection, Bits96RefreshHalftoneBeforeBrightness)
{
    makeView();
    recordEverything();
    takeCalls();
    select("CvHalftonePattern", 1);
    select("CvBrightness", 1);
    panel->GraphicsPDE13_v300_::updateUIItem(96);
    EXPECT_THAT(takeCalls(), ElementsAre("display halftone", "display preview"));
}

TEST_F(GraphicsPDESelection, ItemsAreShownInTheFixedOrderWhateverTheBits)
{
    makeView();
    recordEverything();
    takeCalls();
    panel->GraphicsPDE13_v300_::updateMarkedSelections(-1);
    panel->GraphicsPDE13_v300_::updateUIItem(-1);
    EXPECT_THAT(
        takeCalls(),
        ElementsAre("display halftone", "display preview", "display preview", "post false"));
}

TEST_F(GraphicsPDESelection, ReportSelectsByKeywordAndLeavesTheControlsAlone)
{
    makeView();
    recordEverything();
    takeCalls();
    report("CvHalftonePattern", "Dither");
    report("CvBrightness", "20");
    report("CvContrast", "-20");
    report("CvBiDiPrint", "ON");
    report("CvMultiColor", "CvMultiColorBlackRed");
    report("CvRedLevel", "19");
    EXPECT_THAT(allSelected(), ElementsAre(1, 0, 40, 1, 1, 1));
    EXPECT_EQ(slider("mBrightnessSlider"), 0);
    EXPECT_EQ(control<QComboBox>("mColorPUBtn")->currentIndex(), 0);
    EXPECT_EQ(panel->imageModeFlag(), 0);
    EXPECT_THAT(takeCalls(), IsEmpty());
    panel->updateUI();
    EXPECT_EQ(slider("mBrightnessSlider"), 20);
}

TEST_F(GraphicsPDESelection, ReportOfAnUnknownChoiceTakesTheSelectionAway)
{
    makePanel();
    panel->updateMarkedSelections(-1);
    report("CvContrast", "77");
    EXPECT_THAT(allSelected(), ElementsAre(2, 20, -1, 1, 0, 20));
    EXPECT_FALSE(panel->summaryInfo()->contains(QStringLiteral("Contrast")));
}

TEST_F(GraphicsPDESelection, ReportComparesLetterCase)
{
    makePanel();
    report("cvbrightness", "5");
    EXPECT_EQ(selected("CvBrightness"), -1);
    panel->updateMarkedSelections(32);
    report("CvHalftonePattern", "dither");
    EXPECT_EQ(selected("CvHalftonePattern"), -1);
}

TEST_F(GraphicsPDESelection, ReportWithoutOptionOrChoiceChangesNothing)
{
    makePanel();
    panel->updateMarkedSelections(-1);
    panel->PPDOptionKeyValueDidChange(QStringLiteral("CvContrast"), std::nullopt);
    panel->PPDOptionKeyValueDidChange(std::nullopt, QStringLiteral("5"));
    panel->PPDOptionKeyValueDidChange(std::nullopt, std::nullopt);
    EXPECT_THAT(allSelected(), ElementsAre(2, 20, 20, 1, 0, 20));
}

TEST_F(GraphicsPDESelection, ReportOfAnotherOptionIsIgnored)
{
    makePanel();
    panel->updateMarkedSelections(-1);
    report("PageSize", "A4");
    report("", "");
    EXPECT_THAT(allSelected(), ElementsAre(2, 20, 20, 1, 0, 20));
}

TEST_F(GraphicsPDESelection, ReportOfAnOptionThatThePPDLacksLeavesNoSelection)
{
    usePpdFile(QStringLiteral("no-colour.ppd"));
    makeView();
    report("CvMultiColor", "CvMultiColorBlackRed");
    EXPECT_EQ(selected("CvMultiColor"), -1);
    panel->updateUIItem(327680);
    EXPECT_EQ(panel->imageModeFlag(), 0);
}

TEST_F(GraphicsPDESelection, OfTwinChoicesTheFirstIsSelected)
{
    usePpdFile(QStringLiteral("duplicate-choices.ppd"));
    makePanel();
    const ChoiceList &choices = *GraphicsPDETestAccess(*panel).choices("CvBrightness");
    size_t twin = 1;
    while (choices[twin]->ppdTitle() != choices[twin - 1]->ppdTitle()) {
        ++twin;
    }
    report("CvBrightness", choices[twin]->ppdTitle()->toLatin1());
    EXPECT_EQ(selected("CvBrightness"), qint64(twin) - 1);
}

TEST_F(GraphicsPDESelection, MissingControlsAreNoHindrance)
{
    makeView({QStringLiteral("mHalftoneRadio"), QStringLiteral("mHalftoneDummyView"),
              QStringLiteral("mBrightnessSlider"), QStringLiteral("mContrustText"),
              QStringLiteral("mBiDiPrintChkBx"), QStringLiteral("mColorPUBtn"),
              QStringLiteral("mRedLevelSlider")});
    recordEverything();
    takeCalls();
    for (const PpdOption &option : sixOptions()) {
        select(option.keyword, 1);
    }
    panel->GraphicsPDE13_v300_::updateUIItem(-1);
    EXPECT_EQ(text("mBrightnessText"), "19");
    EXPECT_EQ(slider("mContrustSlider"), 19);
    EXPECT_EQ(text("mRedLevelText"), "19");
    EXPECT_EQ(panel->imageModeFlag(), 1);
    EXPECT_THAT(takeCalls(),
                ElementsAre("display halftone", "display preview", "display preview", "post true"));
}

} // namespace
