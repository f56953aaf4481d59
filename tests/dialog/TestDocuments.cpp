// SPDX-License-Identifier: Apache-2.0
#include "tests/dialog/TestDocuments.h"

#include <QBuffer>
#include <QByteArrayList>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QtEndian>

QString testDocument(const QString &name)
{
    return QStringLiteral(TEST_DATA_DIR "/documents/") + name;
}

int greyOfPage(int page)
{
    return (page * 37 + 20) % 200;
}

// Written by hand: Qt's writer packs each page, which takes a sanitizer minutes for thousands.
QByteArray pdfOfPages(int pages, const QSizeF &points)
{
    const QByteArray box = QByteArray::number(points.width(), 'f', 4) + ' '
        + QByteArray::number(points.height(), 'f', 4);
    QByteArray kids;
    QByteArrayList objects{"<</Type/Catalog/Pages 2 0 R>>", {}};
    for (int page = 0; page < pages; ++page) {
        const QByteArray grey = QByteArray::number(greyOfPage(page) / 255.0, 'f', 6);
        const QByteArray fill = grey + " g 0 0 " + box + " re f";
        const QByteArray contents = QByteArray::number(objects.size() + 2) + " 0 R";
        kids += QByteArray::number(objects.size() + 1) + " 0 R ";
        objects << "<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + box + "]/Contents " + contents + ">>"
                << "<</Length " + QByteArray::number(fill.size()) + ">>stream\n" + fill
                + "\nendstream";
    }
    objects[1] = "<</Type/Pages/Count " + QByteArray::number(pages) + "/Kids[" + kids + "]>>";

    QByteArray pdf = "%PDF-1.4\n";
    QByteArray places = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        places += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + size + '\n' + places + "trailer<</Size " + size
        + "/Root 1 0 R>>\nstartxref\n" + QByteArray::number(pdf.size()) + "\n%%EOF\n";
}

QByteArray svgDrawing()
{
    return QByteArrayLiteral(
        "<svg xmlns='http://www.w3.org/2000/svg' width='60mm' height='30mm' viewBox='0 0 20 10'>"
        "<rect width='10' height='10' fill='red'/></svg>");
}

namespace {

QImage filled(const QSize &pixels, int dotsPerInch, const QColor &colour)
{
    QImage image(pixels, colour.alpha() < 255 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    image.fill(colour);
    const int dotsPerMetre = qRound(dotsPerInch / 0.0254);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

// The writers put the screen's resolution where none is given; it is taken out again.
QByteArray withoutResolution(QByteArray content)
{
    const qsizetype chunk = content.indexOf("pHYs");
    if (chunk >= 0) {
        return content.remove(chunk - 4, 4 + 4 + 9 + 4);
    }
    const qsizetype header = content.indexOf(QByteArray("JFIF\0", 5));
    EXPECT_GE(header, 0);
    return content.replace(header + 7, 5, QByteArray("\0\0\1\0\1", 5));
}

} // namespace

QByteArray picture(const char *format, const QSize &pixels, int dotsPerInch, const QColor &colour)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setCompression(1);
    writer.write(filled(pixels, dotsPerInch, colour));
    return dotsPerInch == 0 ? withoutResolution(content) : content;
}

// The writer makes files of one picture. Of two such files one is made: the offsets of the second
// are moved behind the first, and the first's chain leads to it.
QByteArray tiffOfTwoPages()
{
    QByteArray first = picture("tiff", {100, 200}, 100, Qt::black);
    QByteArray second = picture("tiff", {300, 150}, 300, Qt::white);
    const auto word = [](QByteArray &file, qsizetype at) {
        return qFromLittleEndian<quint16>(file.constData() + at);
    };
    const auto number = [](QByteArray &file, qsizetype at) {
        return qFromLittleEndian<quint32>(file.constData() + at);
    };
    const auto setNumber = [](QByteArray &file, qsizetype at, quint32 value) {
        qToLittleEndian(value, file.data() + at);
    };
    first.append(first.size() % 2, '\0');
    const quint32 moved = quint32(first.size());
    const quint32 list = number(second, 4);
    for (quint32 entry = 0; entry < word(second, list); ++entry) {
        const qsizetype at = list + 2 + 12 * entry;
        const quint16 type = word(second, at + 2);
        const quint32 size = number(second, at + 4)
            * (type == 5       ? 8
                   : type == 4 ? 4
                   : type == 3 ? 2
                               : 1);
        const bool isPlace = word(second, at) == 273;
        if (size > 4 || isPlace) {
            const quint32 target = number(second, at + 8);
            for (quint32 strip = 0; isPlace && size > 4 && strip < number(second, at + 4);
                 ++strip) {
                setNumber(second, target + 4 * strip, number(second, target + 4 * strip) + moved);
            }
            setNumber(second, at + 8, target + moved);
        }
    }
    const quint32 firstList = number(first, 4);
    setNumber(first, firstList + 2 + 12 * word(first, firstList), list + moved);
    return first + second;
}

QString DocumentFolder::write(const QString &name, const QByteArray &content)
{
    const QString path = folder.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return path;
}

std::shared_ptr<const dialog::DocumentPages> DocumentFolder::opened(const QByteArray &content)
{
    const auto document = dialog::DocumentPages::open(write(QStringLiteral("document"), content));
    EXPECT_TRUE(document) << (document ? "" : qPrintable(document.failure().text()));
    return document ? document.value() : nullptr;
}

QString DocumentFolder::whyNot(const QString &path)
{
    const auto document = dialog::DocumentPages::open(path);
    if (document) {
        return {};
    }
    EXPECT_EQ(document.failure().what, path);
    EXPECT_EQ(document.failure().kind, dialog::FailureKind::Document);
    return document.failure().why;
}
