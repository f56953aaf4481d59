// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotRenderer.h"
#include "tests/dialog/DotRequests.h"
#include "tests/dialog/TestDocuments.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

using namespace dialog;

namespace {

class DotRendererTest : public DocumentFolder
{
protected:
    DotRendererTest()
    {
        renderer->setBandSource(bands.source());
        QObject::connect(renderer.get(), &DotRenderer::rendered, renderer.get(),
                         [this](const DotPicture &picture) { reports.push_back(picture); });
    }
    ~DotRendererTest() override { bands.letGo(); }

    bool waitForReports(std::size_t count)
    {
        return QTest::qWaitFor([this, count] { return reports.size() >= count; });
    }
    bool waitForBand(int count)
    {
        return QTest::qWaitFor([this, count] { return bands.asked >= count; });
    }
    DotRequest withBrightness(int level) const
    {
        DotRequest other = request;
        other.form.settings.brightness = level;
        return other;
    }

    std::shared_ptr<const DocumentPages> document = opened(pdfOfPages(3));
    DotRequest request = dotRequest(document, dotForm({31, 50}), QSize(80, 130));
    /// 5 bands.
    DotRequest longRequest = dotRequest(document, dotForm({62, 1000}));
    CountedBands bands;
    std::vector<DotPicture> reports;
    std::unique_ptr<DotRenderer> renderer = std::make_unique<DotRenderer>();
};

TEST_F(DotRendererTest, DotsAreMadeAwayFromTheInterfaceThread)
{
    bands.holds = true;
    renderer->render(request);
    EXPECT_TRUE(reports.empty());
    bands.letGo();
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request, request);
    EXPECT_EQ(reports[0].dots->black, plainDotsOf(request).black);
    EXPECT_FALSE(reports[0].image.isNull());
}

TEST_F(DotRendererTest, NewestRequestWinsAndOneOfAnotherPageIsNotReported)
{
    bands.holds = true;
    renderer->render(request);
    ASSERT_TRUE(waitForBand(1));
    for (const int page : {1, 2}) {
        request.page = page;
        renderer->render(request);
    }
    bands.letGo();
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request.page, 2);
    EXPECT_FALSE(QTest::qWaitFor([this] { return reports.size() > 1; }, 100));
    // The second page has not even begun.
    EXPECT_EQ(bands.rendered, 2);
}

TEST_F(DotRendererTest, RunningPageIsGivenUpWithinABand)
{
    bands.holds = true;
    renderer->render(longRequest);
    ASSERT_TRUE(waitForBand(1));
    renderer->render(request);
    bands.letGo();
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request, request);
    EXPECT_EQ(bands.rendered, 1 + 1);
}

TEST_F(DotRendererTest, DotsThatAreReadyAreShownOnTheWayToTheNewestSettings)
{
    bands.holds = true;
    renderer->render(request);
    ASSERT_TRUE(waitForBand(1));
    renderer->render(withBrightness(1));
    renderer->render(withBrightness(2));
    bands.letGo();
    ASSERT_TRUE(waitForReports(2));
    EXPECT_EQ(reports[0].request, request);
    EXPECT_EQ(reports[1].request, withBrightness(2));
    EXPECT_EQ(bands.rendered, 1);
}

TEST_F(DotRendererTest, LongPageFollowsASliderThatIsFasterThanItsDots)
{
    request = longRequest;
    request.form.settings.method = imaging::HalftoneMethod::Dither;
    bands.holds = true;
    renderer->render(request);
    // Whenever a band is made there is another level already.
    for (const int step : {1, 2, 3}) {
        ASSERT_TRUE(waitForBand(step));
        renderer->render(withBrightness(step));
        if (step < 3) {
            bands.gate.release();
        }
    }
    bands.letGo();
    ASSERT_TRUE(waitForReports(2));
    // Two were given up, the third is made to its end although a newer one is wanted.
    EXPECT_EQ(reports[0].request, withBrightness(2));
    EXPECT_EQ(reports[1].request, withBrightness(3));
    EXPECT_EQ(reports[1].dots->black, plainDotsOf(withBrightness(3)).black);
    EXPECT_EQ(bands.rendered, 5);
}

TEST_F(DotRendererTest, CancelledPageIsNotReported)
{
    bands.holds = true;
    renderer->render(longRequest);
    ASSERT_TRUE(waitForBand(1));
    renderer->cancel();
    bands.letGo();
    EXPECT_FALSE(QTest::qWaitFor([this] { return !reports.empty(); }, 100));
    EXPECT_EQ(bands.rendered, 1);
    renderer->render(request);
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request, request);
}

TEST_F(DotRendererTest, WhatIsAskedForAgainAfterACancelIsMade)
{
    bands.holds = true;
    renderer->render(request);
    ASSERT_TRUE(waitForBand(1));
    renderer->cancel();
    renderer->render(request);
    bands.letGo();
    ASSERT_TRUE(waitForReports(1));
    EXPECT_EQ(reports[0].request, request);
}

TEST_F(DotRendererTest, ProgressIsToldOfAPageThatTakesLong)
{
    const QSignalSpy progress(renderer.get(), &DotRenderer::progressed);
    bands.holds = true;
    longRequest.form.settings.method = imaging::HalftoneMethod::Binary;
    renderer->render(longRequest);
    ASSERT_TRUE(waitForBand(1));
    EXPECT_EQ(progress.count(), 0);
    ASSERT_TRUE(QTest::qWaitFor([&progress] { return progress.count() > 0; }));
    EXPECT_EQ(progress.last().at(0), 0);
    bands.gate.release(2);
    ASSERT_TRUE(waitForBand(3));
    ASSERT_TRUE(QTest::qWaitFor([&progress] { return progress.last().at(0) == 40; }));
    bands.letGo();
    ASSERT_TRUE(waitForReports(1));
    const auto told = progress.count();
    QTest::qWait(2 * DotRenderer::kPatience);
    EXPECT_EQ(progress.count(), told);
}

TEST_F(DotRendererTest, RendererMayGoWhileItRenders)
{
    bands.holds = true;
    renderer->render(longRequest);
    ASSERT_TRUE(waitForBand(1));
    bands.letGo();
    renderer.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(reports.empty());
    EXPECT_LT(bands.rendered, 5);
}

TEST_F(DotRendererTest, ClearedRendererLetsGoOfTheDocument)
{
    renderer->render(request);
    ASSERT_TRUE(waitForReports(1));
    const std::weak_ptr<const DocumentPages> watched = document;
    reports.clear();
    document.reset();
    request.document.reset();
    longRequest.document.reset();
    EXPECT_FALSE(watched.expired());
    renderer->clear();
    EXPECT_TRUE(QTest::qWaitFor([&watched] { return watched.expired(); }));
}

} // namespace
