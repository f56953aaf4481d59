// SPDX-License-Identifier: Apache-2.0
#include "CodeLabel.h"
#include "dialog/BarcodeGuard.h"
#include "support/LabelDocuments.h"

#include <gmock/gmock.h>

using dialog::CodeRemedy;
using dialog::LostCode;
using dialog::PrintedPage;
using dialog::Scaling;
using imaging::ColorMode;
using imaging::HalftoneMethod;

namespace {

class PageGuard : public DocumentFolder
{
protected:
    std::vector<LostCode> lostOn(const PrintedPage &printed)
    {
        const auto lost = guard.lostCodes(printed);
        EXPECT_TRUE(lost) << lost.failure().text().toStdString();
        return lost ? lost.value() : std::vector<LostCode>();
    }
    PrintedPage label(const CodeLabel &codes) { return onLabel(opened(codes.png())); }

    dialog::PageGuard guard;
};

std::vector<std::string> textsOf(const std::vector<LostCode> &codes)
{
    std::vector<std::string> texts;
    for (const LostCode &code : codes) {
        texts.push_back((code.format + u' ' + code.text).toStdString());
    }
    return texts;
}

CodeLabel emptyLabel()
{
    return CodeLabel(QSize(732, 1181));
}

/// Nothing of the label is printed.
void washOut(PrintedPage &printed)
{
    printed.form.settings.method = HalftoneMethod::Binary;
    printed.form.settings.brightness = 20;
    printed.form.settings.contrast = 20;
}

/// Too light for its dots to keep the bars.
constexpr QRgb kGrey = qRgb(120, 120, 120);

struct Sample
{
    const char *format;
    const char *text;
};

class EachKindOfCode : public PageGuard, public testing::WithParamInterface<Sample>
{ };

TEST_P(EachKindOfCode, IsReadFromTheDotsAndMissedWhenTheyAreNotThere)
{
    const std::string wanted = std::string(GetParam().format) + ' ' + GetParam().text;
    for (const HalftoneMethod method : {HalftoneMethod::Binary, HalftoneMethod::ErrorDiffusion}) {
        PrintedPage printed =
            label(emptyLabel().with({40, 60}, GetParam().format, GetParam().text, 2));
        printed.scaling = Scaling::ActualSize;
        printed.form.settings.method = method;
        EXPECT_THAT(textsOf(lostOn(printed)), testing::ElementsAre());
        // The label stays white.
        washOut(printed);
        EXPECT_THAT(textsOf(lostOn(printed)), testing::ElementsAre(wanted));
    }
}

INSTANTIATE_TEST_SUITE_P(
    PageGuard, EachKindOfCode,
    testing::Values(Sample{"QR Code", "https://example.org/7"}, Sample{"Data Matrix", "LOT 4711"},
                    Sample{"Aztec Code", "boarding 12A"}, Sample{"PDF417", "parcel 0815"},
                    Sample{"Code 128", "ABC-1234"}, Sample{"Code 39", "SHELF 7"},
                    Sample{"ITF", "12345670"}, Sample{"EAN-13", "4006381333931"},
                    Sample{"EAN-8", "40170725"}, Sample{"UPC-A", "036000291452"}),
    [](const testing::TestParamInfo<Sample> &sample) {
        std::string name = sample.param.format;
        std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
        return name;
    });

TEST_F(PageGuard, ReadsAllCodesOfALabelWithPhotoAndTextInEachFile)
{
    LabelLook look;
    look.dots = QSize(732, 1181);
    look.dotsPerInch = 300;
    const LabelDocuments documents(look);
    for (const QString &path :
         {documents.writePdf(folder.path()), documents.writePng(folder.path())}) {
        const auto document = dialog::DocumentPages::open(path);
        ASSERT_TRUE(document);
        PrintedPage printed = onLabel(document.value());
        EXPECT_THAT(textsOf(lostOn(printed)), testing::ElementsAre()) << path.toStdString();
        washOut(printed);
        EXPECT_EQ(lostOn(printed).size(), documents.codes().size()) << path.toStdString();
    }
}

TEST_F(PageGuard, ACodeThatErrorDiffusionScattersIsReadWithBinary)
{
    PrintedPage printed =
        label(emptyLabel().with({100, 100}, "Code 128", "SCATTERED", 1, 0, kGrey));
    printed.scaling = Scaling::ActualSize;
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(textsOf(lost), std::vector<std::string>{"Code 128 SCATTERED"});
    EXPECT_EQ(lost[0].remedy, CodeRemedy::Binary);
    printed.form.settings.method = HalftoneMethod::Binary;
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, APictureStretchedToOddDotsIsReadWithWholeDots)
{
    // 1.3 dots a pixel: the bars are one dot or two.
    PrintedPage printed =
        onLabel(opened(CodeLabel(QSize(280, 200), 300)
                           .with({0, 50}, "Code 128", "ODD-DOTS-0123456789ABCD", 1)
                           .png()),
                QSize(364, 260));
    printed.form.settings.method = HalftoneMethod::Binary;
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].remedy, CodeRemedy::WholeDots);
    printed.scaling = Scaling::WholeDots;
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, WholeDotsAreNoAdviceWhereTheyAreNotToBeHad)
{
    PrintedPage printed =
        onLabel(opened(CodeLabel(QSize(280, 200), 300)
                           .with({0, 50}, "Code 128", "ODD-DOTS-0123456789ABCD", 1)
                           .png()),
                QSize(364, 260));
    printed.form.settings.method = HalftoneMethod::Binary;
    printed.mayHaveWholeDots = false;
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].remedy, CodeRemedy::ActualSize);
}

TEST_F(PageGuard, ACodeBeyondTheLabelIsReadWhenThePageIsFitted)
{
    PrintedPage printed = onLabel(
        opened(CodeLabel(QSize(900, 1300)).with({640, 40}, "QR Code", "beyond the edge", 8).png()));
    printed.scaling = Scaling::ActualSize;
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].remedy, CodeRemedy::Fit);
    printed.scaling = Scaling::Fit;
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, LevelsThatWashACodeOutAreSetBack)
{
    PrintedPage printed = label(emptyLabel().with({100, 100}, "QR Code", "washed out", 4));
    printed.scaling = Scaling::ActualSize;
    washOut(printed);
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_EQ(lost[0].remedy, CodeRemedy::PlainLevels);
}

TEST_F(PageGuard, ARedCodeIsNotSeenUnlessItIsPrintedInBlack)
{
    PrintedPage printed =
        label(emptyLabel()
                  .with({60, 60}, "EAN-13", "4006381333931", 3, 0, qRgb(255, 0, 0))
                  .with({60, 500}, "QR Code", "black", 5));
    printed.scaling = Scaling::ActualSize;
    printed.form.settings.method = HalftoneMethod::Binary;
    EXPECT_TRUE(lostOn(printed).empty());
    printed.form.settings.colorMode = ColorMode::BlackRed;
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(textsOf(lost), std::vector<std::string>{"EAN-13 4006381333931"});
    EXPECT_TRUE(lost[0].isRed);
    EXPECT_EQ(lost[0].remedy, CodeRemedy::MonochromeOrLessRed);
    printed.form.settings.redLevel = imaging::kLowestLevel;
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, ARedCodeThatErrorDiffusionWouldScatterNeedsBinaryAsWell)
{
    PrintedPage printed =
        label(emptyLabel().with({60, 60}, "EAN-13", "4006381333931", 3, 0, qRgb(255, 0, 0)));
    printed.scaling = Scaling::ActualSize;
    printed.form.settings.colorMode = ColorMode::BlackRed;
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(lost.size(), 1U);
    EXPECT_TRUE(lost[0].isRed);
    EXPECT_EQ(lost[0].remedy, CodeRemedy::MonochromeAndBinary);
    printed.form.settings.colorMode = ColorMode::Monochrome;
    EXPECT_EQ(lostOn(printed).size(), 1U);
    printed.form.settings.method = HalftoneMethod::Binary;
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, BarsNarrowerThanDotsMustBecomeWider)
{
    // A third of a dot.
    PrintedPage printed = onLabel(
        opened(CodeLabel(QSize(1100, 800), 600).with({60, 60}, "QR Code", "small", 4).png()),
        QSize(92, 67));
    const std::vector<LostCode> lost = lostOn(printed);
    ASSERT_EQ(textsOf(lost), std::vector<std::string>{"QR Code small"});
    EXPECT_EQ(lost[0].remedy, CodeRemedy::Larger);
    EXPECT_NEAR(lost[0].bars, 4 * 92.0 / 1100, 0.05);
    EXPECT_GE(lost[0].safeBars, 1);
    EXPECT_LE(lost[0].safeBars, 3);
}

TEST_F(PageGuard, EveryLostCodeOfAPageIsNamedAndOnlyThose)
{
    PrintedPage printed = label(emptyLabel()
                                    .with({60, 40}, "Code 128", "GREY-1", 1, 0, kGrey)
                                    .with({60, 200}, "Code 128", "BLACK-2", 2)
                                    .with({60, 400}, "Code 128", "GREY-3", 1, 0, kGrey)
                                    .with({60, 600}, "QR Code", "black", 4));
    printed.scaling = Scaling::ActualSize;
    EXPECT_THAT(textsOf(lostOn(printed)),
                testing::UnorderedElementsAre("Code 128 GREY-1", "Code 128 GREY-3"));
}

TEST_F(PageGuard, CodesAreFoundTurnedOnAPageThatIsTurnedItself)
{
    const CodeLabel wide = CodeLabel(QSize(1181, 732))
                               .with({60, 60}, "Code 128", "TURNED", 3, 90)
                               .with({500, 200}, "QR Code", "turned too", 5, 90);
    PrintedPage printed = label(wide);
    EXPECT_TRUE(lostOn(printed).empty());
    washOut(printed);
    EXPECT_THAT(textsOf(lostOn(printed)),
                testing::UnorderedElementsAre("Code 128 TURNED", "QR Code turned too"));
}

TEST_F(PageGuard, ALongLabelIsReadToItsEnd)
{
    const QSize pixels(732, 9000);
    PrintedPage printed = onLabel(opened(CodeLabel(pixels)
                                             .with({60, 60}, "QR Code", "first", 4)
                                             .with({60, 4480}, "Code 128", "MIDDLE", 3)
                                             .with({60, 8700}, "Data Matrix", "last", 6)
                                             .png()),
                                  pixels);
    EXPECT_TRUE(lostOn(printed).empty());
    washOut(printed);
    EXPECT_THAT(
        textsOf(lostOn(printed)),
        testing::UnorderedElementsAre("QR Code first", "Code 128 MIDDLE", "Data Matrix last"));
}

TEST_F(PageGuard, ACodeTooLongForOneFineViewIsNotForgotten)
{
    // 2500 dots; the fine view of the document would have three times as many.
    const QSize pixels(2700, 400);
    PrintedPage printed = onLabel(
        opened(CodeLabel(pixels)
                   .with({100, 60}, "Code 128", "A LONG CODE OF MANY LETTERS AND WIDE BARS", 5)
                   .png()),
        pixels);
    EXPECT_TRUE(lostOn(printed).empty());
    washOut(printed);
    EXPECT_EQ(lostOn(printed).size(), 1U);
}

TEST_F(PageGuard, ALabelWithoutCodesLosesNone)
{
    PrintedPage printed = onLabel(opened(pdfOfPages(1)));
    printed.form.settings.brightness = -20;
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, AskedNotToGoOnItStops)
{
    const PrintedPage printed = label(emptyLabel().with({60, 60}, "QR Code", "never", 4));
    const auto lost = guard.lostCodes(printed, [] { return false; });
    ASSERT_FALSE(lost);
    EXPECT_EQ(lost.failure().kind, dialog::FailureKind::Cancelled);
    EXPECT_TRUE(lostOn(printed).empty());
}

TEST_F(PageGuard, APageThatIsNotThereIsTheFailureOfTheDocument)
{
    PrintedPage printed = label(emptyLabel());
    printed.page = 7;
    const auto lost = guard.lostCodes(printed);
    ASSERT_FALSE(lost);
    EXPECT_EQ(lost.failure().kind, dialog::FailureKind::Document);
    EXPECT_EQ(lost.failure().why, QStringLiteral("has no page 8"));
}

} // namespace
