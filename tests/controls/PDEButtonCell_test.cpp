// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEButtonCell.h"

#include "controls/CellButton.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace {

QPixmap redImage()
{
    QPixmap image(16, 16);
    image.fill(Qt::red);
    return image;
}

/// The frame of what is red in `picture`.
QRect redFrame(const QImage &picture)
{
    QRect frame;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == QColor(Qt::red)) {
                frame |= QRect(x, y, 1, 1);
            }
        }
    }
    return frame;
}

class PDEButtonCell : public testing::Test
{
protected:
    PDEButtonCell() { picture.fill(Qt::white); }

    QImage picture{60, 40, QImage::Format_RGB32};
    QPainter painter{&picture};
    PDEButtonCell13_v300_ cell;
};

TEST_F(PDEButtonCell, RemembersTheFrameOfItsLastInterior)
{
    EXPECT_EQ(cell.cellFrame(), QRectF(0, 0, 0, 0));
    cell.drawInteriorWithFrame({3, 5, 40, 20}, nullptr, painter);
    EXPECT_EQ(cell.cellFrame(), QRectF(3, 5, 40, 20));
    cell.drawInteriorWithFrame({1, 2, 30, 10}, nullptr, painter);
    EXPECT_EQ(cell.cellFrame(), QRectF(1, 2, 30, 10));
}

TEST_F(PDEButtonCell, DrawsItsImageOnePointAboveTheInterior)
{
    cell.drawInteriorWithFrame({3, 5, 40, 20}, nullptr, painter);
    cell.drawImage(redImage(), {10, 8, 16, 16}, nullptr, painter);
    painter.end();
    EXPECT_EQ(redFrame(picture), QRect(10, 4, 16, 16));
}

TEST_F(PDEButtonCell, BeforeAnyInteriorTheImageIsOnePointAboveTheOrigin)
{
    painter.translate(0, 5);
    cell.drawImage(redImage(), {10, 8, 16, 16}, nullptr, painter);
    painter.end();
    EXPECT_EQ(redFrame(picture), QRect(10, 4, 16, 16));
}

TEST_F(PDEButtonCell, APlainCellKeepsTheFrameOfTheImage)
{
    ButtonCell plain;
    plain.drawInteriorWithFrame({3, 5, 40, 20}, nullptr, painter);
    plain.drawImage(redImage(), {10, 8, 16, 16}, nullptr, painter);
    painter.end();
    EXPECT_EQ(redFrame(picture), QRect(10, 8, 16, 16));
}

/// Counts what is drawn, and where.
class CountingCell : public PDEButtonCell13_v300_
{
public:
    void drawInteriorWithFrame(const QRectF &frame, CellButton *inView, QPainter &painter) override
    {
        ++interiors;
        PDEButtonCell13_v300_::drawInteriorWithFrame(frame, inView, painter);
    }
    void drawImage(const QPixmap &image, const QRectF &withFrame, CellButton *inView,
                   QPainter &painter) override
    {
        ++images;
        asked = withFrame;
        PDEButtonCell13_v300_::drawImage(image, withFrame, inView, painter);
    }

    int interiors = 0;
    int images = 0;
    QRectF asked;
};

class CellButtonTest : public testing::Test
{
protected:
    CellButtonTest()
    {
        button.setIcon(redImage());
        button.setIconSize({16, 16});
        button.resize(80, 60);
    }

    void show()
    {
        button.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&button));
        settle();
    }

    /// Lets everything that was asked for be drawn.
    static void settle() { QTest::qWait(100); }

    CountingCell *cell = new CountingCell;
    CellButton button{std::unique_ptr<ButtonCell>(cell)};
    QSignalSpy requests{&button, &CellButton::displayRequested};
};

TEST_F(CellButtonTest, TheImageStandsInTheMiddleAcrossAndAtTheTopOfTheInterior)
{
    const QImage picture = button.grab().toImage();
    const QRectF interior = cell->cellFrame();
    EXPECT_EQ(cell->asked, QRectF(interior.center().x() - 8, interior.center().y() - 8, 16, 16));
    const QRect red = redFrame(picture);
    EXPECT_EQ(red.size(), QSize(16, 16));
    EXPECT_EQ(red.top(), int(interior.top()) - 1);
    EXPECT_NEAR(red.left(), interior.center().x() - 8, 1.0);
}

TEST_F(CellButtonTest, ATitleStandsBesideTheImage)
{
    const double alone = (button.grab(), cell->asked.left());
    button.setText(QStringLiteral("Title"));
    button.grab();
    EXPECT_LT(cell->asked.left(), alone);
    EXPECT_GT(button.sizeHint().width(), button.titleSize().width() + 16);
}

TEST_F(CellButtonTest, WithoutAnImageNoDisplayIsAskedFor)
{
    button.setIcon(QIcon());
    button.grab();
    EXPECT_EQ(cell->interiors, 1);
    EXPECT_EQ(cell->images, 0);
    EXPECT_EQ(requests.count(), 0);
}

TEST_F(CellButtonTest, EveryImageDrawingAsksForTheNext)
{
    button.grab();
    EXPECT_EQ(requests.count(), 1);
    button.grab();
    EXPECT_EQ(requests.count(), 2);
}

TEST_F(CellButtonTest, AskingWhileDrawingComesToRestAfterOneMoreDrawing)
{
    show();
    const int before = cell->images;
    requests.clear();
    button.update();
    settle();
    EXPECT_EQ(cell->images, before + 2);
    EXPECT_EQ(requests.count(), 2);
    settle();
    EXPECT_EQ(cell->images, before + 2);
}

TEST_F(CellButtonTest, EachRequestFromElsewhereIsDrawn)
{
    show();
    for (int i = 0; i < 3; ++i) {
        const int before = cell->images;
        button.setNeedsDisplay(true);
        settle();
        EXPECT_EQ(cell->images, before + 2);
    }
    const int before = cell->images;
    requests.clear();
    button.setNeedsDisplay(false);
    settle();
    EXPECT_EQ(cell->images, before);
    EXPECT_EQ(requests.count(), 0);
}

TEST_F(CellButtonTest, AClickIsAClick)
{
    show();
    QSignalSpy clicks(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 2);
}

} // namespace
