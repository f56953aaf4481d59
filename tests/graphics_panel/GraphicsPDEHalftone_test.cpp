// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "platform/Controls.h"

#include <QRadioButton>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDEHalftone : public PanelTest
{
protected:
    void useHalftone(const QByteArray &title, const QByteArray &defaultChoice,
                     const QList<QByteArray> &choices)
    {
        auto options = sixOptions();
        options[kHalftone] = {"CvHalftonePattern", title, defaultChoice, choices};
        usePpd(options);
    }
    platform::RadioMatrix *matrix() const
    {
        return control<platform::RadioMatrix>("mHalftoneRadio");
    }
    void click(int row) { matrix()->findChildren<QRadioButton *>().at(row)->click(); }
    std::vector<std::string> saved()
    {
        takeCalls();
        panel->saveSetting_Halftone();
        return takeChanges();
    }
};

TEST_F(GraphicsPDEHalftone, LabelIsTheTranslatedTitleOfThePPDWithAColon)
{
    useTranslations();
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(label("mHalftoneTitle"), "[Halftone : ]");
}

TEST_F(GraphicsPDEHalftone, LabelIsTheTitleOfThePPDWhenItHasNoTranslation)
{
    useHalftone("Raster & %1", "Binary", {"Binary", "Dither", "ErrorDiffusion"});
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(label("mHalftoneTitle"), "Raster & %1 : ");
}

TEST_F(GraphicsPDEHalftone, LabelWithoutATitleInThePPDIsTheTranslatedKey)
{
    usePpdFile(QStringLiteral("undecodable-titles.ppd"));
    useTranslations();
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(label("mHalftoneTitle"), "[HC_Halftone]");
}

TEST_F(GraphicsPDEHalftone, EmptyTitleIsATitle)
{
    makeView();
    ppd->option("CvHalftonePattern")->text[0] = '\0';
    panel->initializeUI_Halftone();
    EXPECT_EQ(label("mHalftoneTitle"), " : ");
}

TEST_F(GraphicsPDEHalftone, RowTitlesAreFixedTextsWhateverThePPDHolds)
{
    useHalftone("Raster", "X", {"X/One", "Y/Two"});
    useTranslations();
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(matrix()->titles(),
              QStringList({QStringLiteral("[HC_Binary]"), QStringLiteral("[HC_Dither]"),
                           QStringLiteral("[HC_ErrorDiffusion]")}));
}

TEST_F(GraphicsPDEHalftone, DefaultChoiceSelectsItsRowAndSendsNothing)
{
    makeView();
    recordEverything();
    takeCalls();
    panel->initializeUI_Halftone();
    EXPECT_EQ(platform::selectedRow(matrix()), 2);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDEHalftone, DefaultIsThePPDsNotTheMark)
{
    ppd->mark("CvHalftonePattern", "Dither");
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(platform::selectedRow(matrix()), 2);
}

TEST_F(GraphicsPDEHalftone, WithoutADefaultTheRowStays)
{
    usePpdFile(QStringLiteral("no-default.ppd"));
    makeView();
    matrix()->selectCellAtRow(1);
    panel->initializeUI_Halftone();
    EXPECT_EQ(platform::selectedRow(matrix()), 1);
}

TEST_F(GraphicsPDEHalftone, DefaultBeyondTheRowsLeavesTheRow)
{
    useHalftone("Raster", "D", {"A", "B", "C", "D"});
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(platform::selectedRow(matrix()), 0);
}

TEST_F(GraphicsPDEHalftone, WithoutTheOptionTheTitlesAreSetAndNothingIsSaved)
{
    usePpdFile(QStringLiteral("no-required-options.ppd"));
    useTranslations();
    makeView();
    panel->initializeUI_Halftone();
    EXPECT_EQ(label("mHalftoneTitle"), "[HC_Halftone]");
    EXPECT_EQ(matrix()->titles().first(), QStringLiteral("[HC_Binary]"));
    EXPECT_EQ(platform::selectedRow(matrix()), 0);
    EXPECT_TRUE(matrix()->isEnabled());
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEHalftone, MissingControlsAreNoHindranceToTheSetUp)
{
    makeView({QStringLiteral("mHalftoneTitle")});
    panel->initializeUI_Halftone();
    EXPECT_EQ(platform::selectedRow(matrix()), 2);
    panel.reset();
    makeView({QStringLiteral("mHalftoneRadio")});
    panel->initializeUI_Halftone();
    EXPECT_EQ(label("mHalftoneTitle"), "Halftone : ");
}

TEST_F(GraphicsPDEHalftone, SaveCommitsTheSelectedRow)
{
    makeView();
    matrix()->selectCellAtRow(1);
    EXPECT_THAT(saved(), ElementsAre("CvHalftonePattern=Dither"));
}

TEST_F(GraphicsPDEHalftone, RowBeyondTheListCommitsTheLastChoice)
{
    useHalftone("Raster", "A", {"A", "B"});
    makeView();
    matrix()->selectCellAtRow(2);
    EXPECT_THAT(saved(), ElementsAre("CvHalftonePattern=B"));
}

TEST_F(GraphicsPDEHalftone, NoRowCommitsTheFirstChoice)
{
    makeView();
    matrix()->deselectAllCells();
    EXPECT_THAT(saved(), ElementsAre("CvHalftonePattern=Binary"));
}

TEST_F(GraphicsPDEHalftone, WithoutTheMatrixTheMarkThenTheDefaultIsCommitted)
{
    makeView({QStringLiteral("mHalftoneRadio")});
    EXPECT_THAT(saved(), ElementsAre("CvHalftonePattern=ErrorDiffusion"));
    ppd->mark("CvHalftonePattern", "Dither");
    EXPECT_THAT(saved(), ElementsAre("CvHalftonePattern=Dither"));
}

TEST_F(GraphicsPDEHalftone, EmptyListSavesNothing)
{
    makeView();
    GraphicsPDETestAccess(*panel).emptyChoices("CvHalftonePattern");
    EXPECT_THAT(saved(), IsEmpty());
    panel->initializeUI_Halftone();
    EXPECT_EQ(platform::selectedRow(matrix()), 0);
}

TEST_F(GraphicsPDEHalftone, WithoutPrintSettingsNothingIsSaved)
{
    host = std::make_shared<RecordingHost>(&*ppd);
    host->hasSettings = false;
    makeView();
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEHalftone, UnreadableChoiceKeywordIsNotSaved)
{
    makeView();
    ppd->option("CvHalftonePattern")->choices[0].choice[0] = '\xE9';
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEHalftone, UnreadableOptionKeywordIsNotSaved)
{
    makeView();
    ppd->option("CvHalftonePattern")->keyword[0] = '\xE9';
    EXPECT_THAT(saved(), IsEmpty());
}

TEST_F(GraphicsPDEHalftone, PickedRowRedrawsCommitsReadsBackAndShows)
{
    showPanel();
    recordEverything();
    takeCalls();
    click(1);
    EXPECT_THAT(takeCalls(),
                ElementsAre("display halftone", "willChange CvHalftonePattern=Dither",
                            "updateMarkedSelections 32", "updateUIItem 32", "display halftone"));
    EXPECT_EQ(selected("CvHalftonePattern"), 1);
    EXPECT_EQ(ppd->marked("CvHalftonePattern"), "Dither");
}

TEST_F(GraphicsPDEHalftone, PickedRowBeyondTheListMarksNothingButShowsTheSelection)
{
    useHalftone("Raster", "A", {"A", "B"});
    showPanel();
    panel->updateMarkedSelections(32);
    recordEverything();
    takeCalls();
    click(2);
    EXPECT_THAT(takeCalls(),
                ElementsAre("display halftone", "updateUIItem 32", "display halftone"));
    EXPECT_EQ(platform::selectedRow(matrix()), 0);
}

TEST_F(GraphicsPDEHalftone, MissingMatrixReadsAsRow0)
{
    makeView({QStringLiteral("mHalftoneRadio")});
    takeCalls();
    panel->changeHalftone(nullptr);
    EXPECT_THAT(takeChanges(), ElementsAre("CvHalftonePattern=Binary"));
}

TEST_F(GraphicsPDEHalftone, MissingViewIsNoHindranceToThePick)
{
    makePanel();
    panel->changeHalftone(nullptr);
    EXPECT_THAT(takeChanges(), ElementsAre("CvHalftonePattern=Binary"));
    EXPECT_EQ(selected("CvHalftonePattern"), 0);
}

} // namespace
