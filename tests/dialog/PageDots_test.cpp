// SPDX-License-Identifier: Apache-2.0
#include "dialog/PageDots.h"
#include "tests/dialog/TestDocuments.h"

using dialog::DotForm;
using dialog::PageDots;
using dialog::PageDotsBuilder;
using dialog::PixelBand;
using dialog::Scaling;
using dialog::SheetPixels;

namespace {

DotForm form(const QSize &dots, imaging::ColorMode colours)
{
    DotForm form;
    form.settings.method = imaging::HalftoneMethod::Binary;
    form.settings.colorMode = colours;
    form.resolution = QSize(300, 300);
    form.dots = dots;
    return form;
}

TEST(PageDots, DarkPixelsAreBlackDots)
{
    PageDotsBuilder builder(form({9, 2}, imaging::ColorMode::Monochrome));
    builder.add({0, 1, {0, 255, 255, 255, 255, 255, 255, 255, 0}});
    builder.add({1, 1, {255, 255, 0, 255, 255, 255, 255, 255, 255}});
    const PageDots dots = builder.take();
    EXPECT_EQ(dots.rowBytes, 2U);
    EXPECT_EQ(dots.black, (std::vector<std::uint8_t>{0x80, 0x80, 0x20, 0x00}));
    EXPECT_TRUE(dots.red.empty());
    EXPECT_TRUE(dots.isBlack(8, 0));
    EXPECT_TRUE(dots.isBlack(2, 1));
    EXPECT_FALSE(dots.isBlack(2, 0));
    EXPECT_FALSE(dots.isRed(2, 1));
}

TEST(PageDots, RedPixelsAreRedDotsOnly)
{
    PageDotsBuilder builder(form({3, 1}, imaging::ColorMode::BlackRed));
    builder.add({0, 1, {255, 0, 0, 0, 0, 0, 255, 255, 255}});
    const PageDots dots = builder.take();
    EXPECT_EQ(dots.black, std::vector<std::uint8_t>{0x40});
    EXPECT_EQ(dots.red, std::vector<std::uint8_t>{0x80});
    EXPECT_TRUE(dots.isRed(0, 0));
    EXPECT_FALSE(dots.isBlack(0, 0));
}

class PageDotsOfDocument : public DocumentFolder
{ };

TEST_F(PageDotsOfDocument, BandsMakeThePageThatPreparationMakesAtOnce)
{
    const DotForm page = form({732, 6000}, imaging::ColorMode::Monochrome);
    const SheetPixels pixels(opened(pdfOfPages(1)), 0, {}, Scaling::Fit, page);
    ASSERT_GT(pixels.bands(), 1);
    std::vector<std::uint8_t> grey;
    for (int i = 0; i < pixels.bands(); ++i) {
        const auto band = pixels.band(i);
        ASSERT_TRUE(band);
        grey.insert(grey.end(), band.value().bytes.begin(), band.value().bytes.end());
    }
    imaging::PagePreparation preparation(page.settings, 732, imaging::InputFormat::Gray8);
    std::vector<std::uint8_t> expected(preparation.outputRowBytes() * 6000);
    ASSERT_TRUE(preparation.rows(grey, expected));
    const auto dots = dialog::dotsOf(pixels);
    ASSERT_TRUE(dots);
    EXPECT_EQ(dots.value().black, expected);
}

TEST_F(PageDotsOfDocument, WhoDoesNotGoOnGetsNoDots)
{
    const SheetPixels pixels(opened(pdfOfPages(1)), 0, {}, Scaling::Fit,
                             form({732, 6000}, imaging::ColorMode::Monochrome));
    int asked = 0;
    const auto dots = dialog::dotsOf(pixels, [&asked](int band) {
        ++asked;
        return band < 1;
    });
    ASSERT_FALSE(dots);
    EXPECT_EQ(dots.failure().kind, dialog::FailureKind::Cancelled);
    EXPECT_EQ(asked, 2);
}

} // namespace
