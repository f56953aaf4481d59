// SPDX-License-Identifier: Apache-2.0
// A printer of black and red whose own filter hands its raster on, so that both reach its socket.
#include "end_to_end/DialogPrint.h"
#include "end_to_end/Dots.h"
#include "filter/GraphicsDots.h"
#include "filter/SmallPpd.h"
#include "support/LabelDocuments.h"

#include <QFile>

#include <cstring>

#include <gmock/gmock.h>

namespace {

// A pixel of KCMY in four bits: black, or red as magenta and yellow.
constexpr unsigned kBlack = 0b1000;
constexpr unsigned kRed = 0b0011;

const QString kPrinter = QStringLiteral("TwoColours");

/// The label of the small PPD at 300 dots an inch.
LabelLook lookOfTheLabel()
{
    return LabelLook{.dots = {675, 375}, .dotsPerInch = 300, .squareModule = 2, .hasRed = true};
}

/// The planes of a page in KCMY. Other pixels than white, black and red are counted.
struct Planes
{
    explicit Planes(const TestPage &page)
        : header(page.header)
        , rowBytes((page.header.cupsWidth + 7) / 8)
        , black(rowBytes * page.header.cupsHeight)
        , red(black.size())
    {
        for (std::size_t y = 0; y < header.cupsHeight; ++y) {
            for (std::size_t x = 0; x < header.cupsWidth; ++x) {
                const unsigned pair = page.rows.at(y * header.cupsBytesPerLine + x / 2);
                take(x % 2 == 0 ? pair >> 4 : pair & 0xf, y * rowBytes + x / 8,
                     std::uint8_t(0x80 >> x % 8));
            }
        }
    }

    void take(unsigned pixel, std::size_t place, std::uint8_t bit)
    {
        black[place] |= (pixel & kBlack) != 0 ? bit : 0;
        red[place] |= (pixel & kRed) == kRed ? bit : 0;
        strange += pixel != 0 && pixel != kBlack && pixel != kRed ? 1 : 0;
    }

    Dots ink() const
    {
        Dots both = black;
        for (std::size_t i = 0; i < both.size(); ++i) {
            both[i] |= red[i];
        }
        return both;
    }

    cups_page_header2_t header;
    std::size_t rowBytes;
    Dots black;
    Dots red;
    int strange = 0;
};

class TwoColours : public DialogPrint
{
protected:
    TwoColours()
        : mDocument(LabelDocuments(lookOfTheLabel()).writePng(mFolder.path()))
    {
        QFile script(path(QStringLiteral("keep")));
        if (!script.open(QIODevice::WriteOnly) || script.write("#!/bin/sh\nexec cat\n") < 0) {
            throw std::runtime_error("the script cannot be written");
        }
        script.close();
        mServer.addFilter(QStringLiteral("keep"), script.fileName());
        std::string ppd = with(smallPpd(), "50 rastertolabel", "50 keep");
        ppd = with(ppd, "300]/cupsBitsPerColor 1/cupsColorSpace 3",
                   "300]/cupsBitsPerColor 1/cupsColorSpace 8");
        // The printer is not asked how much ink it has, which would take seconds.
        ppd = with(ppd, "*cupsModelNumber: 18", "*cupsSNMPSupplies: \"false\"");
        addPrinter(kPrinter, QByteArray::fromStdString(ppd), {QStringLiteral("--two-colour")});
    }

    Planes print(const QStringList &options)
    {
        return planesOf(printed(kPrinter, mDocument, optionsOf(options)));
    }

    static Planes planesOf(const QByteArray &raster)
    {
        const auto pages = pagesOf(raster.toStdString());
        if (pages.size() != 1) {
            throw std::runtime_error("this is not one label");
        }
        return Planes(pages[0]);
    }

    static QStringList optionsOf(const QStringList &options)
    {
        return QStringList{QStringLiteral("Resolution=300dpi"), QStringLiteral("Darkness=20")}
        + options;
    }

    static QStringList red(const char *method, int level)
    {
        return {QStringLiteral("CvMultiColor=CvMultiColorBlackRed"),
                QStringLiteral("CvHalftonePattern=") + QLatin1String(method),
                QStringLiteral("CvRedLevel=%1").arg(level)};
    }

    const QString mDocument;
};

/// Whether pure red pixels are red dots, and only they are where the document is red and white.
void expectPureRedIsRed(const Planes &planes)
{
    const LabelDocuments documents(lookOfTheLabel());
    const QImage picture = documents.picture();
    ASSERT_EQ(planes.header.cupsWidth, unsigned(picture.width()));
    ASSERT_EQ(planes.header.cupsHeight, unsigned(picture.height()));
    const QRect area = documents.red();
    std::size_t wrong = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const bool isRed = picture.pixel(x, y) == 0xffff0000U;
            const auto at = [&](const Dots &dots) {
                return isInk(dots, planes.rowBytes, std::size_t(x), std::size_t(y));
            };
            wrong += at(planes.red) != isRed || at(planes.black) ? 1 : 0;
        }
    }
    EXPECT_EQ(wrong, 0U);
}

/// Neutral pixels are the text and the codes; the photo has all colours.
std::size_t redDotsInTheText(const Planes &planes)
{
    const LabelDocuments documents(lookOfTheLabel());
    std::size_t count = 0;
    for (int y = documents.photo().bottom() + 1; y < documents.look().dots.height(); ++y) {
        for (int x = 0; x < documents.look().dots.width(); ++x) {
            count += isInk(planes.red, planes.rowBytes, std::size_t(x), std::size_t(y)) ? 1 : 0;
        }
    }
    return count;
}

TEST_F(TwoColours, TheDotsAtThePrinterAreThoseOfTheImagingLibrary)
{
    for (const char *method : {"Binary", "Dither", "ErrorDiffusion"}) {
        const QStringList options = red(method, 4) << QStringLiteral("CvBrightness=3");
        const Planes planes = print(options);
        const std::vector<TestPage> pages = rasterOfLastJob();
        ASSERT_EQ(pages.size(), 1U);
        EXPECT_EQ(pages[0].header.cupsBitsPerPixel, 24U);
        const PageDots expected = dotsOf(pages[0], settingsOf(options));
        EXPECT_TRUE(planes.black == expected.black) << method;
        EXPECT_TRUE(planes.red == expected.red) << method;
        EXPECT_GT(inkOf(planes.black), 1000U);
        EXPECT_GT(inkOf(planes.red), 1000U);
    }
}

TEST_F(TwoColours, TheDialogPrintsTheTwoColoursOfItsPreview)
{
    for (const QStringList &chosen :
         {red("Binary", -5), red("Dither", 20), red("ErrorDiffusion", 3)}) {
        const QStringList options = optionsOf(chosen);
        const Planes planes = planesOf(printedByDialog(kPrinter, mDocument, options));
        const dialog::PageDots expected = preview(kPrinter, mDocument, options);
        EXPECT_EQ(planes.header.cupsWidth, unsigned(expected.form.dots.width()));
        EXPECT_EQ(planes.header.cupsHeight, unsigned(expected.form.dots.height()));
        EXPECT_TRUE(planes.black == expected.black);
        EXPECT_TRUE(planes.red == expected.red);
        EXPECT_EQ(planes.strange, 0);
        EXPECT_GT(inkOf(planes.red), 1000U);
        expectPureRedIsRed(planes);
    }
}

TEST_F(TwoColours, AFolderHasAPictureOfEachColourThatAPrinterGets)
{
    const QStringList options = optionsOf(red("ErrorDiffusion", 5));
    const Planes planes = planesOf(printedByDialog(kPrinter, mDocument, options));
    const auto picture = [&](const char *plate) {
        return pictureInFolder(kPrinter, mDocument, options, QLatin1String(plate));
    };
    EXPECT_EQ(differencesFrom(picture("page-0001-black.png"), planes.black), 0U);
    EXPECT_EQ(differencesFrom(picture("page-0001-red.png"), planes.red), 0U);
}

TEST_F(TwoColours, ADotIsBlackOrRedAndPureRedIsRed)
{
    for (const char *method : {"Binary", "Dither", "ErrorDiffusion"}) {
        for (const int level : {-19, 0, 20}) {
            SCOPED_TRACE(method + std::to_string(level));
            const Planes planes = print(red(method, level));
            EXPECT_EQ(planes.strange, 0);
            expectPureRedIsRed(planes);
            EXPECT_EQ(redDotsInTheText(planes), 0U);
        }
    }
}

TEST_F(TwoColours, TheRedLevelMovesInkFromBlackToRedAndAddsNone)
{
    for (const char *method : {"Binary", "Dither"}) {
        const Planes lowest = print(red(method, -20));
        EXPECT_EQ(inkOf(lowest.red), 0U) << method;
        Dots before = lowest.red;
        for (const int level : {-10, 0, 10, 20}) {
            const Planes planes = print(red(method, level));
            EXPECT_EQ(outside(before, planes.red), 0U) << method << level;
            EXPECT_GT(inkOf(planes.red), inkOf(before)) << method << level;
            EXPECT_TRUE(planes.ink() == lowest.ink()) << method << level;
            EXPECT_EQ(std::memcmp(&planes.header, &lowest.header, sizeof(planes.header)), 0);
            before = planes.red;
        }
    }
}

TEST_F(TwoColours, TheRedLevelOfErrorDiffusionGoesFromNoRedToMoreAndMore)
{
    std::size_t before = 0;
    EXPECT_EQ(inkOf(print(red("ErrorDiffusion", -20)).red), 0U);
    for (const int level : {-10, 0, 10, 20}) {
        const std::size_t ink = inkOf(print(red("ErrorDiffusion", level)).red);
        EXPECT_GT(ink, before) << level;
        before = ink;
    }
}

TEST_F(TwoColours, MonochromeHasNoRedAndTheSameHeader)
{
    const QString method = QStringLiteral("CvHalftonePattern=Dither");
    const QString mode = QStringLiteral("CvMultiColor=CvMultiColorMonochrome");
    const Planes black = print({method, mode});
    EXPECT_EQ(inkOf(black.red), 0U);
    EXPECT_GT(inkOf(black.black), 10'000U);
    const Planes both = print(red("Dither", 0));
    EXPECT_EQ(std::memcmp(&both.header, &black.header, sizeof(both.header)), 0);

    const QByteArray bytes = printed(kPrinter, mDocument, optionsOf({method, mode}));
    EXPECT_TRUE(bytes
                == printed(kPrinter, mDocument,
                           optionsOf({method, mode, QStringLiteral("CvRedLevel=20")})));
}

} // namespace
