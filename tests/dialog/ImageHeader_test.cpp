// SPDX-License-Identifier: Apache-2.0
#include "dialog/ImageHeader.h"
#include "tests/dialog/TestDocuments.h"

#include <gtest/gtest.h>

using dialog::DocumentKind;
using dialog::imageResolutionOf;
using dialog::isTiffCutShort;

namespace {

void expectDots(const std::optional<QSizeF> &resolution, double across, double down)
{
    ASSERT_TRUE(resolution);
    EXPECT_NEAR(resolution->width(), across, 0.02);
    EXPECT_NEAR(resolution->height(), down, 0.02);
}

// A JPEG header with the JFIF part `jfif` and, when given, what a camera notes in `exif`.
QByteArray jpegHeader(const QByteArray &jfif, const QByteArray &exif = {})
{
    const auto segment = [](char mark, const QByteArray &data) {
        const qsizetype length = data.size() + 2;
        return QByteArray("\xff") + mark + char(length >> 8) + char(length & 0xff) + data;
    };
    QByteArray header("\xff\xd8");
    if (!jfif.isEmpty()) {
        header += segment('\xe0', QByteArray("JFIF\0\1\1", 7) + jfif + QByteArray("\0\0", 2));
    }
    if (!exif.isEmpty()) {
        header += segment('\xe1', QByteArray("Exif\0\0", 6) + exif);
    }
    return header + "\xff\xda";
}

// A list of tags in big-endian order: 150 and 75 dots, unit `unit` (2 inch, 3 centimetre, 1 none).
QByteArray tagList(char unit)
{
    const QByteArray tags("\0\3"
                          "\1\x1a\0\5\0\0\0\1\0\0\0\x32"
                          "\1\x1b\0\5\0\0\0\1\0\0\0\x3a"
                          "\1\x28\0\3\0\0\0\1\0",
                          2 + 12 + 12 + 9);
    const QByteArray numbers("\0\0\0\0\0\0\0\0\x96\0\0\0\1\0\0\0\x96\0\0\0\2", 4 + 1 + 16);
    return QByteArray("MM\0\x2a\0\0\0\x08", 8) + tags + unit + QByteArray("\0\0", 2)
        + numbers.mid(1);
}

TEST(ImageHeader, PictureFilesSayTheirResolution)
{
    for (const int dots : {72, 96, 300}) {
        expectDots(imageResolutionOf(DocumentKind::Png, picture("png", {4, 4}, dots)), dots, dots);
        expectDots(imageResolutionOf(DocumentKind::Jpeg, picture("jpeg", {4, 4}, dots)), dots,
                   dots);
        expectDots(imageResolutionOf(DocumentKind::Tiff, picture("tiff", {4, 4}, dots)), dots,
                   dots);
    }
}

TEST(ImageHeader, FileMayStateNone)
{
    EXPECT_FALSE(imageResolutionOf(DocumentKind::Png, picture("png", {4, 4}, 0)));
    EXPECT_FALSE(imageResolutionOf(DocumentKind::Jpeg, jpegHeader({})));
    EXPECT_FALSE(imageResolutionOf(DocumentKind::Jpeg, jpegHeader(QByteArray("\0\0\1\0\1", 5))));
    EXPECT_FALSE(imageResolutionOf(DocumentKind::Tiff, tagList(1)));
    EXPECT_FALSE(imageResolutionOf(DocumentKind::Svg, svgDrawing()));
}

TEST(ImageHeader, HeaderOfAJpegCountsInInchesOrCentimetres)
{
    expectDots(imageResolutionOf(DocumentKind::Jpeg, jpegHeader(QByteArray("\1\1\x2c\0\x96", 5))),
               300, 150);
    expectDots(imageResolutionOf(DocumentKind::Jpeg, jpegHeader(QByteArray("\2\0\x64\0\x64", 5))),
               254, 254);
}

TEST(ImageHeader, CamerasNoteComesBeforeTheHeader)
{
    const QByteArray header("\1\1\x2c\1\x2c", 5);
    expectDots(imageResolutionOf(DocumentKind::Jpeg, jpegHeader(header, tagList(2))), 150, 75);
    expectDots(imageResolutionOf(DocumentKind::Jpeg, jpegHeader({}, tagList(2))), 150, 75);
    expectDots(imageResolutionOf(DocumentKind::Jpeg, jpegHeader(header, tagList(1))), 300, 300);
}

TEST(ImageHeader, TagsOfTiffCountInInchesOrCentimetres)
{
    expectDots(imageResolutionOf(DocumentKind::Tiff, tagList(2)), 150, 75);
    expectDots(imageResolutionOf(DocumentKind::Tiff, tagList(3)), 381, 190.5);
}

TEST(ImageHeader, EveryPictureOfATiffFileHasItsOwn)
{
    const QByteArray file = tiffOfTwoPages();
    expectDots(imageResolutionOf(DocumentKind::Tiff, file, 0), 100, 100);
    expectDots(imageResolutionOf(DocumentKind::Tiff, file, 1), 300, 300);
    EXPECT_FALSE(imageResolutionOf(DocumentKind::Tiff, file, 2));
}

TEST(ImageHeader, TiffFileThatEndsBeforeItsLastPictureIsCutShort)
{
    const QByteArray file = tiffOfTwoPages();
    EXPECT_FALSE(isTiffCutShort(file));
    EXPECT_TRUE(isTiffCutShort(file.chopped(40)));
    EXPECT_FALSE(isTiffCutShort(QByteArray("MM\0\x2b\0\0\0\x09", 8)));
}

TEST(ImageHeader, PicturesOfATiffFileThatLeadBackAreNotFollowedForEver)
{
    const QByteArray loop("MM\0\x2a\0\0\0\x08\0\0\0\0\0\x08", 14);
    EXPECT_FALSE(isTiffCutShort(loop));
}

TEST(ImageHeader, CutFilesAreReadWithoutHarm)
{
    const QByteArray files[] = {picture("png", {4, 4}, 300), tagList(2), tiffOfTwoPages(),
                                jpegHeader(QByteArray("\1\1\x2c\1\x2c", 5), tagList(2))};
    const DocumentKind kinds[] = {DocumentKind::Png, DocumentKind::Tiff, DocumentKind::Tiff,
                                  DocumentKind::Jpeg};
    for (size_t file = 0; file < std::size(files); ++file) {
        for (qsizetype length = 0; length < std::min<qsizetype>(files[file].size(), 400);
             ++length) {
            const auto read = imageResolutionOf(kinds[file], files[file].first(length), 1);
            EXPECT_TRUE(!read || (read->width() > 0 && read->height() > 0));
        }
    }
}

} // namespace
