// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"
#include "platform/Geometry.h"
#include "platform/NotificationCenter.h"
#include "platform/ViewHost.h"

#include <QPushButton>

using platform::frame;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The desktop with a key window of a given height, or none.
class KeyWindow : public platform::ViewHost
{
public:
    explicit KeyWindow(std::optional<double> height)
        : mHeight(height)
        , mDesktop(current())
    {
        setCurrent(this);
    }
    ~KeyWindow() override { setCurrent(nullptr); }
    std::unique_ptr<QWidget> loadNibNamed(const QString &name, const platform::Bundle &from,
                                          platform::Outlets &owner) override
    {
        return mDesktop.loadNibNamed(name, from, owner);
    }
    std::optional<double> keyWindowHeight() const override { return mHeight; }

private:
    std::optional<double> mHeight;
    ViewHost &mDesktop;
};

/// All frames from the bottom left corner.
class GraphicsPDEAwake : public PanelTest
{
protected:
    void useNoBiDi() { usePpdFile(QStringLiteral("no-bidi.ppd")); }
    void useDeafHost()
    {
        host = std::make_shared<RecordingHost>(&*ppd);
        host->resizes = false;
    }
    HalftoneView13_v300_ *halftone() { return GraphicsPDETestAccess(*panel).halftoneView(); }
    BriConView13_v300_ *preview() { return GraphicsPDETestAccess(*panel).briConView(); }
};

TEST_F(GraphicsPDEAwake, PreviewsTakeThePlacesOfTheirPlaceholders)
{
    makeView();
    EXPECT_EQ(frame(halftone()), QRectF(20, 310, 80, 60));
    EXPECT_EQ(frame(preview()), QRectF(20, 250, 60, 50));
    EXPECT_EQ(halftone()->parentWidget(), view);
    EXPECT_EQ(preview()->parentWidget(), view);
    EXPECT_FALSE(halftone()->isHidden());
    EXPECT_FALSE(preview()->isHidden());
    EXPECT_EQ(control<QPushButton>("mHalftoneDummyView"), nullptr);
    EXPECT_EQ(control<QPushButton>("mBriConDummyView"), nullptr);
}

TEST_F(GraphicsPDEAwake, PreviewsKeepThePlacesAmongTheSubviews)
{
    makeView();
    QWidgetList subviews;
    for (QObject *child : view->children()) {
        if (auto *widget = qobject_cast<QWidget *>(child)) {
            subviews << widget;
        }
    }
    EXPECT_EQ(subviews.indexOf(halftone()), 1);
    EXPECT_EQ(subviews.indexOf(preview()), 2);
}

TEST_F(GraphicsPDEAwake, PreviewsFollowTheirControls)
{
    makeView();
    EXPECT_EQ(halftone()->hlftnMatrix(), control<platform::RadioMatrix>("mHalftoneRadio"));
    EXPECT_EQ(preview()->brightnessSldr(), control<QSlider>("mBrightnessSlider"));
    EXPECT_EQ(preview()->contrastSldr(), control<QSlider>("mContrustSlider"));
    EXPECT_EQ(preview()->brightnessStr(), control<QLineEdit>("mBrightnessText"));
    EXPECT_EQ(preview()->contrastStr(), control<QLineEdit>("mContrustText"));
}

TEST_F(GraphicsPDEAwake, AllOptionsLeaveTheLayoutAlone)
{
    makeView();
    EXPECT_EQ(view->height(), 400);
    EXPECT_FALSE(control<QCheckBox>("mBiDiPrintChkBx")->isHidden());
    EXPECT_FALSE(control<QLabel>("mBiDiPrintStrGR")->isHidden());
    EXPECT_THAT(takeCalls(), testing::Not(Contains("panelViewDidResize")));
}

TEST_F(GraphicsPDEAwake, WithoutBiDiTheBoxAndItsLabelAreHidden)
{
    useNoBiDi();
    makeView();
    EXPECT_TRUE(control<QCheckBox>("mBiDiPrintChkBx")->isHidden());
    EXPECT_TRUE(control<QLabel>("mBiDiPrintStrGR")->isHidden());
}

TEST_F(GraphicsPDEAwake, WithoutBiDiThePanelIs30LowerAndThePreviewsAtTheLeft)
{
    useNoBiDi();
    makeView();
    EXPECT_EQ(frame(view).size(), QSizeF(500, 370));
    EXPECT_EQ(frame(halftone()), QRectF(0, 280, 80, 60));
    EXPECT_EQ(frame(preview()), QRectF(0, 220, 60, 50));
    EXPECT_EQ(halftone()->pos(), QPoint(0, 30));
    EXPECT_EQ(preview()->pos(), QPoint(0, 100));
}

TEST_F(GraphicsPDEAwake, HostThatDoesNotResizeKeepsTheHeightButThePreviewsMove)
{
    useNoBiDi();
    useDeafHost();
    makeView();
    EXPECT_EQ(view->height(), 400);
    EXPECT_EQ(frame(halftone()), QRectF(0, 280, 80, 60));
    EXPECT_EQ(frame(preview()), QRectF(0, 220, 60, 50));
    EXPECT_EQ(preview()->pos(), QPoint(0, 130));
}

TEST_F(GraphicsPDEAwake, WithoutBiDiNothingElseIsHiddenOrMoved)
{
    makeView();
    const QRect popUp = control<QComboBox>("mColorPUBtn")->geometry();
    const QRect slider = control<QSlider>("mBrightnessSlider")->geometry();
    panel.reset();
    host.reset();
    useNoBiDi();
    makeView();
    EXPECT_EQ(control<QComboBox>("mColorPUBtn")->geometry(), popUp);
    EXPECT_EQ(control<QSlider>("mBrightnessSlider")->geometry(), slider);
    int hidden = 0;
    for (const QWidget *child : view->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        hidden += child->isHidden() ? 1 : 0;
    }
    EXPECT_EQ(hidden, 2);
}

TEST_F(GraphicsPDEAwake, OtherMissingOptionsChangeNothing)
{
    usePpd({sixOptions()[kBiDiPrint]});
    makeView();
    EXPECT_EQ(frame(view).size(), QSizeF(500, 400));
    EXPECT_EQ(frame(preview()), QRectF(20, 250, 60, 50));
    EXPECT_FALSE(control<QComboBox>("mColorPUBtn")->isHidden());
    EXPECT_FALSE(control<QCheckBox>("mBiDiPrintChkBx")->isHidden());
}

TEST_F(GraphicsPDEAwake, HighDialogIsToldOfTheLowerPanelAtOnce)
{
    const KeyWindow dialog(370.0 + 96.5);
    useNoBiDi();
    makeView();
    EXPECT_THAT(takeCalls(), Contains("panelViewDidResize").Times(1));
}

TEST_F(GraphicsPDEAwake, LowDialogIsToldOfTheLowerPanelWhenItHasGrown)
{
    const KeyWindow dialog(370.0 + 96.0);
    useNoBiDi();
    makeView();
    EXPECT_THAT(takeCalls(), testing::Not(Contains("panelViewDidResize")));
    auto &center = platform::NotificationCenter::defaultCenter();
    const void *sender = view;
    center.post(NSViewDidUpdateTrackingAreasNotification, sender);
    center.post(NSViewDidUpdateTrackingAreasNotification, sender);
    EXPECT_THAT(takeCalls(), ElementsAre("panelViewDidResize"));
}

TEST_F(GraphicsPDEAwake, SecondAskForTheViewMovesNothingAgain)
{
    useNoBiDi();
    makeView();
    takeCalls();
    EXPECT_EQ(panel->panelView(), view);
    EXPECT_EQ(frame(view).size(), QSizeF(500, 370));
    EXPECT_EQ(frame(preview()), QRectF(0, 220, 60, 50));
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(GraphicsPDEAwake, MissingPlaceholderGivesAPreviewOfNoSizeThatIsPlacedNowhere)
{
    makeView({QStringLiteral("mHalftoneDummyView"), QStringLiteral("mBriConDummyView")});
    EXPECT_EQ(frame(halftone()), QRectF());
    EXPECT_EQ(frame(preview()), QRectF());
    EXPECT_EQ(halftone()->parentWidget(), nullptr);
    EXPECT_EQ(preview()->parentWidget(), nullptr);
    EXPECT_EQ(preview()->contrastSldr(), control<QSlider>("mContrustSlider"));
}

TEST_F(GraphicsPDEAwake, MissingPlaceholderAndBiDiMoveTheOtherPreviewOnly)
{
    useNoBiDi();
    makeView({QStringLiteral("mHalftoneDummyView"), QStringLiteral("mBiDiPrintChkBx")});
    EXPECT_EQ(frame(halftone()), QRectF(0, -30, 0, 0));
    EXPECT_EQ(frame(preview()), QRectF(0, 220, 60, 50));
    EXPECT_TRUE(control<QLabel>("mBiDiPrintStrGR")->isHidden());
}

TEST_F(GraphicsPDEAwake, PreviewsFollowNoControlsThatAreMissing)
{
    makeView({QStringLiteral("mHalftoneRadio"), QStringLiteral("mBrightnessSlider"),
              QStringLiteral("mContrustText")});
    EXPECT_EQ(halftone()->hlftnMatrix(), nullptr);
    EXPECT_EQ(preview()->brightnessSldr(), nullptr);
    EXPECT_EQ(preview()->contrastStr(), nullptr);
    EXPECT_EQ(preview()->brightnessStr(), control<QLineEdit>("mBrightnessText"));
}

} // namespace
