// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "platform/Controls.h"

#include <QRadioButton>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GraphicsPDELifeCycle : public PanelTest
{ };

TEST_F(GraphicsPDELifeCycle, FirstShowFillsTheControlsAndCommitsWhatTheyShow)
{
    makeView();
    takeCalls();
    panel->willShow();
    EXPECT_EQ(platform::selectedRow(control<platform::RadioMatrix>("mHalftoneRadio")), 2);
    EXPECT_EQ(label("mBrightnessTitle"), "Brightness : ");
    EXPECT_TRUE(control<QCheckBox>("mBiDiPrintChkBx")->isChecked());
    EXPECT_THAT(takeCalls(),
                ElementsAre("willChange CvHalftonePattern=ErrorDiffusion",
                            "willChange CvBrightness=0", "willChange CvContrast=0",
                            "willChange CvBiDiPrint=ON"));
    EXPECT_EQ(GraphicsPDETestAccess(*panel).formatSetting(), 1);
}

TEST_F(GraphicsPDELifeCycle, SecondShowSetsNothingUpAgain)
{
    showPanel();
    for (const char *name : {"mHalftoneTitle", "mBrightnessTitle", "mContrustTitle"}) {
        platform::setStringValue(control<QLabel>(name), QStringLiteral("kept"));
    }
    control<QCheckBox>("mBiDiPrintChkBx")->setText(QStringLiteral("kept"));
    setText("mBrightnessText", "9");
    panel->willShow();
    for (const char *name : {"mHalftoneTitle", "mBrightnessTitle", "mContrustTitle"}) {
        EXPECT_EQ(label(name), "kept");
    }
    EXPECT_EQ(control<QCheckBox>("mBiDiPrintChkBx")->text(), QStringLiteral("kept"));
    EXPECT_EQ(text("mBrightnessText"), "9");
    EXPECT_THAT(takeChanges(), IsEmpty());
}

TEST_F(GraphicsPDELifeCycle, ShowRunsTitlesSetUpAndUpdateEachTime)
{
    showPanel();
    panel->log = &host->calls;
    panel->willShow();
    EXPECT_THAT(takeCalls(),
                ElementsAre("initSetTitleTexts", "initUI", "updateUI", "setPDEItems",
                            "updateUIItem 32", "updateUIItem 64", "updateUIItem 128",
                            "updateUIItem 32768"));
}

TEST_F(GraphicsPDELifeCycle, RestoreReadsTheFourMarksThenShowsThem)
{
    showPanel();
    panel->log = &host->calls;
    QString error;
    EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
    EXPECT_TRUE(error.isEmpty());
    EXPECT_THAT(takeCalls(),
                ElementsAre("setPDEItems2", "updateMarkedSelections 32",
                            "updateMarkedSelections 64", "updateMarkedSelections 128",
                            "updateMarkedSelections 32768", "updateUI", "setPDEItems",
                            "updateUIItem 32", "updateUIItem 64", "updateUIItem 128",
                            "updateUIItem 32768"));
}

TEST_F(GraphicsPDELifeCycle, RestoreShowsWhatIsMarkedAndAsksForNothing)
{
    showPanel();
    ppd->mark("CvHalftonePattern", "Dither");
    ppd->mark("CvBrightness", "12");
    ppd->mark("CvContrast", "-12");
    ppd->mark("CvBiDiPrint", "OFF");
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(platform::selectedRow(control<platform::RadioMatrix>("mHalftoneRadio")), 1);
    EXPECT_EQ(slider("mBrightnessSlider"), 12);
    EXPECT_EQ(text("mContrustText"), "-12");
    EXPECT_FALSE(control<QCheckBox>("mBiDiPrintChkBx")->isChecked());
    EXPECT_THAT(takeChanges(), IsEmpty());
}

TEST_F(GraphicsPDELifeCycle, SaveCommitsTheFourSettingsInOrder)
{
    showPanel();
    setText("mBrightnessText", "3");
    QString error;
    EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
    EXPECT_TRUE(error.isEmpty());
    EXPECT_THAT(takeChanges(),
                ElementsAre("CvHalftonePattern=ErrorDiffusion", "CvBrightness=3", "CvContrast=0",
                            "CvBiDiPrint=ON"));
}

TEST_F(GraphicsPDELifeCycle, ColourAndRedLevelKeepTheirStateThroughShowRestoreAndSave)
{
    ppd->mark("CvMultiColor", "CvMultiColorBlackRed");
    ppd->mark("CvRedLevel", "8");
    makeView();
    panel->willShow();
    panel->restoreValuesAndReturnError(nullptr);
    panel->saveValuesAndReturnError(nullptr);
    const auto *popUp = control<QComboBox>("mColorPUBtn");
    EXPECT_EQ(popUp->itemText(0), QStringLiteral("nib0"));
    EXPECT_EQ(popUp->count(), 2);
    EXPECT_EQ(popUp->currentIndex(), 0);
    EXPECT_EQ(slider("mRedLevelSlider"), 0);
    EXPECT_TRUE(control<QSlider>("mRedLevelSlider")->isEnabled());
    EXPECT_EQ(text("mRedLevelText"), "0");
    EXPECT_EQ(label("mRedLevelTitle"), "nib");
    EXPECT_EQ(label("mColorTitle"), "nib");
    EXPECT_EQ(selected("CvMultiColor"), -1);
    EXPECT_EQ(selected("CvRedLevel"), -1);
}

TEST_F(GraphicsPDELifeCycle, PrintCommitsColourThenTheDefaultsThatAreNotMarked)
{
    makeView();
    pickItem(1);
    takeCalls();
    ppd->mark("CvContrast", "4");
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_THAT(takeCalls(),
                ElementsAre("willChange CvMultiColor=CvMultiColorBlackRed",
                            "willChange CvHalftonePattern=ErrorDiffusion",
                            "willChange CvBrightness=0", "willChange CvBiDiPrint=ON",
                            "willChange CvRedLevel=0"));
    EXPECT_EQ(ppd->marked("CvContrast"), "4");
}

TEST_F(GraphicsPDELifeCycle, PrintLeavesAllMarksAloneWhenEverythingIsMarked)
{
    ppd->markDefaults();
    ppd->mark("CvBrightness", "9");
    ppd->mark("CvRedLevel", "-9");
    makePanel();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_THAT(takeChanges(), ElementsAre("CvMultiColor=CvMultiColorMonochrome"));
    EXPECT_EQ(ppd->marked("CvBrightness"), "9");
    EXPECT_EQ(ppd->marked("CvRedLevel"), "-9");
}

TEST_F(GraphicsPDELifeCycle, PrintWithoutDefaultsMarksOnlyTheColour)
{
    usePpdFile(QStringLiteral("no-default.ppd"));
    makePanel();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_THAT(takeChanges(), ElementsAre("CvMultiColor=CvMultiColorMonochrome"));
}

TEST_F(GraphicsPDELifeCycle, PrintIsNeverRefused)
{
    usePpdFile(QStringLiteral("no-panel-options.ppd"));
    makePanel();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_THAT(takeChanges(), IsEmpty());
}

TEST_F(GraphicsPDELifeCycle, HasNoHelpMayAlwaysHideAndIgnoresTheClosingWindow)
{
    showPanel();
    EXPECT_FALSE(panel->shouldShowHelp());
    EXPECT_TRUE(panel->shouldHide());
    panel->printWindowWillClose(true);
    panel->printWindowWillClose(false);
    panel->getValuesFromKey();
    panel->initSetTitleTexts();
    panel->initializeUI_OtherStr();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDELifeCycle, PreviewsGoBeforeTheViewHalftoneFirst)
{
    makeView();
    std::vector<std::string> gone;
    const GraphicsPDETestAccess access(*panel);
    const auto note = [&gone](const char *what) { return [&gone, what] { gone.push_back(what); }; };
    QObject::connect(view, &QObject::destroyed, note("view"));
    QObject::connect(access.briConView(), &QObject::destroyed, note("preview"));
    QObject::connect(access.halftoneView(), &QObject::destroyed, note("halftone"));
    panel.reset();
    EXPECT_THAT(gone, ElementsAre("halftone", "preview", "view"));
}

TEST_F(GraphicsPDELifeCycle, ViewThatSomebodyDeletedHarmsNothing)
{
    showPanel();
    delete view;
    panel->willShow();
    panel->changeBrightness(nullptr);
    panel->changeHalftone(nullptr);
    EXPECT_TRUE(panel->shouldPrint());
    panel.reset();
    EXPECT_THAT(takeChanges(), testing::Contains("CvHalftonePattern=Binary"));
}

TEST_F(GraphicsPDELifeCycle, ShippedDescriptionHasEveryControl)
{
    bundleFolder = QStringLiteral(BUNDLE_DIR);
    makePanel();
    ASSERT_NE(panel->panelView(), nullptr);
    EXPECT_EQ(GraphicsPDETestAccess(*panel).unconnected(), QStringList());
    EXPECT_NE(GraphicsPDETestAccess(*panel).halftoneView()->parentWidget(), nullptr);
    EXPECT_NE(GraphicsPDETestAccess(*panel).briConView()->parentWidget(), nullptr);
}

} // namespace
