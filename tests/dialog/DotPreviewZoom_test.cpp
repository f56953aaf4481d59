// SPDX-License-Identifier: Apache-2.0
#include "DotPreview.h"

#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

using namespace dialog;

namespace {

void turnWheel(QWidget &widget, const QPointF &place, int angle, Qt::KeyboardModifiers keys)
{
    QWheelEvent event(place, widget.mapToGlobal(place), QPoint(), QPoint(0, angle), Qt::NoButton,
                      keys, Qt::NoScrollPhase, false);
    // Only what comes from outside is passed on to the widgets around.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&widget, &event);
}

TEST_F(DotPreview, KeysZoom)
{
    open(picture());
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(&preview, key, Qt::ControlModifier);
        return preview.zoom();
    };
    EXPECT_EQ(press(Qt::Key_Minus), kFitted);
    EXPECT_EQ(press(Qt::Key_Plus), 1);
    EXPECT_EQ(press(Qt::Key_Plus), 2);
    EXPECT_EQ(press(Qt::Key_Minus), 1);
    EXPECT_EQ(press(Qt::Key_Minus), kFitted);
    EXPECT_EQ(press(Qt::Key_1), 1);
    for (int i = 0; i < 20; ++i) {
        press(Qt::Key_Plus);
    }
    EXPECT_EQ(preview.zoom(), 16);
    EXPECT_EQ(press(Qt::Key_0), kFitted);
    EXPECT_TRUE(fitted().isVisible());
}

TEST_F(DotPreview, FirstStepLargerIsLargerThanTheFittedLabel)
{
    // 80 dots across on more than 200 pixels.
    form = dotForm({10, 15}, {203, 203});
    open(picture());
    const int dot = fitted().dotPixels().width() / form.dots.width();
    ASSERT_GE(dot, 2);
    QTest::keyClick(&preview, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(preview.zoom(), dot);
}

TEST_F(DotPreview, ControlsZoomAndShowTheZoom)
{
    open(picture());
    auto &box = find<QComboBox>("zoom");
    EXPECT_EQ(box.currentText(), QStringLiteral("Fit"));
    EXPECT_FALSE(find<QAbstractButton>("zoomOut").isEnabled());
    QTest::mouseClick(&find<QAbstractButton>("zoomIn"), Qt::LeftButton);
    EXPECT_EQ(preview.zoom(), 1);
    EXPECT_EQ(box.currentText(), QStringLiteral("1:1"));
    box.setCurrentIndex(box.findText(QStringLiteral("16:1")));
    Q_EMIT box.activated(box.currentIndex());
    EXPECT_EQ(preview.zoom(), 16);
    EXPECT_FALSE(find<QAbstractButton>("zoomIn").isEnabled());
    QTest::mouseClick(&find<QAbstractButton>("zoomOut"), Qt::LeftButton);
    EXPECT_EQ(preview.zoom(), 12);
    for (const char *name :
         {"zoomIn", "zoomOut", "bothPlates", "blackPlate", "redPlate", "stopDots", "showDots"}) {
        EXPECT_FALSE(find<QAbstractButton>(name).accessibleName().isEmpty()) << name;
        EXPECT_FALSE(find<QAbstractButton>(name).toolTip().isEmpty()) << name;
    }
    EXPECT_FALSE(box.accessibleName().isEmpty());
}

TEST_F(DotPreview, PointUnderTheMouseStaysWhenTheWheelZooms)
{
    open(picture());
    const QRectF label = fitted().dotRectangle();
    const QPointF place = label.topLeft() + QPointF(label.width() * 0.3, label.height() * 0.6);
    const QPointF dot(form.dots.width() * 0.3, form.dots.height() * 0.6);
    turnWheel(fitted(), place, 120, Qt::ControlModifier);
    ASSERT_EQ(preview.zoom(), 1);
    turnWheel(*large().viewport(), place, 240, Qt::ControlModifier);
    ASSERT_EQ(preview.zoom(), 3);
    EXPECT_NEAR(large().dotAt(place).x(), dot.x(), 1);
    EXPECT_NEAR(large().dotAt(place).y(), dot.y(), 1);
    turnWheel(*large().viewport(), place, 360, Qt::ControlModifier);
    ASSERT_EQ(preview.zoom(), 8);
    EXPECT_NEAR(large().dotAt(place).x(), dot.x(), 1);
    EXPECT_NEAR(large().dotAt(place).y(), dot.y(), 1);
    turnWheel(*large().viewport(), place, -120 * 6, Qt::ControlModifier);
    EXPECT_EQ(preview.zoom(), kFitted);
}

TEST_F(DotPreview, WheelScrollsAndKeysTurnPagesWhileZoomed)
{
    open(opened(pdfOfPages(3)));
    preview.setZoom(4);
    waitForPage();
    QScrollBar &down = *large().verticalScrollBar();
    QScrollBar &across = *large().horizontalScrollBar();
    const int before = down.value();
    turnWheel(*large().viewport(), {50, 50}, -120, Qt::NoModifier);
    EXPECT_GT(down.value(), before);
    down.setValue(down.maximum());
    turnWheel(*large().viewport(), {50, 50}, -120, Qt::NoModifier);
    EXPECT_EQ(preview.currentPage(), 0);

    down.setValue(100);
    across.setValue(100);
    QTest::keyClick(&large(), Qt::Key_Down);
    QTest::keyClick(&large(), Qt::Key_Right);
    EXPECT_GT(down.value(), 100);
    EXPECT_GT(across.value(), 100);
    EXPECT_EQ(preview.currentPage(), 0);
    QTest::keyClick(&large(), Qt::Key_PageDown);
    EXPECT_EQ(preview.currentPage(), 1);
    QTest::keyClick(&large(), Qt::Key_End);
    EXPECT_EQ(preview.currentPage(), 2);
    EXPECT_EQ(preview.zoom(), 4);
    waitForPage();
    DotRequest last = request(opened(pdfOfPages(3)));
    last.page = 2;
    expectDotsOnScreen(plainDotsOf(last), QSize(4, 4), Plates::Both);
    preview.setZoom(kFitted);
    QTest::keyClick(&fitted(), Qt::Key_Up);
    EXPECT_EQ(preview.currentPage(), 1);
}

TEST_F(DotPreview, DraggingMovesTheDotsWithTheMouse)
{
    open(picture());
    preview.setZoom(6);
    waitForPage();
    QWidget &view = *large().viewport();
    large().horizontalScrollBar()->setValue(300);
    large().verticalScrollBar()->setValue(400);
    const QPoint from(150, 200);
    const QPointF dot = large().dotAt(from);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(&view, from + QPoint(-20, -30));
    QTest::mouseMove(&view, from + QPoint(-40, 25));
    QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, from + QPoint(-40, 25));
    EXPECT_EQ(large().dotAt(from + QPoint(-40, 25)), dot);
    EXPECT_EQ(large().horizontalScrollBar()->value(), 340);
    EXPECT_EQ(large().verticalScrollBar()->value(), 375);
}

TEST_F(DotPreview, PageAndZoomAreTold)
{
    open(opened(pdfOfPages(7)));
    preview.setCurrentPage(1);
    EXPECT_EQ(description(fitted()), QStringLiteral("Page 2 of 7, all of its dots"));
    preview.setZoom(4);
    EXPECT_EQ(description(large()), QStringLiteral("Page 2 of 7, its dots 4:1"));
    EXPECT_EQ(large().accessibleName(), fitted().accessibleName());
}

TEST_F(DotPreview, FocusStaysInThePreviewWhenItZooms)
{
    open(picture());
    preview.activateWindow();
    fitted().setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return fitted().hasFocus(); }));
    preview.setZoom(2);
    EXPECT_TRUE(large().hasFocus());
    preview.setZoom(kFitted);
    EXPECT_TRUE(fitted().hasFocus());
}

} // namespace
