// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentPages.h"
#include "resources/sample/Ean13.h"

#include <gtest/gtest.h>

#include <set>

using dialog::DocumentPages;
using sample::ean13Modules;
using sample::withCheckDigit;

namespace {

std::shared_ptr<const DocumentPages> sampleDocument()
{
    const auto document =
        DocumentPages::open(QStringLiteral(SOURCE_DIR "/resources/sample/sample-label.pdf"));
    EXPECT_TRUE(document) << (document ? "" : qPrintable(document.failure().text()));
    return document ? document.value() : nullptr;
}

// Page `page` with 300 dots per inch.
QImage printed(int page)
{
    const auto image = sampleDocument()->render(page, {732, 1181});
    EXPECT_TRUE(image);
    return image ? image.value() : QImage();
}

// The modules of the bars that cross the page at the height `y`.
std::vector<bool> modulesAt(const QImage &page, int y)
{
    const auto isDark = [&page, y](double x) { return qGray(page.pixel(int(x), y)) < 128; };
    int first = 0;
    int last = page.width() - 1;
    while (first < last && !isDark(first)) {
        ++first;
    }
    while (last > first && !isDark(last)) {
        --last;
    }
    std::vector<bool> modules;
    for (int module = 0; module < 95; ++module) {
        modules.push_back(isDark(first + (module + 0.5) * (last + 1 - first) / 95));
    }
    return modules;
}

TEST(SampleDocument, HasTwoPagesOfTheSampleLabelsSize)
{
    const auto document = sampleDocument();
    ASSERT_TRUE(document);
    ASSERT_EQ(document->pageCount(), 2);
    for (int page = 0; page < 2; ++page) {
        EXPECT_NEAR(document->pageSize(page).width(), 175.75, 0.001);
        EXPECT_NEAR(document->pageSize(page).height(), 283.46, 0.001);
    }
}

TEST(SampleDocument, HasTonesAndRedForEverySettingOfPictures)
{
    const QImage page = printed(0);
    std::set<int> greys;
    int reds = 0;
    for (int y = 0; y < page.height(); y += 2) {
        for (int x = 0; x < page.width(); x += 2) {
            const QRgb colour = page.pixel(x, y);
            greys.insert(qGray(colour));
            reds += qRed(colour) > 150 && qGreen(colour) < 60 && qBlue(colour) < 60 ? 1 : 0;
        }
    }
    EXPECT_GT(greys.size(), 240U);
    EXPECT_GT(reds, 5000);
}

TEST(SampleDocument, BarCodesCanBeRead)
{
    EXPECT_EQ(modulesAt(printed(0), 950), ean13Modules(QStringLiteral("2001170000171")));
    EXPECT_EQ(modulesAt(printed(1), 950), ean13Modules(QStringLiteral("2001170008023")));
}

TEST(Ean13, CheckDigitIsAdded)
{
    EXPECT_EQ(withCheckDigit(QStringLiteral("200117000017")), QStringLiteral("2001170000171"));
    EXPECT_EQ(withCheckDigit(QStringLiteral("000000000000")), QStringLiteral("0000000000000"));
    EXPECT_EQ(withCheckDigit(QStringLiteral("999999999999")), QStringLiteral("9999999999994"));
    EXPECT_EQ(withCheckDigit(QStringLiteral("20011700001")), QString());
    EXPECT_EQ(withCheckDigit(QStringLiteral("20011700001x")), QString());
}

TEST(Ean13, WrongCheckDigitHasNoBars)
{
    EXPECT_TRUE(ean13Modules(QStringLiteral("2001170000172")).empty());
    EXPECT_TRUE(ean13Modules(QStringLiteral("200117000017")).empty());
}

TEST(Ean13, BarsAreThoseOfTheStandard)
{
    QString text;
    for (const bool bar : ean13Modules(QStringLiteral("0123456789012"))) {
        text += bar ? u'1' : u'0';
    }
    EXPECT_EQ(text,
              QStringLiteral("101"
                             "0011001"
                             "0010011"
                             "0111101"
                             "0100011"
                             "0110001"
                             "0101111"
                             "01010"
                             "1000100"
                             "1001000"
                             "1110100"
                             "1110010"
                             "1100110"
                             "1101100"
                             "101"));
}

} // namespace
