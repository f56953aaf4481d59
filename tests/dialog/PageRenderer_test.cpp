// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageRenderer.h"
#include "tests/dialog/TestDocuments.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

using dialog::PagePicture;
using dialog::PageRenderer;
using dialog::PageRequest;
using dialog::Scaling;
using dialog::Sheet;

namespace {

const Sheet kLabel{QSizeF(180, 280), QMarginsF(10, 10, 10, 10)};

class PageRendererTest : public DocumentFolder
{
protected:
    PageRendererTest()
    {
        QObject::connect(&renderer, &PageRenderer::rendered, &renderer,
                         [this](const PagePicture &picture) { reports.push_back(picture); });
    }

    PageRequest request(int page) const
    {
        return {document, page, kLabel, Scaling::Fit, QSize(180, 280)};
    }

    bool waitForReports(size_t count)
    {
        return QTest::qWaitFor([this, count] { return reports.size() >= count; });
    }

    std::shared_ptr<const dialog::DocumentPages> document = opened(pdfOfPages(20, {160, 260}));
    PageRenderer renderer;
    std::vector<PagePicture> reports;
};

TEST_F(PageRendererTest, PageIsRenderedInThePixelsThatItTakesOnScreen)
{
    renderer.render(request(3));
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request, request(3));
    EXPECT_EQ(reports[0].pageSize, QSizeF(160, 260));
    EXPECT_EQ(reports[0].image.size(), QSize(160, 260));
    EXPECT_EQ(qRed(reports[0].image.pixel(80, 130)), greyOfPage(3));
    EXPECT_TRUE(reports[0].why.isEmpty());
}

TEST_F(PageRendererTest, NewestRequestWinsAndOlderOnesAreNotReported)
{
    for (int page = 0; page < 20; ++page) {
        renderer.render(request(page));
    }
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request.page, 19);
    EXPECT_FALSE(QTest::qWaitFor([this] { return reports.size() > 1; }, 100));
}

TEST_F(PageRendererTest, CancelledRequestIsNotReported)
{
    renderer.render(request(0));
    renderer.cancel();
    EXPECT_FALSE(QTest::qWaitFor([this] { return !reports.empty(); }, 100));
    renderer.render(request(1));
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request.page, 1);
}

TEST_F(PageRendererTest, RendererMayGoWhileItRenders)
{
    auto shortLived = std::make_unique<PageRenderer>();
    bool reported = false;
    QObject::connect(shortLived.get(), &PageRenderer::rendered, shortLived.get(),
                     [&reported] { reported = true; });
    shortLived->render(request(0));
    shortLived.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(reported);
}

TEST_F(PageRendererTest, TurnedPageIsRenderedAsTheDocumentHasIt)
{
    document = opened(pdfOfPages(1, {260, 160}));
    const PagePicture picture = PageRenderer::pictureOf(request(0));
    EXPECT_EQ(picture.image.size(), QSize(260, 160));
}

TEST_F(PageRendererTest, SheetWithoutASizeIsAsLargeAsThePage)
{
    const PagePicture picture =
        PageRenderer::pictureOf({document, 0, {}, Scaling::Fit, QSize(320, 5000)});
    EXPECT_EQ(picture.image.size(), QSize(320, 520));
}

TEST_F(PageRendererTest, HugePageOnASmallSheetIsLimited)
{
    document = opened(pdfOfPages(1, {7000, 14000}));
    const PagePicture picture =
        PageRenderer::pictureOf({document, 0, kLabel, Scaling::ActualSize, QSize(1800, 2800)});
    EXPECT_EQ(picture.image.size(), QSize(2048, 4096));
}

TEST_F(PageRendererTest, DamagedPageIsReportedWithItsSentence)
{
    const auto damaged =
        dialog::DocumentPages::open(testDocument(QStringLiteral("damaged-page.pdf")));
    ASSERT_TRUE(damaged);
    document = damaged.value();
    const PagePicture picture = PageRenderer::pictureOf(request(1));
    EXPECT_TRUE(picture.image.isNull());
    EXPECT_EQ(picture.why,
              QStringLiteral("damaged-page.pdf: page 2 is damaged and cannot be shown"));
}

} // namespace
