// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "platform/NotificationCenter.h"

using testing::ElementsAre;

namespace {

/// A host that writes down what it is asked to mark and marks nothing.
class RefusingHost : public RecordingHost
{
public:
    using RecordingHost::RecordingHost;
    void willChangePPDOptionKeyValue(const QString &option,
                                     const std::optional<QString> &ppdChoice) override
    {
        calls.push_back("refused " + option.toStdString() + "="
                        + ppdChoice.value_or(QString()).toStdString());
    }
};

/// The panel and its host as one list of events.
class GraphicsPDEOrder : public PanelTest
{ };

TEST_F(GraphicsPDEOrder, WholeLifeAsksTheHostStepByStep)
{
    makePanel();
    panel->log = &host->calls;
    EXPECT_THAT(takeCalls(),
                ElementsAre("printSession", "printSettings", "printSettings", "pageFormat",
                            "PMPrinter", "ppdFile", "PMPrinter"));
    makeView();
    EXPECT_THAT(takeCalls(), testing::IsEmpty());
    panel->willShow();
    EXPECT_THAT(takeCalls(),
                ElementsAre("initSetTitleTexts", "initUI", "setValuesToKey",
                            "willChange CvHalftonePattern=ErrorDiffusion",
                            "willChange CvBrightness=0", "willChange CvContrast=0",
                            "willChange CvBiDiPrint=ON", "updateUI", "setPDEItems",
                            "updateUIItem 32", "updateUIItem 64", "updateUIItem 128",
                            "updateUIItem 32768"));
    panel->shouldPrint();
    EXPECT_THAT(
        takeCalls(),
        ElementsAre("willChange CvMultiColor=CvMultiColorMonochrome", "willChange CvRedLevel=0"));
}

TEST_F(GraphicsPDEOrder, ReportingHostSetsTheSelectionsBeforeTheShowGoesOn)
{
    makeView();
    host->reportsTo = panel.get();
    recordEverything();
    takeCalls();
    panel->willShow();
    EXPECT_THAT(takeCalls(),
                ElementsAre("initSetTitleTexts", "initUI", "setValuesToKey",
                            "willChange CvHalftonePattern=ErrorDiffusion",
                            "didChange CvHalftonePattern=ErrorDiffusion",
                            "willChange CvBrightness=0", "didChange CvBrightness=0",
                            "willChange CvContrast=0", "didChange CvContrast=0",
                            "willChange CvBiDiPrint=ON", "didChange CvBiDiPrint=ON", "updateUI",
                            "setPDEItems", "updateUIItem 32", "display halftone", "updateUIItem 64",
                            "display preview", "updateUIItem 128", "display preview",
                            "updateUIItem 32768"));
}

TEST_F(GraphicsPDEOrder, ReportArrivesInTheMiddleOfAnAction)
{
    makeView();
    host->reportsTo = panel.get();
    recordEverything();
    takeCalls();
    moveSlider("mBrightnessSlider", 5);
    EXPECT_THAT(takeCalls(),
                ElementsAre("display preview", "willChange CvBrightness=5",
                            "didChange CvBrightness=5", "updateMarkedSelections 64",
                            "updateUIItem 64", "display preview"));
    EXPECT_EQ(selected("CvBrightness"), 15);
}

TEST_F(GraphicsPDEOrder, HostThatDoesNotReportIsReadBack)
{
    showPanel();
    moveSlider("mContrustSlider", -5);
    EXPECT_EQ(selected("CvContrast"), 25);
    EXPECT_EQ(text("mContrustText"), "-5");
    EXPECT_EQ(selected("CvBrightness"), -1);
    EXPECT_EQ(panel->summaryInfo()->value(QStringLiteral("Contrast")), QStringLiteral("-5"));
}

TEST_F(GraphicsPDEOrder, HostThatRefusesPutsTheControlBackToTheMark)
{
    ppd->mark("CvBrightness", "8");
    ppd->mark("CvMultiColor", "CvMultiColorMonochrome");
    host = std::make_shared<RefusingHost>(&*ppd);
    makeView();
    moveSlider("mBrightnessSlider", -3);
    EXPECT_EQ(slider("mBrightnessSlider"), 8);
    EXPECT_EQ(text("mBrightnessText"), "8");
}

TEST_F(GraphicsPDEOrder, RefusedColourIsAnnouncedAsMarkedThenAsPicked)
{
    ppd->mark("CvMultiColor", "CvMultiColorMonochrome");
    host = std::make_shared<RefusingHost>(&*ppd);
    makeView();
    recordPosts();
    takeCalls();
    pickItem(1);
    EXPECT_THAT(
        takeCalls(),
        ElementsAre("refused CvMultiColor=CvMultiColorBlackRed", "post false", "post true"));
    EXPECT_EQ(control<QComboBox>("mColorPUBtn")->currentIndex(), 0);
    EXPECT_EQ(panel->imageModeFlag(), 1);
}

TEST_F(GraphicsPDEOrder, AnnouncementNamesTheHostAndHoldsOneTruthValue)
{
    makeView();
    std::vector<platform::Notification> heard;
    platform::NotificationCenter::defaultCenter().addObserver(
        this, [&heard](const platform::Notification &heardNow) { heard.push_back(heardNow); },
        QStringLiteral("CVAdvancedColorSettingNotification"));
    pickItem(1);
    ASSERT_EQ(heard.size(), 2U);
    const PDEPluginCallback13_v300_ *callback = host.get();
    EXPECT_EQ(heard[0].object, platform::NotificationObject(static_cast<const void *>(callback)));
    EXPECT_EQ(heard[0].userInfo, QVariantMap({{QStringLiteral("CvMultiColor"), true}}));
    EXPECT_EQ(heard[1].object, heard[0].object);
    EXPECT_EQ(heard[1].userInfo, heard[0].userInfo);
}

TEST_F(GraphicsPDEOrder, ListenersOfTheColourFindFlagAndSliderSet)
{
    makeView();
    pickItem(1);
    std::vector<int> flags;
    std::vector<bool> enabled;
    platform::NotificationCenter::defaultCenter().addObserver(
        this,
        [&](const platform::Notification &) {
            flags.push_back(panel->imageModeFlag());
            enabled.push_back(control<QSlider>("mRedLevelSlider")->isEnabled());
        },
        QStringLiteral("CVAdvancedColorSettingNotification"));
    pickItem(0);
    EXPECT_THAT(flags, ElementsAre(0, 0));
    EXPECT_THAT(enabled, ElementsAre(false, false));
}

TEST_F(GraphicsPDEOrder, DrawnPreviewPutsTheNumberBackToTheSlider)
{
    auto options = sixOptions();
    options[kBrightness].defaultChoice = "30";
    usePpd(options);
    showPanel();
    EXPECT_EQ(text("mBrightnessText"), "30");
    GraphicsPDETestAccess(*panel).briConView()->grab();
    EXPECT_EQ(text("mBrightnessText"), "20");
    EXPECT_THAT(takeChanges(), testing::IsEmpty());
}

TEST_F(GraphicsPDEOrder, DestroyedPanelHearsNoMoreActions)
{
    makeView();
    auto *slider = control<QSlider>("mBrightnessSlider");
    slider->setParent(nullptr);
    const std::unique_ptr<QSlider> kept(slider);
    takeCalls();
    panel.reset();
    kept->setValue(5);
    EXPECT_THAT(takeCalls(), testing::IsEmpty());
}

} // namespace
