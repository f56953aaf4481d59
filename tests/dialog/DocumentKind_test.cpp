// SPDX-License-Identifier: Apache-2.0
#include "dialog/DocumentKind.h"
#include "tests/dialog/TestDocuments.h"

#include <gtest/gtest.h>

using dialog::DocumentKind;
using dialog::documentKindOf;
using dialog::mimeTypeOf;

namespace {

TEST(DocumentKind, ContentTellsTheKind)
{
    EXPECT_EQ(documentKindOf(pdfOfPages(1)), DocumentKind::Pdf);
    EXPECT_EQ(documentKindOf(picture("png", {4, 4}, 72)), DocumentKind::Png);
    EXPECT_EQ(documentKindOf(picture("jpeg", {4, 4}, 72)), DocumentKind::Jpeg);
    EXPECT_EQ(documentKindOf(picture("tiff", {4, 4}, 72)), DocumentKind::Tiff);
    EXPECT_EQ(documentKindOf(svgDrawing()), DocumentKind::Svg);
}

TEST(DocumentKind, BothByteOrdersOfTiffAreKnown)
{
    EXPECT_EQ(documentKindOf(QByteArray("MM\0\x2a\0\0\0\x08", 8)), DocumentKind::Tiff);
    EXPECT_EQ(documentKindOf(QByteArray("II\x2a\0\x08\0\0\0", 8)), DocumentKind::Tiff);
}

TEST(DocumentKind, PdfMayBeginWithOtherBytes)
{
    EXPECT_EQ(documentKindOf(QByteArray(1000, ' ') + "%PDF-1.4"), DocumentKind::Pdf);
    EXPECT_FALSE(documentKindOf(QByteArray(2000, ' ') + "%PDF-1.4"));
}

TEST(DocumentKind, DrawingMayBeginWithProloguesOfXml)
{
    const QByteArray prologue = "\xef\xbb\xbf<?xml version='1.0'?><!-- a label -->"
                                "<!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'svg11.dtd'>";
    EXPECT_EQ(documentKindOf(prologue + svgDrawing()), DocumentKind::Svg);
    EXPECT_FALSE(documentKindOf("<?xml version='1.0'?><html><svg/></html>"));
}

TEST(DocumentKind, OtherContentIsNoDocument)
{
    EXPECT_FALSE(documentKindOf({}));
    EXPECT_FALSE(documentKindOf("Dear customer,"));
    EXPECT_FALSE(documentKindOf("GIF89a"));
}

TEST(DocumentKind, PrintSystemsNamesAreKnown)
{
    EXPECT_EQ(mimeTypeOf(DocumentKind::Pdf), QStringLiteral("application/pdf"));
    EXPECT_EQ(mimeTypeOf(DocumentKind::Png), QStringLiteral("image/png"));
    EXPECT_EQ(mimeTypeOf(DocumentKind::Jpeg), QStringLiteral("image/jpeg"));
    EXPECT_EQ(mimeTypeOf(DocumentKind::Tiff), QStringLiteral("image/tiff"));
    EXPECT_EQ(mimeTypeOf(DocumentKind::Svg), QStringLiteral("image/svg+xml"));
}

} // namespace
