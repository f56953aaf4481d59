// SPDX-License-Identifier: Apache-2.0
#include "TestPanel.h"
#include "platform/Geometry.h"

#include <QVBoxLayout>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BasePDEView : public BasePanelTest
{
protected:
    BasePDEView() { init(); }
};

TEST_F(BasePDEView, ViewIsLoadedOnTheFirstCallAndKept)
{
    QWidget *view = panel->panelView();
    ASSERT_TRUE(view);
    EXPECT_EQ(panel->kPDEView, view);
    EXPECT_EQ(panel->panelView(), view);
    EXPECT_THAT(desktop.loads, ElementsAre("GraphicsPDE"));
}

TEST_F(BasePDEView, PanelAwakesOnceWithItsOutletsConnected)
{
    panel->panelView();
    panel->panelView();
    EXPECT_THAT(host->calls, ElementsAre("awakeFromNib"));
    EXPECT_TRUE(panel->field);
}

TEST_F(BasePDEView, DescriptionThatCannotBeLoadedGivesNoViewAndNoAwakening)
{
    desktop.canLoad = false;
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_THAT(host->calls, IsEmpty());
    desktop.canLoad = true;
    EXPECT_TRUE(panel->panelView()) << "the next call tries again";
}

TEST_F(BasePDEView, PanelWithoutABundleHasNoView)
{
    panel->initWithCallback(host, nullptr);
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_THAT(desktop.loads, IsEmpty());
}

TEST_F(BasePDEView, DroppedOutletStaysNullWhenTheViewIsLoaded)
{
    panel->mOutlets.drop(QStringLiteral("field"));
    panel->panelView();
    EXPECT_FALSE(panel->field);
}

TEST_F(BasePDEView, ViewGoesWithThePanel)
{
    const QPointer<QWidget> view = panel->panelView();
    panel.reset();
    EXPECT_FALSE(view);
}

TEST_F(BasePDEView, ViewGoesWithThePanelAlsoFromAParentOfTheHost)
{
    QWidget dialog;
    auto *layout = new QVBoxLayout(&dialog);
    const QPointer<QWidget> view = panel->panelView();
    layout->addWidget(view);
    panel.reset();
    EXPECT_FALSE(view);
    EXPECT_EQ(layout->count(), 0);
}

TEST_F(BasePDEView, ViewThatTheHostHasDeletedIsNotDeletedAgain)
{
    delete panel->panelView();
    EXPECT_FALSE(panel->kPDEView);
    EXPECT_FALSE(panel->field);
    panel.reset();
    EXPECT_EQ(host.use_count(), 1);
}

class BasePDEResize : public BasePDEView
{
protected:
    BasePDEResize()
    {
        view = panel->panelView();
        host->calls.clear();
    }

    void growDialog(const QWidget *sender)
    {
        platform::NotificationCenter::defaultCenter().post(
            QStringLiteral("NSViewDidUpdateTrackingAreasNotification"),
            static_cast<const void *>(sender));
    }

    QPointer<QWidget> view;
};

TEST_F(BasePDEResize, HostThatDoesNotAnswerLeavesTheViewAsItIs)
{
    host->resizes = false;
    desktop.keyWindow = 2000;
    panel->setViewFrameSize(QSizeF(300, 370));
    EXPECT_EQ(view->size(), QSize(300, 400));
    EXPECT_THAT(host->calls, IsEmpty());
    growDialog(view);
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEResize, PanelWithoutAHostLeavesTheViewAsItIs)
{
    panel->initWithCallback(nullptr, &bundle);
    panel->setViewFrameSize(QSizeF(300, 370));
    EXPECT_EQ(view->size(), QSize(300, 400));
}

TEST_F(BasePDEResize, WithoutAKeyWindowOnlyTheViewChanges)
{
    panel->setViewFrameSize(QSizeF(310, 370));
    EXPECT_EQ(view->size(), QSize(310, 370));
    growDialog(view);
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEResize, KeyWindow96PointsHigherWaitsForTheDialogToGrow)
{
    desktop.keyWindow = 370 + 96.0;
    panel->setViewFrameSize(QSizeF(300, 370));
    EXPECT_EQ(view->size(), QSize(300, 370));
    EXPECT_THAT(host->calls, IsEmpty());
    growDialog(view);
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
}

TEST_F(BasePDEResize, KeyWindow96AndAHalfPointsHigherIsToldAtOnce)
{
    desktop.keyWindow = 370 + 96.5;
    panel->setViewFrameSize(QSizeF(300, 370));
    EXPECT_EQ(view->size(), QSize(300, 370));
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
    growDialog(view);
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
}

TEST_F(BasePDEResize, KeyWindowWithoutHeightWaitsForTheDialogToGrow)
{
    desktop.keyWindow = 0;
    panel->setViewFrameSize(QSizeF(300, 370));
    growDialog(view);
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
}

TEST_F(BasePDEResize, GrownDialogIsToldOfOnlyOnce)
{
    desktop.keyWindow = 100;
    panel->setViewFrameSize(QSizeF(300, 370));
    panel->setViewFrameSize(QSizeF(300, 360));
    growDialog(view);
    growDialog(view);
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"))
        << "the handler takes back every registration for the view";
}

TEST_F(BasePDEResize, OnlyTheNotificationOfThePanelsOwnViewCounts)
{
    desktop.keyWindow = 100;
    panel->setViewFrameSize(QSizeF(300, 370));
    const QWidget other;
    growDialog(&other);
    platform::NotificationCenter::defaultCenter().post(QStringLiteral("Other"),
                                                       static_cast<const void *>(view.data()));
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEResize, HandlerCalledWithoutARegistrationTellsTheHost)
{
    panel->dialogDidExpand({});
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
}

TEST_F(BasePDEResize, PanelThatIsGoneIsNotToldOfAGrownDialog)
{
    desktop.keyWindow = 100;
    panel->setViewFrameSize(QSizeF(300, 370));
    const void *sender = view.data();
    panel.reset();
    platform::NotificationCenter::defaultCenter().post(
        QStringLiteral("NSViewDidUpdateTrackingAreasNotification"), sender);
    EXPECT_THAT(host->calls, IsEmpty());
}

TEST_F(BasePDEResize, MissingViewStillAnnouncesItsSizeWhenTheDialogIsHigherThan66)
{
    delete view;
    desktop.keyWindow = 66.5;
    panel->setViewFrameSize(QSizeF(0, -30));
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
    host->calls.clear();
    desktop.keyWindow = 66;
    panel->setViewFrameSize(QSizeF(0, -30));
    EXPECT_THAT(host->calls, IsEmpty());
    const QWidget anybody;
    growDialog(&anybody);
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
    growDialog(&anybody);
    EXPECT_THAT(host->calls, ElementsAre("panelViewDidResize"));
}

} // namespace
