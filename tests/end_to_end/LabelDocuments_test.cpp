// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentPages.h"
#include "support/LabelDocuments.h"

#include <QTemporaryDir>

#include <algorithm>
#include <set>

#include <ZXing/ReadBarcode.h>
#include <gmock/gmock.h>

namespace {

using Texts = std::set<std::pair<std::string, std::string>>;

Texts expected(const std::vector<LabelCode> &codes)
{
    Texts texts;
    for (const LabelCode &code : codes) {
        texts.insert({code.format.toStdString(), code.text.toStdString()});
    }
    return texts;
}

/// What a scanner reads at the codes' places, in a picture as many times as large as the document.
/// One by one: reading the whole picture finds a row of bars at several scales, which makes an
/// assertion of ZXing 1.4 end the program.
Texts read(const QImage &picture, const std::vector<LabelCode> &codes, int scale = 1)
{
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    constexpr int kQuiet = 14;
    Texts texts;
    for (const LabelCode &code : codes) {
        const QRect place = code.place.adjusted(-kQuiet, -kQuiet, kQuiet, kQuiet);
        const QImage part = grey.copy(
            QRect(place.topLeft() * scale, place.size() * scale).intersected(grey.rect()));
        const ZXing::ImageView view(part.constBits(), part.width(), part.height(),
                                    ZXing::ImageFormat::Lum, static_cast<int>(part.bytesPerLine()));
        const auto result = ZXing::ReadBarcode(view);
        texts.insert({ToString(result.format()), result.text()});
    }
    return texts;
}

bool isPure(QRgb pixel)
{
    return pixel == 0xff000000U || pixel == 0xffffffffU;
}

TEST(LabelDocuments, EveryCodeCanBeReadFromThePictureOfItsPage)
{
    const LabelDocuments documents(LabelLook{.pages = 2});
    EXPECT_EQ(expected(documents.codes(0)).size(), 4U);
    EXPECT_NE(expected(documents.codes(0)), expected(documents.codes(1)));
    for (int page : {0, 1}) {
        EXPECT_EQ(read(documents.picture(page), documents.codes(page)),
                  expected(documents.codes(page)));
    }
}

TEST(LabelDocuments, EveryCodeCanBeReadFromThePagesOfEachFile)
{
    const QTemporaryDir folder;
    const LabelDocuments documents(LabelLook{.pages = 2});
    const QSize pixels = documents.look().dots * 2;
    for (const QString &path :
         {documents.writePdf(folder.path()), documents.writePng(folder.path()),
          documents.writeJpeg(folder.path())}) {
        const auto document = dialog::DocumentPages::open(path);
        ASSERT_TRUE(document) << document.failure().text().toStdString();
        ASSERT_EQ(document.value()->pageCount(), path.endsWith(QStringLiteral("pdf")) ? 2 : 1);
        for (int page = 0; page < document.value()->pageCount(); ++page) {
            EXPECT_EQ(
                read(document.value()->render(page, pixels).value(), documents.codes(page), 2),
                expected(documents.codes(page)))
                << path.toStdString();
        }
        const QSizeF points = QSizeF(documents.look().dots) * 72 / documents.look().dotsPerInch;
        EXPECT_NEAR(document.value()->pageSize(0).width(), points.width(), 0.5);
        EXPECT_NEAR(document.value()->pageSize(0).height(), points.height(), 0.5);
    }
}

TEST(LabelDocuments, OnlyThePhotoHasTones)
{
    const LabelDocuments documents;
    const QImage picture = documents.picture();
    std::set<int> tones;
    int impure = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (documents.photo().contains(x, y)) {
                tones.insert(qGray(picture.pixel(x, y)));
            } else {
                impure += isPure(picture.pixel(x, y)) ? 0 : 1;
            }
        }
    }
    EXPECT_EQ(impure, 0);
    EXPECT_GT(tones.size(), 200U);
}

TEST(LabelDocuments, RedIsPureAndOnlyInTheHeadline)
{
    const LabelDocuments documents(LabelLook{.hasRed = true});
    const QImage picture = documents.picture();
    int red = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (documents.red().contains(x, y)) {
                red += pixel == 0xffff0000U ? 1 : 0;
                EXPECT_TRUE(pixel == 0xffff0000U || pixel == 0xffffffffU);
            } else if (!documents.photo().contains(x, y)) {
                EXPECT_TRUE(isPure(pixel));
            }
        }
    }
    EXPECT_GT(red, documents.red().width() * documents.red().height() / 2);
    EXPECT_TRUE(LabelDocuments().red().isEmpty());
}

} // namespace
