// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentPages.h"
#include "end_to_end/ScannedCodes.h"
#include "support/LabelDocuments.h"

#include <QTemporaryDir>

#include <algorithm>
#include <set>

#include <gmock/gmock.h>

namespace {

bool isPure(QRgb pixel)
{
    return pixel == 0xff000000U || pixel == 0xffffffffU;
}

TEST(LabelDocuments, EveryCodeCanBeReadFromThePictureOfItsPage)
{
    const LabelDocuments documents(LabelLook{.pages = 2});
    EXPECT_EQ(textsOf(documents.codes(0)).size(), 4U);
    EXPECT_NE(textsOf(documents.codes(0)), textsOf(documents.codes(1)));
    for (int page : {0, 1}) {
        EXPECT_EQ(scanned(documents.picture(page), documents.codes(page)),
                  textsOf(documents.codes(page)));
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
                scanned(document.value()->render(page, pixels).value(), documents.codes(page), 2),
                textsOf(documents.codes(page)))
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
