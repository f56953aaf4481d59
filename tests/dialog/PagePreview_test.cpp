// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageCanvas.h"
#include "dialog/PagePreview.h"
#include "tests/dialog/TestDocuments.h"

#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include <gtest/gtest.h>

using dialog::PageCanvas;
using dialog::PagePreview;
using dialog::Scaling;
using dialog::Sheet;

namespace {

const Sheet kLabel{QSizeF(180, 280), QMarginsF(10, 10, 10, 10)};

class PagePreviewTest : public DocumentFolder
{
protected:
    void SetUp() override
    {
        preview.resize(300, 420);
        preview.setSheet(kLabel);
        preview.show();
    }

    void showDocument(const QByteArray &content)
    {
        preview.setDocument(opened(content));
        waitForPage();
    }
    void waitForPage()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return preview.isUpToDate(); }));
    }

    PageCanvas &canvas() { return *preview.findChild<PageCanvas *>(); }
    QToolButton &button(const char *name)
    {
        return *preview.findChild<QToolButton *>(QLatin1String(name));
    }
    QString number() { return preview.findChild<QLabel *>(QStringLiteral("pageNumber"))->text(); }
    QString description()
    {
        return QAccessible::queryAccessibleInterface(&canvas())->text(QAccessible::Description);
    }
    void press(Qt::Key key) { QTest::keyClick(&canvas(), key); }
    void turnWheel(int angle)
    {
        QWheelEvent event(QPointF(9, 9), QPointF(9, 9), QPoint(), QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // Only what comes from outside is passed on to the widget around the picture.
        QSpontaneKeyEvent::setSpontaneous(&event);
        QCoreApplication::instance()->notify(&canvas(), &event);
    }
    /// The colour of the screen at a place of the label; (0, 0) is its top left, (1, 1) its bottom
    /// right.
    QColor colourAt(double across, double down)
    {
        const QRectF sheet = canvas().sheetRectangle();
        const QPointF at(sheet.left() + across * sheet.width(),
                         sheet.top() + down * sheet.height());
        return canvas().grab().toImage().pixelColor(at.toPoint());
    }

    PagePreview preview;
};

TEST_F(PagePreviewTest, WithoutADocumentTheLabelIsEmptyAndSaysSo)
{
    EXPECT_EQ(preview.pageCount(), 0);
    EXPECT_TRUE(preview.isUpToDate());
    EXPECT_EQ(canvas().message(), QStringLiteral("No document"));
    EXPECT_EQ(description(), QStringLiteral("No document"));
    EXPECT_EQ(number(), QString());
    EXPECT_FALSE(button("previousPage").isEnabled());
    EXPECT_FALSE(button("nextPage").isEnabled());
    EXPECT_EQ(colourAt(0.5, 0.05), QColor(Qt::white));
}

TEST_F(PagePreviewTest, LabelStandsInItsTrueProportionsInTheMiddle)
{
    const QRectF sheet = canvas().sheetRectangle();
    EXPECT_NEAR(sheet.width() / sheet.height(), 180.0 / 280.0, 0.01);
    EXPECT_NEAR(sheet.center().x(), canvas().width() / 2.0, 1);
    EXPECT_NEAR(sheet.center().y(), canvas().height() / 2.0, 1);
    EXPECT_TRUE(QRectF(canvas().rect()).contains(sheet));
    preview.setSheet({QSizeF(280, 40), QMarginsF()});
    EXPECT_NEAR(canvas().sheetRectangle().width() / canvas().sheetRectangle().height(), 7, 0.2);
}

TEST_F(PagePreviewTest, PageStandsWhereItWillBePrinted)
{
    showDocument(pdfOfPages(1, {180, 280}));
    const QRectF sheet = canvas().sheetRectangle();
    const QRectF page = canvas().pageRectangle();
    const double factor = sheet.width() / 180;
    EXPECT_NEAR(page.left() - sheet.left(), 10 * factor, 1);
    EXPECT_NEAR(page.center().y(), sheet.center().y(), 1);
    EXPECT_NEAR(page.width(), 160 * factor, 1);
    EXPECT_EQ(colourAt(0.5, 0.5).red(), greyOfPage(0));
    EXPECT_EQ(colourAt(0.02, 0.5), QColor(Qt::white));
}

TEST_F(PagePreviewTest, PageInItsOwnSizeIsCutAtTheLabelsEdge)
{
    preview.setScaling(Scaling::ActualSize);
    showDocument(pdfOfPages(1, {400, 600}));
    EXPECT_TRUE(canvas().pageRectangle().contains(canvas().sheetRectangle()));
    EXPECT_EQ(colourAt(0.5, 0.5).red(), greyOfPage(0));
    EXPECT_EQ(colourAt(-0.06, 0.5), colourAt(-0.06, 0.4));
    EXPECT_NE(colourAt(-0.06, 0.5).red(), greyOfPage(0));
}

TEST_F(PagePreviewTest, EdgesThatThePrinterDoesNotReachAreFaded)
{
    preview.setScaling(Scaling::ActualSize);
    showDocument(pdfOfPages(1, {180, 280}));
    EXPECT_EQ(colourAt(0.5, 0.5).red(), greyOfPage(0));
    EXPECT_GT(colourAt(0.02, 0.5).red(), greyOfPage(0) + 80);
}

TEST_F(PagePreviewTest, WidePageIsTurnedCounterClockwise)
{
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int x = 0; x < 100; ++x) {
        for (int y = 0; y < 100; ++y) {
            image.setPixelColor(x, y, Qt::red);
        }
    }
    const QString path = folder.filePath(QStringLiteral("wide.png"));
    ASSERT_TRUE(image.save(path));
    preview.setDocument(dialog::DocumentPages::open(path).value());
    waitForPage();
    EXPECT_EQ(colourAt(0.5, 0.75), QColor(Qt::red));
    EXPECT_EQ(colourAt(0.5, 0.25), QColor(Qt::blue));
}

TEST_F(PagePreviewTest, PageNumberIsShownAndTold)
{
    showDocument(pdfOfPages(7));
    preview.setCurrentPage(1);
    EXPECT_EQ(number(), QStringLiteral("Page 2 of 7"));
    EXPECT_EQ(description(), QStringLiteral("Page 2 of 7"));
    EXPECT_FALSE(canvas().accessibleName().isEmpty());
}

TEST_F(PagePreviewTest, ButtonsTurnPagesAndStopAtTheEnds)
{
    showDocument(pdfOfPages(2));
    EXPECT_FALSE(button("previousPage").isEnabled());
    QTest::mouseClick(&button("nextPage"), Qt::LeftButton);
    EXPECT_EQ(preview.currentPage(), 1);
    EXPECT_FALSE(button("nextPage").isEnabled());
    waitForPage();
    EXPECT_EQ(colourAt(0.5, 0.5).red(), greyOfPage(1));
    QTest::mouseClick(&button("previousPage"), Qt::LeftButton);
    EXPECT_EQ(preview.currentPage(), 0);
    EXPECT_FALSE(button("previousPage").accessibleName().isEmpty());
    EXPECT_FALSE(button("nextPage").accessibleName().isEmpty());
}

TEST_F(PagePreviewTest, KeysTurnPages)
{
    showDocument(pdfOfPages(7));
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_PageDown, 1}, {Qt::Key_Right, 2},  {Qt::Key_Down, 3}, {Qt::Key_Left, 2},
        {Qt::Key_Up, 1},       {Qt::Key_PageUp, 0}, {Qt::Key_Up, 0},   {Qt::Key_End, 6},
        {Qt::Key_PageDown, 6}, {Qt::Key_Home, 0}};
    for (const auto &[key, page] : steps) {
        press(key);
        EXPECT_EQ(preview.currentPage(), page) << key;
    }
}

TEST_F(PagePreviewTest, ArrowKeysFollowTheReadingDirection)
{
    preview.setLayoutDirection(Qt::RightToLeft);
    showDocument(pdfOfPages(3));
    press(Qt::Key_Left);
    EXPECT_EQ(preview.currentPage(), 1);
    press(Qt::Key_Right);
    EXPECT_EQ(preview.currentPage(), 0);
}

TEST_F(PagePreviewTest, WheelTurnsAPageForEachNotch)
{
    showDocument(pdfOfPages(7));
    turnWheel(-240);
    EXPECT_EQ(preview.currentPage(), 2);
    turnWheel(120);
    EXPECT_EQ(preview.currentPage(), 1);
    turnWheel(-60);
    EXPECT_EQ(preview.currentPage(), 1);
    turnWheel(-60);
    EXPECT_EQ(preview.currentPage(), 2);
}

TEST_F(PagePreviewTest, ChangeOfThePageIsReportedOnce)
{
    showDocument(pdfOfPages(7));
    const QSignalSpy changes(&preview, &PagePreview::currentPageChanged);
    preview.setCurrentPage(3);
    preview.setCurrentPage(3);
    preview.setCurrentPage(100);
    preview.setCurrentPage(-5);
    ASSERT_EQ(changes.count(), 3);
    EXPECT_EQ(changes.at(0).at(0), 3);
    EXPECT_EQ(changes.at(1).at(0), 6);
    EXPECT_EQ(changes.at(2).at(0), 0);
}

TEST_F(PagePreviewTest, OtherDocumentBeginsAtItsFirstPage)
{
    showDocument(pdfOfPages(7));
    preview.setCurrentPage(5);
    const QSignalSpy changes(&preview, &PagePreview::currentPageChanged);
    showDocument(svgDrawing());
    EXPECT_EQ(preview.currentPage(), 0);
    EXPECT_EQ(preview.pageCount(), 1);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(number(), QStringLiteral("Page 1 of 1"));
    preview.setDocument(nullptr);
    EXPECT_EQ(canvas().message(), QStringLiteral("No document"));
    EXPECT_TRUE(canvas().pageRectangle().isEmpty());
}

TEST_F(PagePreviewTest, DamagedPageGivesItsSentenceInPlaceOfThePicture)
{
    const auto document =
        dialog::DocumentPages::open(testDocument(QStringLiteral("damaged-page.pdf")));
    ASSERT_TRUE(document);
    preview.setDocument(document.value());
    preview.setCurrentPage(1);
    waitForPage();
    EXPECT_EQ(canvas().message(),
              QStringLiteral("damaged-page.pdf: page 2 is damaged and cannot be shown"));
    EXPECT_EQ(
        description(),
        QStringLiteral("Page 2 of 3: damaged-page.pdf: page 2 is damaged and cannot be shown"));
    preview.setCurrentPage(2);
    waitForPage();
    EXPECT_EQ(canvas().message(), QString());
    EXPECT_FALSE(canvas().pageRectangle().isEmpty());
}

TEST_F(PagePreviewTest, SentenceStandsOnAGroundOfItsOwn)
{
    const QColor ground(1, 2, 3);
    QPalette colours = preview.palette();
    colours.setColor(QPalette::Base, ground);
    preview.setPalette(colours);
    const QImage screen = canvas().grab().toImage();
    const int row = screen.height() / 2 - QFontMetrics(canvas().font()).height() / 2 - 4;
    EXPECT_EQ(screen.pixelColor(screen.width() / 2, row), ground);
    EXPECT_NE(screen.pixelColor(2, row), ground);
}

TEST_F(PagePreviewTest, PagesTurnedFasterThanTheyAreRenderedEndAtTheLastOne)
{
    showDocument(pdfOfPages(200));
    for (int page = 0; page < 150; ++page) {
        press(Qt::Key_PageDown);
    }
    waitForPage();
    EXPECT_EQ(number(), QStringLiteral("Page 151 of 200"));
    EXPECT_EQ(colourAt(0.5, 0.5).red(), greyOfPage(150));
}

TEST_F(PagePreviewTest, PageShownIsReportedWhenThePageIsThere)
{
    const QSignalSpy shown(&preview, &PagePreview::pageShown);
    preview.setDocument(opened(pdfOfPages(2)));
    EXPECT_FALSE(preview.isUpToDate());
    waitForPage();
    EXPECT_EQ(shown.count(), 1);
    preview.resize(400, 600);
    EXPECT_FALSE(preview.isUpToDate());
    waitForPage();
    EXPECT_EQ(shown.count(), 2);
}

TEST_F(PagePreviewTest, PageIsAsFineAsTheScreen)
{
    QImage lines(400, 600, QImage::Format_RGB32);
    for (int y = 0; y < lines.height(); ++y) {
        for (int x = 0; x < lines.width(); ++x) {
            lines.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
        }
    }
    lines.setDotsPerMeterX(11811);
    lines.setDotsPerMeterY(11811);
    const QString path = folder.filePath(QStringLiteral("lines.png"));
    ASSERT_TRUE(lines.save(path));
    preview.setSheet({QSizeF(96, 144), QMarginsF()});
    // So that the label has as many pixels as the picture.
    preview.resize(preview.width() + 432 - canvas().width(),
                   preview.height() + 632 - canvas().height());
    preview.setDocument(dialog::DocumentPages::open(path).value());
    waitForPage();
    const QPoint corner = canvas().sheetRectangle().topLeft().toPoint();
    const QImage screen = canvas().grab().toImage();
    for (int x = 100; x < 110; ++x) {
        EXPECT_EQ(screen.pixelColor(corner + QPoint(x, 300)).red(), x % 2 == 0 ? 0 : 255) << x;
    }
}

TEST_F(PagePreviewTest, PageIsRenderedOnlyAfterTheWindowHasBeenPainted)
{
    PagePreview fresh;
    fresh.setDocument(opened(pdfOfPages(1)));
    fresh.show();
    // Time enough for a rendering, whose picture would be taken over here.
    QTest::qSleep(200);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    EXPECT_FALSE(fresh.isUpToDate());
    EXPECT_TRUE(QTest::qWaitFor([&fresh] { return fresh.isUpToDate(); }));
}

TEST_F(PagePreviewTest, PageOfAShownWindowThatIsNeverPaintedIsRenderedAllTheSame)
{
    PagePreview unpainted;
    unpainted.setUpdatesEnabled(false);
    unpainted.setDocument(opened(pdfOfPages(1)));
    unpainted.show();
    EXPECT_TRUE(QTest::qWaitFor([&unpainted] { return unpainted.isUpToDate(); }));
}

} // namespace
