// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotMaker.h"
#include "tests/dialog/DotRequests.h"
#include "tests/dialog/TestDocuments.h"

#include <gtest/gtest.h>

using namespace dialog;
using imaging::ColorMode;
using imaging::HalftoneMethod;

namespace {

const auto kGoOn = [](int) { return true; };

imaging::PageSettings fastSettings()
{
    imaging::PageSettings settings;
    settings.method = HalftoneMethod::Dither;
    return settings;
}

class DotMakerTest : public DocumentFolder
{
protected:
    DotMakerTest() { maker.setBandSource(bands.source()); }

    void expectPlainDots(const DotPicture &picture) const
    {
        ASSERT_TRUE(picture.dots);
        const PageDots plain = plainDotsOf(picture.request);
        EXPECT_EQ(picture.dots->form, picture.request.form);
        EXPECT_EQ(picture.dots->black, plain.black);
        EXPECT_EQ(picture.dots->red, plain.red);
    }

    std::shared_ptr<const DocumentPages> document = opened(pdfOfPages(3));
    DotRequest request = dotRequest(document, dotForm({31, 50}), QSize(80, 130));
    /// Five bands.
    DotRequest longRequest = dotRequest(document, dotForm({62, 1000}, {300, 300}, fastSettings()));
    CountedBands bands;
    DotMaker maker;
};

TEST_F(DotMakerTest, PageIsMadeOfDotsAndOfTheirAverage)
{
    const DotPicture picture = *maker.make(request, kGoOn);
    EXPECT_EQ(picture.request, request);
    EXPECT_EQ(picture.pageSize, QSizeF(176, 283));
    EXPECT_TRUE(picture.why.isEmpty());
    expectPlainDots(picture);
    EXPECT_EQ(picture.image, averagedDots(*picture.dots, QSize(80, 130), Plates::Both));
}

TEST_F(DotMakerTest, PictureIsOnlyMadeWhenItIsWanted)
{
    request.pixels = QSize();
    EXPECT_TRUE(maker.make(request, kGoOn)->image.isNull());
}

TEST_F(DotMakerTest, OtherSettingsPrepareTheSameRenderingAnew)
{
    expectPlainDots(*maker.make(request, kGoOn));
    EXPECT_EQ(bands.rendered, 1);
    for (const HalftoneMethod method : {HalftoneMethod::Binary, HalftoneMethod::Dither}) {
        request.form.settings.method = method;
        request.form.settings.brightness += 3;
        expectPlainDots(*maker.make(request, kGoOn));
    }
    EXPECT_EQ(bands.rendered, 1);
}

TEST_F(DotMakerTest, AnotherPictureOfTheSameDotsPreparesNothing)
{
    const DotPicture first = *maker.make(request, kGoOn);
    request.pixels = QSize(40, 65);
    request.plates = Plates::Black;
    const DotPicture second = *maker.make(request, kGoOn);
    EXPECT_EQ(second.dots, first.dots);
    EXPECT_EQ(second.image.size(), QSize(40, 65));
    EXPECT_EQ(bands.rendered, 1);
}

TEST_F(DotMakerTest, WhatIsRenderedInAnotherWayIsRenderedAnew)
{
    const auto change = [this](const auto &how) {
        how();
        const int before = bands.rendered;
        expectPlainDots(*maker.make(request, kGoOn));
        EXPECT_EQ(bands.rendered, before + 1);
    };
    change([] {});
    change([this] { request.page = 1; });
    change([this] { request.scaling = Scaling::ActualSize; });
    change([this] { request.sheet.margins = QMarginsF(5, 5, 5, 5); });
    change([this] { request.form = dotForm({31, 50}, {203, 203}); });
    change([this] { request.form.settings.colorMode = ColorMode::BlackRed; });
    change([this] {
        request.document = opened(svgDrawing());
        request.page = 0;
    });
}

TEST_F(DotMakerTest, LongPageIsMadeBandByBandAndTellsHowFarItIs)
{
    std::vector<int> percents;
    const DotPicture picture = *maker.make(longRequest, [&percents](int percent) {
        percents.push_back(percent);
        return true;
    });
    EXPECT_EQ(percents, (std::vector{0, 20, 40, 60, 80}));
    expectPlainDots(picture);
}

TEST_F(DotMakerTest, PageIsGivenUpBeforeTheNextBand)
{
    int asked = 0;
    EXPECT_FALSE(maker.make(longRequest, [&asked](int) { return ++asked <= 2; }));
    EXPECT_EQ(bands.rendered, 2);
    // What was rendered until then is not lost.
    expectPlainDots(*maker.make(longRequest, kGoOn));
    EXPECT_EQ(bands.rendered, 5);
}

TEST_F(DotMakerTest, WhatGoesBeyondTheLimitIsRenderedEachTime)
{
    // Two bands of about 2 MB.
    DotMaker small(std::size_t(5) * 1024 * 1024);
    small.setBandSource(bands.source());
    expectPlainDots(*small.make(longRequest, kGoOn));
    EXPECT_EQ(bands.rendered, 5);
    longRequest.form.settings.method = HalftoneMethod::Binary;
    expectPlainDots(*small.make(longRequest, kGoOn));
    EXPECT_EQ(bands.rendered, 5 + 3);
}

TEST_F(DotMakerTest, ForgottenPageIsRenderedAnewAndLetsGoOfTheDocument)
{
    maker.make(request, kGoOn);
    const std::weak_ptr<const DocumentPages> watched = document;
    maker.forget();
    document.reset();
    request.document.reset();
    longRequest.document.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(DotMakerTest, DamagedPageGivesItsSentence)
{
    request.document =
        DocumentPages::open(testDocument(QStringLiteral("damaged-page.pdf"))).value();
    request.page = 1;
    const DotPicture picture = *maker.make(request, kGoOn);
    EXPECT_FALSE(picture.dots);
    EXPECT_EQ(picture.why,
              QStringLiteral("damaged-page.pdf: page 2 is damaged and cannot be shown"));
    request.page = 2;
    expectPlainDots(*maker.make(request, kGoOn));
}

TEST_F(DotMakerTest, OtherDotsAcrossThanDownAreMadeAsTheyAre)
{
    request = dotRequest(document, dotForm({31, 50}, {300, 600}), QSize(80, 130));
    const DotPicture picture = *maker.make(request, kGoOn);
    EXPECT_EQ(picture.dots->form.dots, QSize(366, 1181));
    expectPlainDots(picture);
    EXPECT_EQ(picture.image.size(), QSize(80, 130));
}

} // namespace
