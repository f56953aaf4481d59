// SPDX-License-Identifier: Apache-2.0
#include "platform/Geometry.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QWidget>

#include <gmock/gmock.h>

using namespace platform;

namespace {

/// A panel view 400 high, with a preview in it that stands 20 from the left and 100 from the top.
class Geometry : public testing::Test
{
protected:
    Geometry()
    {
        view.resize(300, 400);
        preview = new QWidget;
        setFrame(preview, QRectF(20, 250, 60, 50));
        placeholder = new QWidget(&view);
        placeholder->setGeometry(20, 100, 60, 50);
    }
    ~Geometry() override
    {
        if (!preview->parent()) {
            delete preview;
        }
    }

    void putPreviewIn() { replaceSubview(&view, placeholder, preview); }

    QWidget view;
    QPointer<QWidget> preview;
    QPointer<QWidget> placeholder;
};

TEST_F(Geometry, MissingViewHasTheZeroFrameAndTakesWritesSilently)
{
    EXPECT_EQ(frame(nullptr), QRectF(0, 0, 0, 0));
    setFrame(nullptr, QRectF(1, 2, 3, 4));
    setFrameOrigin(nullptr, QPointF(1, 2));
    setFrameSize(nullptr, QSizeF(3, 4));
    replaceSubview(nullptr, placeholder, preview);
    replaceSubview(&view, nullptr, preview);
    replaceSubview(&view, placeholder, nullptr);
    EXPECT_TRUE(placeholder);
    EXPECT_EQ(preview->parent(), nullptr);
}

TEST_F(Geometry, FrameOfASubviewCountsFromTheBottomLeftCorner)
{
    EXPECT_EQ(frame(placeholder), QRectF(20, 250, 60, 50));
}

TEST_F(Geometry, FrameIsKeptUntilTheViewHasASuperview)
{
    EXPECT_EQ(frame(preview), QRectF(20, 250, 60, 50));
    EXPECT_EQ(preview->size(), QSize(60, 50));
    preview->setParent(&view);
    EXPECT_EQ(preview->geometry(), QRect(20, 100, 60, 50));
}

TEST_F(Geometry, ShrunkSuperviewThenLoweredViewMovesOnlySidewaysOnScreen)
{
    putPreviewIn();
    setFrameSize(&view, QSizeF(300, 370));
    EXPECT_EQ(frame(preview), QRectF(20, 250, 60, 50));
    EXPECT_EQ(preview->pos(), QPoint(20, 70));
    setFrameOrigin(preview, QPointF(0, frame(preview).y() - 30));
    EXPECT_EQ(frame(preview), QRectF(0, 220, 60, 50));
    EXPECT_EQ(preview->pos(), QPoint(0, 100));
}

TEST_F(Geometry, LoweredViewInAnUnchangedSuperviewMovesDownOnScreen)
{
    putPreviewIn();
    setFrameOrigin(preview, QPointF(0, frame(preview).y() - 30));
    EXPECT_EQ(frame(preview), QRectF(0, 220, 60, 50));
    EXPECT_EQ(preview->pos(), QPoint(0, 130));
}

TEST_F(Geometry, FrameIsNotConvertedTwiceWhenTheSuperviewShrankFirst)
{
    putPreviewIn();
    setFrameSize(&view, QSizeF(300, 370));
    const double y = frame(preview).y() - 30;
    EXPECT_NE(y, 190) << "the height that is gone must not count twice";
    EXPECT_EQ(y, 220);
}

TEST_F(Geometry, ViewWithAFrameFollowsAVisibleSuperviewThatIsResizedByOthers)
{
    putPreviewIn();
    view.show();
    view.resize(300, 370);
    EXPECT_EQ(frame(preview), QRectF(20, 250, 60, 50));
    EXPECT_EQ(preview->pos(), QPoint(20, 70));
}

TEST_F(Geometry, ViewWithAFrameFollowsASuperviewResizedWhileHidden)
{
    putPreviewIn();
    view.resize(300, 370);
    view.show();
    EXPECT_EQ(frame(preview), QRectF(20, 250, 60, 50));
    EXPECT_EQ(preview->pos(), QPoint(20, 70));
}

TEST_F(Geometry, SubviewOfAHiddenViewWithAFrameFollowsItAtOnce)
{
    putPreviewIn();
    auto *mark = new QWidget(preview);
    setFrame(mark, QRectF(1, 2, 10, 10));
    setFrameSize(preview, QSizeF(60, 30));
    EXPECT_EQ(mark->geometry(), QRect(1, 18, 10, 10));
}

TEST_F(Geometry, ViewWithoutAFrameStaysPinnedToTheTop)
{
    view.show();
    setFrameSize(&view, QSizeF(300, 370));
    EXPECT_EQ(placeholder->pos(), QPoint(20, 100));
    EXPECT_EQ(frame(placeholder), QRectF(20, 220, 60, 50));
}

TEST_F(Geometry, NewSizeKeepsTheBottomLeftCorner)
{
    putPreviewIn();
    setFrameSize(preview, QSizeF(60, 20));
    EXPECT_EQ(frame(preview), QRectF(20, 250, 60, 20));
    EXPECT_EQ(preview->geometry(), QRect(20, 130, 60, 20));
}

TEST_F(Geometry, NewSizeOfASubviewWithoutAFrameKeepsItsBottomLeftCornerToo)
{
    setFrameSize(placeholder, QSizeF(60, 20));
    EXPECT_EQ(frame(placeholder), QRectF(20, 250, 60, 20));
    EXPECT_EQ(placeholder->geometry(), QRect(20, 130, 60, 20));
}

TEST_F(Geometry, SizeOfATopViewIsItsFramesSize)
{
    setFrameSize(&view, QSizeF(310, 360));
    EXPECT_EQ(view.size(), QSize(310, 360));
    EXPECT_EQ(frame(&view), QRectF(0, 0, 310, 360));
    view.resize(200, 100);
    EXPECT_EQ(frame(&view), QRectF(0, 0, 200, 100));
}

TEST_F(Geometry, NegativeSizesCountAsZero)
{
    setFrameSize(&view, QSizeF(0, -30));
    EXPECT_EQ(view.size(), QSize(0, 0));
    setFrame(preview, QRectF(5, 6, -7, -8));
    EXPECT_EQ(frame(preview), QRectF(5, 6, 0, 0));
}

TEST_F(Geometry, LayoutThatMovesAViewGivesItANewFrame)
{
    QWidget dialog;
    dialog.resize(500, 500);
    auto *layout = new QHBoxLayout(&dialog);
    layout->setContentsMargins(10, 20, 30, 40);
    layout->addWidget(preview);
    dialog.show();
    EXPECT_EQ(frame(preview), QRectF(10, 40, 460, 440));
    dialog.resize(600, 700);
    EXPECT_EQ(frame(preview), QRectF(10, 40, 560, 640));
    EXPECT_EQ(preview->geometry(), QRect(10, 20, 560, 640));
    preview->setParent(nullptr);
}

TEST_F(Geometry, ReplacementStandsInTheStackingPlaceOfTheOldViewAtItsOwnFrame)
{
    auto *above = new QWidget(&view);
    setFrame(preview, QRectF(1, 2, 3, 4));
    putPreviewIn();
    EXPECT_FALSE(placeholder) << "the old view is gone";
    EXPECT_EQ(view.children().indexOf(preview), 0);
    EXPECT_GT(view.children().indexOf(above), 0);
    EXPECT_EQ(frame(preview), QRectF(1, 2, 3, 4));
    EXPECT_FALSE(preview->isHidden());
}

TEST_F(Geometry, ViewElsewhereIsNotReplaced)
{
    QWidget other;
    replaceSubview(&other, placeholder, preview);
    EXPECT_TRUE(placeholder);
    EXPECT_EQ(preview->parent(), nullptr);
}

} // namespace
