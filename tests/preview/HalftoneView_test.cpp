// SPDX-License-Identifier: Apache-2.0
#include "preview/HalftoneView.h"

#include "tests/preview/PreviewFixture.h"

#include <QCoreApplication>
#include <QSignalSpy>

namespace {

class HalftoneView : public PreviewFixture
{
protected:
    HalftoneView()
    {
        writeResource(QStringLiteral("Binary.png"), plain(QSize(40, 30), Qt::red));
        writeResource(QStringLiteral("Dither.png"), plain(QSize(40, 30), Qt::green));
        writeResource(QStringLiteral("Diffusion.png"), plain(QSize(40, 30), Qt::blue));
        matrix.setRows({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    }

    void removeResource(const QString &fileName)
    {
        ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("Resources/") + fileName)));
    }

    void makeView(double width = 100, double height = 80)
    {
        view = HalftoneView13_v300_::initWithFrame(QRectF(20, 250, width, height), bundle);
        view->setHlftnMatrix(&matrix);
    }

    QImage drawnForRow(int row)
    {
        matrix.selectCellAtRow(row);
        return drawn(*view);
    }

    platform::RadioMatrix matrix;
    std::unique_ptr<HalftoneView13_v300_> view;
};

TEST_F(HalftoneView, StartsWithoutMatrixAndIsNotFlipped)
{
    view = HalftoneView13_v300_::initWithFrame(QRectF(20, 250, 122, 92), bundle);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->hlftnMatrix(), nullptr);
    EXPECT_FALSE(view->isFlipped());
    EXPECT_EQ(view->size(), QSize(122, 92));
}

TEST_F(HalftoneView, MatrixIsKeptWithoutBeingOwned)
{
    QPointer<platform::RadioMatrix> own = new platform::RadioMatrix;
    makeView();
    EXPECT_EQ(view->hlftnMatrix(), &matrix);
    view->setHlftnMatrix(own);
    EXPECT_EQ(view->hlftnMatrix(), own);
    view.reset();
    ASSERT_FALSE(own.isNull());
    delete own;
}

TEST_F(HalftoneView, ConditionIsTheSelectedRow)
{
    makeView();
    for (const int row : {2, 1, 0}) {
        matrix.selectCellAtRow(row);
        EXPECT_EQ(view->halftoneCondition(), row);
    }
    matrix.deselectAllCells();
    EXPECT_EQ(view->halftoneCondition(), -1);
}

TEST_F(HalftoneView, WithoutAMatrixTheBinaryPictureIsDrawn)
{
    makeView();
    view->setHlftnMatrix(nullptr);
    EXPECT_EQ(view->halftoneCondition(), 0);
    EXPECT_EQ(drawn(*view).pixel(1, 78), QColor(Qt::red).rgb());
}

TEST_F(HalftoneView, AMatrixThatIsGoneIsNoMatrix)
{
    makeView();
    {
        platform::RadioMatrix shortLived;
        view->setHlftnMatrix(&shortLived);
    }
    EXPECT_EQ(view->hlftnMatrix(), nullptr);
    EXPECT_EQ(view->halftoneCondition(), 0);
}

TEST_F(HalftoneView, EachRowDrawsItsOwnPicture)
{
    makeView();
    EXPECT_EQ(drawnForRow(0).pixel(1, 78), QColor(Qt::red).rgb());
    EXPECT_EQ(drawnForRow(1).pixel(1, 78), QColor(Qt::green).rgb());
    EXPECT_EQ(drawnForRow(2).pixel(1, 78), QColor(Qt::blue).rgb());
}

TEST_F(HalftoneView, PictureStandsOnePointInsideTheLowerLeftCorner)
{
    makeView();
    EXPECT_EQ(drawnRect(drawnForRow(2)), QRect(1, 49, 40, 30));
}

TEST_F(HalftoneView, PictureLargerThanTheViewIsClippedNotScaled)
{
    QImage large = plain(QSize(120, 100), Qt::blue);
    large.setPixelColor(0, 99, Qt::yellow);
    large.setPixelColor(98, 21, Qt::cyan);
    writeResource(QStringLiteral("Diffusion.png"), large);
    makeView();
    const QImage picture = drawnForRow(2);
    EXPECT_EQ(drawnRect(picture), QRect(1, 0, 99, 79));
    EXPECT_EQ(picture.pixel(1, 78), QColor(Qt::yellow).rgb());
    EXPECT_EQ(picture.pixel(99, 0), QColor(Qt::cyan).rgb());
}

TEST_F(HalftoneView, PictureKeepsItsSizeInPointsAtTwoHundredPercent)
{
    makeView();
    EXPECT_EQ(drawnRect(drawn(*view, 2)), QRect(2, 98, 80, 60));
}

TEST_F(HalftoneView, NoSelectedRowLeavesTheViewBlank)
{
    makeView();
    matrix.deselectAllCells();
    EXPECT_TRUE(view->targetDrawImage().isNull());
    EXPECT_TRUE(drawnRect(drawn(*view)).isNull());
}

TEST_F(HalftoneView, ARowWithoutAPictureLeavesTheViewBlank)
{
    matrix.setRows(
        {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")});
    makeView();
    EXPECT_TRUE(drawnRect(drawnForRow(3)).isNull());
}

TEST_F(HalftoneView, MissingDitherPictureLeavesOnlyRowOneBlank)
{
    removeResource(QStringLiteral("Dither.png"));
    makeView();
    EXPECT_FALSE(drawnRect(drawnForRow(0)).isNull());
    EXPECT_TRUE(drawnRect(drawnForRow(1)).isNull());
    EXPECT_FALSE(drawnRect(drawnForRow(2)).isNull());
}

TEST_F(HalftoneView, PicturesAreFoundWhateverTheirExtension)
{
    removeResource(QStringLiteral("Dither.png"));
    writeResource(QStringLiteral("Dither.bmp"), plain(QSize(10, 10), Qt::cyan));
    makeView();
    EXPECT_EQ(drawnForRow(1).pixel(1, 78), QColor(Qt::cyan).rgb());
}

TEST_F(HalftoneView, PicturesStayWhenTheFilesAreGone)
{
    makeView();
    removeResource(QStringLiteral("Binary.png"));
    EXPECT_EQ(drawnForRow(0).pixel(1, 78), QColor(Qt::red).rgb());
}

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paints = 0;
};

TEST_F(HalftoneView, ARequestRedrawsAShownViewAndRequestsAreDrawnTogether)
{
    makeView();
    view->show();
    QCoreApplication::processEvents();
    PaintCounter counter;
    view->installEventFilter(&counter);
    view->setNeedsDisplay(false);
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.paints, 0);
    view->setNeedsDisplay(true);
    view->setNeedsDisplay(true);
    EXPECT_EQ(counter.paints, 0) << "it only schedules the drawing";
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.paints, 1);
}

TEST_F(HalftoneView, TheSelectionOfTheMomentOfDrawingIsShown)
{
    makeView();
    matrix.selectCellAtRow(1);
    view->setNeedsDisplay(true);
    EXPECT_EQ(drawnForRow(2).pixel(1, 78), QColor(Qt::blue).rgb());
}

TEST_F(HalftoneView, APaintOfAPartDrawsTheWholePictureThere)
{
    makeView();
    QImage target(view->size(), QImage::Format_RGB32);
    target.fill(kBackground);
    view->render(&target, QPoint(), QRegion(0, 60, 10, 20), QWidget::RenderFlags());
    EXPECT_EQ(drawnRect(target), QRect(1, 0, 9, 19)) << "the part lands at the target's corner";
}

TEST_F(HalftoneView, EveryRequestToDisplayIsAnnouncedAndOnlyThose)
{
    makeView();
    QSignalSpy requests(view.get(), &HalftoneView13_v300_::displayRequested);
    view->setNeedsDisplay(true);
    view->setNeedsDisplay(true);
    EXPECT_EQ(requests.count(), 2);
    view->setNeedsDisplay(false);
    drawn(*view);
    EXPECT_EQ(requests.count(), 2);
}

} // namespace
