// SPDX-License-Identifier: Apache-2.0
// Each setting changes what it is for, and nothing else that reaches the printer.
#include "end_to_end/Dots.h"
#include "end_to_end/PrintRun.h"
#include "support/LabelDocuments.h"

#include <gmock/gmock.h>

using testing::Each;
using testing::HasSubstr;

namespace {

constexpr int kWhite = 255;

QStringList operator+(QStringList list, const char *option)
{
    return list << QString::fromLatin1(option);
}

/// A job of one page at the printer, and the page in 8 bits that it was made of.
struct Print
{
    TestPage page;
    Dots dots;
    std::string commands;
};

class Settings : public PrintRun
{
protected:
    Settings()
        : mDocument(LabelDocuments().writePng(mFolder.path()))
    {
        addStockPrinter(QStringLiteral("zebra"));
    }

    Print print(const QStringList &options)
    {
        const PrintedJob got = job(
            QStringLiteral("zebra"), mDocument,
            QStringList{QStringLiteral("PageSize=w144h288"), QStringLiteral("print-scaling=fit"),
                        QStringLiteral("Darkness=20"), QStringLiteral("zePrintRate=5")}
                + options);
        const std::vector<TestPage> pages = rasterOfLastJob();
        if (pages.size() != 1 || got.labels.size() != 1) {
            throw std::runtime_error("this is not one label");
        }
        return {pages[0], got.labels[0].dotsOf(pages[0].header.cupsHeight), got.commands};
    }

    Print print(const char *method, const std::string &more = {})
    {
        QStringList options{QStringLiteral("CvHalftonePattern=") + QLatin1String(method)};
        if (!more.empty()) {
            options << QString::fromStdString(more);
        }
        return print(options);
    }

    /// One print for each level of `option`.
    std::vector<Print> levels(const char *method, const std::string &option,
                              const std::vector<int> &values)
    {
        std::vector<Print> prints;
        for (const int value : values) {
            prints.push_back(print(method, option + "=" + std::to_string(value)));
            EXPECT_EQ(prints.back().page.rows, prints.front().page.rows);
            EXPECT_EQ(prints.back().commands, prints.front().commands);
        }
        return prints;
    }

    const QString mDocument;
};

/// How many dots `differ` among the pixels of which `isMeant` is true.
template <typename IsMeant>
std::size_t differencesWhere(const Print &first, const Print &second, IsMeant isMeant)
{
    const std::size_t columns = first.page.header.cupsWidth;
    const std::size_t rowBytes = (columns + 7) / 8;
    std::size_t count = 0;
    for (std::size_t y = 0; y < first.page.header.cupsHeight; ++y) {
        for (std::size_t x = 0; x < columns; ++x) {
            const bool isOther =
                isInk(first.dots, rowBytes, x, y) != isInk(second.dots, rowBytes, x, y);
            count += isOther && isMeant(int(first.page.rows[y * columns + x])) ? 1 : 0;
        }
    }
    return count;
}

TEST_F(Settings, TheHalftoneChangesThePhotoAndLeavesBlackTextAndCodes)
{
    const Print diffusion = print("ErrorDiffusion");
    EXPECT_THAT(diffusion.commands, HasSubstr("~SD20"));
    EXPECT_THAT(diffusion.commands, HasSubstr("^PR5"));
    const auto isPure = [](int tone) { return tone == 0 || tone == kWhite; };
    const auto isTone = [isPure](int tone) { return !isPure(tone); };
    for (const char *method : {"Binary", "Dither"}) {
        const Print other = print(method);
        EXPECT_EQ(other.page.rows, diffusion.page.rows);
        EXPECT_EQ(other.commands, diffusion.commands);
        EXPECT_GT(differencesWhere(diffusion, other, isTone), 10'000U) << method;
        EXPECT_EQ(differencesWhere(diffusion, other, isPure), 0U) << method;
    }
}

TEST_F(Settings, TextAndCodesAreDotForDotTheDocuments)
{
    for (const char *method : {"Binary", "Dither", "ErrorDiffusion"}) {
        const Print got = print(method);
        const PrintedLabel label{(got.page.header.cupsWidth + 7) / 8, got.dots};
        EXPECT_EQ(wrongOutsideOfPhoto(label, LabelDocuments()), 0U) << method;
    }
}

TEST_F(Settings, ABrighterPageHasLessInkAndOfAScreenNoNewOne)
{
    for (const char *method : {"Binary", "Dither", "ErrorDiffusion"}) {
        const std::vector<Print> prints = levels(method, "CvBrightness", {-20, -7, 0, 7, 20});
        for (std::size_t i = 1; i < prints.size(); ++i) {
            EXPECT_LT(inkOf(prints[i].dots), inkOf(prints[i - 1].dots)) << method << i;
            if (method != std::string("ErrorDiffusion")) {
                EXPECT_EQ(outside(prints[i].dots, prints[i - 1].dots), 0U) << method << i;
            }
        }
        EXPECT_EQ(prints[2].dots, print(method).dots) << "0 is no change";
    }
}

TEST_F(Settings, MoreContrastMakesDarkTonesDarkerAndLightOnesLighter)
{
    const std::vector<Print> prints = levels("Dither", "CvContrast", {-20, -6, 0, 6, 20});
    const auto isDark = [](int tone) { return tone < 128; };
    const auto isLight = [](int tone) { return tone >= 128; };
    for (std::size_t i = 1; i < prints.size(); ++i) {
        Print both = prints[i];
        for (std::size_t k = 0; k < both.dots.size(); ++k) {
            both.dots[k] &= prints[i - 1].dots[k];
        }
        EXPECT_EQ(differencesWhere(prints[i - 1], both, isDark), 0U) << "ink lost in the dark";
        EXPECT_GT(differencesWhere(prints[i - 1], prints[i], isDark), 100U);
        EXPECT_EQ(differencesWhere(prints[i], both, isLight), 0U) << "ink added in the light";
        EXPECT_GT(differencesWhere(prints[i - 1], prints[i], isLight), 100U);
    }
    EXPECT_EQ(prints[2].dots, print("Dither").dots) << "0 is no change";
}

TEST_F(Settings, ContrastMovesNoToneAcrossTheMiddle)
{
    const std::vector<Print> prints = levels("Binary", "CvContrast", {-20, 0, 20});
    for (const Print &one : prints) {
        EXPECT_EQ(one.dots, prints[1].dots);
    }
}

TEST_F(Settings, TheOtherDirectionChangesNoByte)
{
    const QStringList options{QStringLiteral("PageSize=w144h288")};
    const QByteArray both = printed(QStringLiteral("zebra"), mDocument, options + "CvBiDiPrint=ON");
    EXPECT_GT(both.size(), 10'000);
    EXPECT_TRUE(printed(QStringLiteral("zebra"), mDocument, options + "CvBiDiPrint=OFF") == both);
}

TEST_F(Settings, TheRedLevelChangesNoByteInMonochrome)
{
    const QStringList options{QStringLiteral("PageSize=w144h288"),
                              QStringLiteral("CvMultiColor=CvMultiColorMonochrome")};
    const QByteArray none = printed(QStringLiteral("zebra"), mDocument, options);
    EXPECT_GT(none.size(), 10'000);
    for (const char *level : {"CvRedLevel=-20", "CvRedLevel=20"}) {
        EXPECT_TRUE(printed(QStringLiteral("zebra"), mDocument, options + level) == none) << level;
    }
}

TEST_F(Settings, ThePrintersOwnOptionsChangeNoDot)
{
    const Print one = print("Dither");
    const Print other = print(
        QStringList{QStringLiteral("CvHalftonePattern=Dither"), QStringLiteral("Darkness=5"),
                    QStringLiteral("zePrintRate=2"), QStringLiteral("zeMediaTracking=Continuous")});
    EXPECT_EQ(other.dots, one.dots);
    EXPECT_NE(other.commands, one.commands);
    EXPECT_THAT(other.commands, HasSubstr("~SD05"));
}

class SettingsOfStockPrinter : public PrintRun, public testing::WithParamInterface<const char *>
{ };

TEST_P(SettingsOfStockPrinter, ChangeDotsAndNoCommand)
{
    const QString printer = QLatin1String(GetParam());
    addStockPrinter(printer);
    const QString document = LabelDocuments().writeJpeg(mFolder.path());
    const PrintedJob plain = job(printer, document, {QStringLiteral("copies=2")});
    const PrintedJob changed =
        job(printer, document,
            {QStringLiteral("copies=2"), QStringLiteral("CvHalftonePattern=Dither"),
             QStringLiteral("CvBrightness=7"), QStringLiteral("CvContrast=-5"),
             QStringLiteral("CvBiDiPrint=OFF"), QStringLiteral("CvRedLevel=9")});
    EXPECT_EQ(changed.commands, plain.commands);
    ASSERT_EQ(changed.labels.size(), plain.labels.size());
    const std::size_t rows = rasterOfLastJob().at(0).header.cupsHeight;
    EXPECT_GT(differences(changed.labels.at(0).dotsOf(rows), plain.labels.at(0).dotsOf(rows)),
              10'000U);
}

INSTANTIATE_TEST_SUITE_P(All, SettingsOfStockPrinter,
                         testing::Values("dymo", "intelbar", "zebra", "zebracpl", "zebraep1",
                                         "zebraep2"),
                         [](const auto &printer) { return std::string(printer.param); });

} // namespace
