// SPDX-License-Identifier: Apache-2.0
#include "DialogWindow.h"
#include "dialog/DotBar.h"
#include "dialog/DotRenderer.h"
#include "dialog/PagePreview.h"
#include "dialog/PpdRaster.h"
#include "dialog/PrinterSetup.h"
#include "tests/dialog/DotRequests.h"

#include <QAbstractButton>
#include <QProgressBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

using namespace dialog;

namespace {

/// The window with the sample printer and its panel.
class DotDialog : public DialogWindow
{
protected:
    DotDialog()
    {
        open();
        dots().setBandSource(bands.source());
        QObject::connect(&dots(), &DotRenderer::rendered, window.get(),
                         [this](const DotPicture &picture) { shown = picture; });
    }
    ~DotDialog() override { bands.letGo(); }

    void waitForDots()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return window->isSettled(); }));
        ASSERT_TRUE(shown.dots);
    }
    DotRenderer &dots() { return *window->findChild<DotRenderer *>(); }
    PagePreview &preview() { return *window->findChild<PagePreview *>(); }
    /// What the marks of the printer ask for.
    DotForm marked() { return *dotFormOf(controller->setup()->ppd()->file()); }

    CountedBands bands;
    DotPicture shown;
};

TEST_F(DotDialog, ShowsTheDotsThatTheMarksAskFor)
{
    EXPECT_FALSE(window->isSettled());
    waitForDots();
    EXPECT_EQ(shown.dots->form, marked());
    EXPECT_EQ(shown.dots->black, plainDotsOf(shown.request).black);
    EXPECT_TRUE(find<QWidget>("dotBar")->isVisible());
}

TEST_F(DotDialog, FollowsEveryControlWithoutRenderingThePageAnew)
{
    waitForDots();
    const int rendered = bands.rendered;
    // As while it is dragged: every step is a mark.
    for (const char *name : {"mBrightnessSlider", "mContrustSlider"}) {
        for (const int level : {1, 7, -20}) {
            const std::shared_ptr<const PageDots> before = shown.dots;
            find<QSlider>(name)->setValue(level);
            EXPECT_FALSE(window->isSettled()) << name << level;
            waitForDots();
            EXPECT_EQ(shown.dots->form, marked());
            EXPECT_NE(shown.dots, before);
        }
    }
    EXPECT_EQ(marked().settings.brightness, -20);
    EXPECT_EQ(marked().settings.contrast, -20);
    ASSERT_FALSE(controller->setup()->choose(
        {{QStringLiteral("CvHalftonePattern"), QStringLiteral("Binary")}}));
    waitForDots();
    EXPECT_EQ(shown.dots->form.settings.method, imaging::HalftoneMethod::Binary);
    EXPECT_EQ(shown.dots->black, plainDotsOf(shown.request).black);
    EXPECT_EQ(bands.rendered, rendered);
}

TEST_F(DotDialog, EscapeStopsTheDotsBeforeItClosesTheWindow)
{
    waitForDots();
    bands.holds = true;
    preview().setCurrentPage(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return find<QProgressBar>("dotProgress")->isVisible(); }));
    QSlider *slider = find<QSlider>("mBrightnessSlider");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(find<QProgressBar>("dotProgress")->isVisible());
    QTest::keyClick(slider, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(DotDialog, PlatesComeWithTheSecondColour)
{
    waitForDots();
    EXPECT_FALSE(find<QAbstractButton>("redPlate")->isVisible());
    ASSERT_FALSE(controller->setup()->choose({{kColourOption, kBlackAndRedChoice}}));
    waitForDots();
    EXPECT_TRUE(find<QAbstractButton>("redPlate")->isVisible());
    EXPECT_EQ(shown.dots->red, plainDotsOf(shown.request).red);
    ASSERT_FALSE(controller->setup()->choose({{kColourOption, kBlackChoice}}));
    waitForDots();
    EXPECT_FALSE(find<QAbstractButton>("redPlate")->isVisible());
}

TEST_F(DotDialog, FollowsTheLabelAndThePage)
{
    waitForDots();
    const QSize before = shown.dots->form.dots;
    ASSERT_FALSE(controller->setup()->choose(
        {{QStringLiteral("PageSize"), QStringLiteral("Custom.40x60mm")}}));
    waitForDots();
    EXPECT_NE(shown.dots->form.dots, before);
    EXPECT_EQ(shown.dots->form, marked());
    preview().setCurrentPage(2);
    EXPECT_FALSE(window->isSettled());
    waitForDots();
    EXPECT_EQ(shown.request.page, 2);
}

TEST_F(DotDialog, PrinterWithoutTheOptionsShowsThePageAsItIs)
{
    waitForDots();
    open(testPpd("no-panel-options.ppd"), {});
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->isSettled(); }));
    EXPECT_FALSE(find<QWidget>("dotBar")->isVisible());
    EXPECT_TRUE(preview().isUpToDate());
}

TEST_F(DotDialog, MayBeClosedWhileDotsAreMade)
{
    waitForDots();
    bands.holds = true;
    const int before = bands.asked;
    preview().setCurrentPage(1);
    ASSERT_TRUE(QTest::qWaitFor([this, before] { return bands.asked > before; }));
    window->reject();
    bands.letGo();
    window.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(shown.request.page, 0);
}

} // namespace
