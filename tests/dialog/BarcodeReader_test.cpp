// SPDX-License-Identifier: Apache-2.0
#include "CodePictures.h"
#include "dialog/BarWidth.h"
#include "dialog/BarcodeReader.h"

#include <QFile>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using dialog::Barcode;
using dialog::BarcodeReader;

namespace {

QImage paper(const QSize &size)
{
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    return image;
}

std::vector<Barcode> findBarcodes(const QImage &grey, const QString &format = {})
{
    const auto codes = BarcodeReader().find(grey, format);
    EXPECT_TRUE(codes) << codes.failure().text().toStdString();
    return codes ? codes.value() : std::vector<Barcode>();
}

void put(QImage &paper, const QPoint &at, const QImage &code)
{
    QPainter(&paper).drawImage(at, code);
}

std::vector<std::string> textsOf(const std::vector<Barcode> &codes)
{
    std::vector<std::string> texts;
    for (const Barcode &code : codes) {
        texts.push_back((code.format + u' ' + code.text).toStdString());
    }
    return texts;
}

struct Sample
{
    const char *format;
    const char *text;
};

class EachFormat : public testing::TestWithParam<Sample>
{ };

TEST_P(EachFormat, IsFoundUprightAndTurnedByQuarters)
{
    const std::string wanted = std::string(GetParam().format) + ' ' + GetParam().text;
    const QImage code = codePicture(GetParam().format, GetParam().text, 3);
    ASSERT_FALSE(code.isNull());
    for (const int angle : {0, 90, 180, 270}) {
        QImage label = paper({900, 900});
        put(label, {90, 70}, code.transformed(QTransform().rotate(angle)));
        EXPECT_THAT(textsOf(findBarcodes(label)), testing::ElementsAre(wanted)) << angle;
    }
}

TEST_P(EachFormat, IsFoundAmongItsOwnKindAlone)
{
    const QImage code = codePicture(GetParam().format, GetParam().text, 3);
    QImage label = paper(code.size() + QSize(40, 40));
    put(label, {20, 20}, code);
    const QString format = QLatin1String(GetParam().format);
    EXPECT_EQ(findBarcodes(label, format).size(), 1U);
    EXPECT_TRUE(findBarcodes(label, QStringLiteral("MaxiCode")).empty());
}

INSTANTIATE_TEST_SUITE_P(
    BarcodeReader, EachFormat,
    testing::Values(Sample{"QR Code", "https://example.org/7"}, Sample{"Data Matrix", "LOT 4711"},
                    Sample{"Aztec Code", "boarding 12A"}, Sample{"PDF417", "parcel 0815"},
                    Sample{"Code 128", "ABC-1234"}, Sample{"Code 39", "SHELF 7"},
                    Sample{"Code 93", "BOX93"}, Sample{"Codabar", "40156"},
                    Sample{"ITF", "12345670"}, Sample{"EAN-13", "4006381333931"},
                    Sample{"EAN-8", "40170725"}, Sample{"UPC-A", "036000291452"},
                    Sample{"UPC-E", "01234565"}),
    [](const testing::TestParamInfo<Sample> &sample) {
        std::string name = sample.param.format;
        std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
        return name;
    });

TEST(BarcodeReader, SaysWhereACodeIs)
{
    QImage label = paper({600, 400});
    const QImage code = codePicture("Code 128", "PLACE", 2);
    put(label, {100, 150}, code);
    const std::vector<Barcode> codes = findBarcodes(label);
    ASSERT_EQ(codes.size(), 1U);
    EXPECT_TRUE(codes[0].isLinear);
    // With the paper that belongs to it on either side, of which the writer makes half.
    const QRect bars = QRect(QPoint(100, 150), code.size()).adjusted(10, 0, -10, 0);
    const QRect place = codes[0].place();
    EXPECT_NEAR(place.left(), bars.left(), 3);
    EXPECT_NEAR(place.right(), bars.right(), 3);
    EXPECT_NEAR(place.top(), bars.top(), 8);
    EXPECT_NEAR(place.bottom(), bars.bottom(), 8);
}

TEST(BarcodeReader, FindsTheSameBarsAtEveryPlaceTheyStand)
{
    QImage label = paper({900, 900});
    const QImage bars = codePicture("Code 128", "TWICE", 2);
    const QImage square = codePicture("QR Code", "also twice", 4);
    put(label, {50, 50}, bars);
    put(label, {50, 300}, bars);
    put(label, {500, 50}, bars);
    put(label, {50, 500}, square);
    put(label, {500, 500}, square);
    EXPECT_THAT(textsOf(findBarcodes(label)),
                testing::UnorderedElementsAre("Code 128 TWICE", "Code 128 TWICE", "Code 128 TWICE",
                                              "QR Code also twice", "QR Code also twice"));
}

TEST(BarcodeReader, FindsNoCodeInAPhotoOrOnEmptyPaper)
{
    EXPECT_TRUE(findBarcodes(paper({900, 900})).empty());
    EXPECT_TRUE(findBarcodes(paper({1, 1})).empty());
    EXPECT_TRUE(findBarcodes(QImage()).empty());
    QImage noise = paper({900, 900});
    QRandomGenerator random(7);
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x) {
            noise.scanLine(y)[x] = uchar(random.bounded(256));
        }
    }
    EXPECT_TRUE(findBarcodes(noise).empty());
    const QImage soft = noise.scaled(30, 30, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .scaled(900, 900, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_Grayscale8);
    EXPECT_TRUE(findBarcodes(soft).empty());
}

TEST(BarcodeReader, ALineOfBarsIsNoCode)
{
    QImage label = paper({600, 400});
    put(label, {100, 150}, codePicture("Code 128", "PLACE", 2).copy(0, 0, 600, 4));
    EXPECT_TRUE(findBarcodes(label).empty());
}

TEST(BarcodeReader, MeasuresTheNarrowestBars)
{
    for (const char *format : {"Code 128", "QR Code", "Data Matrix", "PDF417", "EAN-13"}) {
        const char *text = std::string(format) == "EAN-13" ? "4006381333931" : "measure";
        for (const int module : {2, 5}) {
            QImage label = paper({1400, 900});
            put(label, {60, 60}, codePicture(format, text, module));
            const std::vector<Barcode> codes = findBarcodes(label);
            ASSERT_EQ(codes.size(), 1U) << format;
            EXPECT_NEAR(dialog::narrowestBar(label, codes[0]), module, 0.15 * module) << format;
        }
    }
}

TEST(BarcodeReader, MeasuresBarsThatAreNoWholeNumberOfPixelsWide)
{
    QImage label = paper({1400, 900});
    const QImage code = codePicture("Code 128", "MEASURE", 4);
    put(label, {60, 60},
        code.scaled(code.width() * 5 / 8, code.height(), Qt::IgnoreAspectRatio,
                    Qt::SmoothTransformation));
    const std::vector<Barcode> codes = findBarcodes(label);
    ASSERT_EQ(codes.size(), 1U);
    EXPECT_NEAR(dialog::narrowestBar(label, codes[0]), 2.5, 0.2);
}

TEST(BarcodeReader, IsCancelledWhileItReads)
{
    QImage label = paper({3000, 3000});
    put(label, {90, 70}, codePicture("QR Code", "never read", 5));
    int asked = 0;
    const auto codes = BarcodeReader().find(label, {}, [&] { return ++asked < 2; });
    ASSERT_FALSE(codes);
    EXPECT_EQ(codes.failure().kind, dialog::FailureKind::Cancelled);
}

TEST(BarcodeReader, ReadsTheNextPictureAfterACancelledOne)
{
    QImage label = paper({900, 900});
    put(label, {90, 70}, codePicture("QR Code", "again", 5));
    BarcodeReader reader;
    EXPECT_FALSE(reader.find(label, {}, [] { return false; }));
    const auto codes = reader.find(label);
    ASSERT_TRUE(codes);
    EXPECT_THAT(textsOf(codes.value()), testing::ElementsAre("QR Code again"));
}

TEST(BarcodeReader, AProgramThatIsNotThereIsASentence)
{
    const auto codes = BarcodeReader(QStringLiteral("/nonexistent/read")).find(paper({9, 9}));
    ASSERT_FALSE(codes);
    EXPECT_EQ(codes.failure().kind, dialog::FailureKind::Barcode);
    EXPECT_EQ(codes.failure().text(),
              QStringLiteral("/nonexistent/read: cannot be run, so barcodes are not checked; "
                             "install label-print once more"));
}

TEST(BarcodeReader, AProgramThatEndsTooSoonIsASentence)
{
    const auto codes = BarcodeReader(QStringLiteral("/bin/true")).find(paper({9, 9}));
    ASSERT_FALSE(codes);
    EXPECT_EQ(codes.failure().kind, dialog::FailureKind::Barcode);
    EXPECT_EQ(codes.failure().text(),
              QStringLiteral("/bin/true: ended in the middle of a picture, so barcodes are not "
                             "checked; try once more, or check the print with a scanner"));
}

TEST(BarcodeReader, APictureThatCouldNotBeSearchedIsNotOneWithoutCodes)
{
    // Files enough to start the program, but not for a pipe to a child.
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("read-barcodes"));
    QFile script(path);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nulimit -n 4\nexec '"
                 + QFile::encodeName(BarcodeReader::installedProgram()) + "'\n");
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    script.close();
    const auto codes = BarcodeReader(path).find(paper({900, 900}));
    ASSERT_FALSE(codes);
    EXPECT_EQ(codes.failure().kind, dialog::FailureKind::Barcode);
}

} // namespace
