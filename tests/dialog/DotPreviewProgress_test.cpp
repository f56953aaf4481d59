// SPDX-License-Identifier: Apache-2.0
#include "DotPreview.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QProgressBar>

using namespace dialog;
using imaging::ColorMode;

namespace {

TEST_F(DotPreview, LastPictureStaysWhileOtherDotsAreMade)
{
    const auto document = picture();
    open(document);
    const QImage before = screen(fitted());
    bands.holds = true;
    // In colours the document is rendered anew.
    form.settings.colorMode = ColorMode::BlackRed;
    preview.setSheet(sheetOf(form), form);
    QTest::qWait(DotRenderer::kPatience + 100);
    EXPECT_TRUE(find<QProgressBar>("dotProgress").isVisible());
    EXPECT_FALSE(preview.isUpToDate());
    EXPECT_EQ(screen(fitted()), before);
    bands.letGo();
    waitForPage();
    EXPECT_NE(screen(fitted()), before);
}

TEST_F(DotPreview, ProgressShowsOnlyForWhatTakesLong)
{
    auto &bar = find<QProgressBar>("dotProgress");
    open(picture());
    EXPECT_FALSE(bar.isVisible());
    bands.holds = true;
    form = dotForm({31, 50}, {203, 203});
    preview.setSheet(sheetOf(form), form);
    EXPECT_FALSE(bar.isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&bar] { return bar.isVisible(); }));
    EXPECT_TRUE(find<QAbstractButton>("stopDots").isVisible());
    bands.letGo();
    waitForPage();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(find<QAbstractButton>("stopDots").isVisible());
}

TEST_F(DotPreview, PageItselfStandsInForDotsThatTakeLong)
{
    bands.holds = true;
    preview.setSheet(sheetOf(form), form);
    const auto document = opened(pdfOfPages(1, {88, 142}));
    preview.setDocument(document);
    const QPoint middle = fitted().rect().center();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return qRed(screen(fitted()).pixel(middle)) == greyOfPage(0); }));
    EXPECT_FALSE(preview.isUpToDate());
    bands.letGo();
    waitForPage();
    expectAverageOnScreen(plainDotsOf(request(document)), Plates::Both);
}

TEST_F(DotPreview, EscapeStopsTheDotsAndAButtonBringsThemBack)
{
    open(opened(pdfOfPages(2, {88, 142})));
    preview.setZoom(3);
    waitForPage();
    bands.holds = true;
    preview.setCurrentPage(1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return find<QProgressBar>("dotProgress").isVisible(); }));
    QTest::keyClick(&large(), Qt::Key_Escape);
    EXPECT_FALSE(find<QProgressBar>("dotProgress").isVisible());
    EXPECT_FALSE(find<QComboBox>("zoom").isVisible());
    // The page as it is, in one tone.
    waitForPage();
    EXPECT_TRUE(fitted().isVisible());
    EXPECT_EQ(qRed(screen(fitted()).pixel(fitted().rect().center())), greyOfPage(1));
    EXPECT_EQ(description(fitted()), QStringLiteral("Page 2 of 2"));
    bands.letGo();
    QTest::mouseClick(&find<QAbstractButton>("showDots"), Qt::LeftButton);
    waitForPage();
    EXPECT_FALSE(find<QAbstractButton>("showDots").isVisible());
    EXPECT_TRUE(find<QComboBox>("zoom").isVisible());
    EXPECT_EQ(description(fitted()), QStringLiteral("Page 2 of 2, all of its dots"));
}

TEST_F(DotPreview, EscapeIsLeftToTheDialogWhenNothingIsBeingMade)
{
    open(picture());
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&preview, &escape);
    EXPECT_FALSE(escape.isAccepted());
}

TEST_F(DotPreview, DamagedPageGivesItsSentenceAtAnyZoom)
{
    const auto damaged = DocumentPages::open(testDocument(QStringLiteral("damaged-page.pdf")));
    open(damaged.value());
    const QString sentence =
        QStringLiteral("damaged-page.pdf: page 2 is damaged and cannot be shown");
    preview.setCurrentPage(1);
    waitForPage();
    EXPECT_EQ(fitted().message(), sentence);
    EXPECT_EQ(description(fitted()), QStringLiteral("Page 2 of 3: ") + sentence);
    preview.setCurrentPage(0);
    preview.setZoom(2);
    waitForPage();
    EXPECT_TRUE(large().isVisible());
    preview.setCurrentPage(1);
    waitForPage();
    EXPECT_TRUE(fitted().isVisible());
    EXPECT_EQ(fitted().message(), sentence);
    preview.setCurrentPage(2);
    waitForPage();
    EXPECT_TRUE(large().isVisible());
    EXPECT_EQ(preview.zoom(), 2);
}

TEST_F(DotPreview, PrinterWithoutDotsShowsThePageAndNoControls)
{
    open(opened(pdfOfPages(1, {88, 142})));
    preview.setZoom(4);
    waitForPage();
    EXPECT_TRUE(find<DotBar>("dotBar").isVisible());
    preview.setSheet(sheetOf(form));
    waitForPage();
    EXPECT_FALSE(find<DotBar>("dotBar").isVisible());
    EXPECT_EQ(preview.zoom(), kFitted);
    EXPECT_TRUE(fitted().isVisible());
    EXPECT_EQ(qRed(screen(fitted()).pixel(fitted().rect().center())), greyOfPage(0));
    QTest::keyClick(&preview, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(preview.zoom(), kFitted);
    EXPECT_EQ(description(fitted()), QStringLiteral("Page 1 of 1"));
}

TEST_F(DotPreview, PageWithMoreDotsThanCanBeMadeIsShownAsItIs)
{
    form = dotForm({62, 3000}, {2400, 2400});
    open(opened(pdfOfPages(1, {88, 4000})));
    EXPECT_EQ(qRed(screen(fitted()).pixel(fitted().rect().center())), greyOfPage(0));
    EXPECT_EQ(fitted().message(), QString());
    EXPECT_EQ(description(fitted()), QStringLiteral("Page 1 of 1"));
    preview.setZoom(4);
    waitForPage();
    EXPECT_TRUE(fitted().isVisible());
    EXPECT_EQ(bands.asked, 0);
    form = dotForm({31, 50});
    preview.setSheet(sheetOf(form), form);
    waitForPage();
    EXPECT_EQ(description(large()), QStringLiteral("Page 1 of 1, its dots 4:1"));
    EXPECT_EQ(large().dotPixels().width(), form.dots.width() * 4);
}

TEST_F(DotPreview, WithoutADocumentTheControlsWait)
{
    preview.setSheet(sheetOf(form), form);
    EXPECT_TRUE(preview.isUpToDate());
    EXPECT_FALSE(find<DotBar>("dotBar").isEnabled());
    preview.setDocument(picture());
    EXPECT_TRUE(find<DotBar>("dotBar").isEnabled());
    waitForPage();
    preview.setDocument(nullptr);
    EXPECT_EQ(fitted().message(), QStringLiteral("No document"));
    EXPECT_TRUE(fitted().pageRectangle().isEmpty());
}

TEST_F(DotPreview, WindowMayGoWhileDotsAreMade)
{
    auto shortLived = std::make_unique<PagePreview>();
    CountedBands slow;
    slow.holds = true;
    shortLived->findChild<DotRenderer *>()->setBandSource(slow.source());
    form = dotForm({62, 1000});
    shortLived->setSheet(sheetOf(form), form);
    shortLived->setDocument(picture());
    shortLived->show();
    ASSERT_TRUE(QTest::qWaitFor([&slow] { return slow.asked > 0; }));
    slow.letGo();
    shortLived.reset();
    QCoreApplication::processEvents();
    EXPECT_LT(slow.rendered, 5);
}

} // namespace
