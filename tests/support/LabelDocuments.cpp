// SPDX-License-Identifier: Apache-2.0
#include "support/LabelDocuments.h"

#include "resources/sample/Ean13.h"
#include "resources/sample/SamplePicture.h"

#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <stdexcept>

#include <ZXing/BitMatrix.h>
#include <ZXing/MultiFormatWriter.h>

namespace {

// Parts of the label's height.
constexpr double kHeadEnd = 0.09;
constexpr double kPhotoEnd = 0.40;
constexpr double kWordsEnd = 0.57;
constexpr double kSquaresEnd = 0.75;
constexpr double kFirstBarsEnd = 0.86;
constexpr double kBarsHeight = 0.09;

int partOf(double part, int whole)
{
    return static_cast<int>(part * whole);
}

/// The modules of a code, as few as it can be drawn with.
QImage modulesOf(const LabelCode &code)
{
    ZXing::MultiFormatWriter writer(ZXing::BarcodeFormatFromString(code.format.toStdString()));
    const ZXing::BitMatrix bits = writer.setMargin(0).encode(code.text.toStdString(), 0, 0);
    QImage modules(bits.width(), bits.height(), QImage::Format_RGB32);
    for (int y = 0; y < bits.height(); ++y) {
        for (int x = 0; x < bits.width(); ++x) {
            modules.setPixel(x, y, bits.get(x, y) ? 0xff000000U : 0xffffffffU);
        }
    }
    return modules;
}

bool isSquare(const LabelCode &code)
{
    return code.format == QStringLiteral("QRCode") || code.format == QStringLiteral("DataMatrix");
}

void paintModules(QPainter &painter, const LabelCode &code)
{
    const QImage modules = modulesOf(code);
    const int across = code.place.width() / modules.width();
    const int down = code.place.height() / modules.height();
    for (int y = 0; y < modules.height(); ++y) {
        for (int x = 0; x < modules.width(); ++x) {
            if (qGray(modules.pixel(x, y)) == 0) {
                painter.fillRect(code.place.left() + x * across, code.place.top() + y * down,
                                 across, down, Qt::black);
            }
        }
    }
}

void check(bool isDone, const QString &path)
{
    if (!isDone) {
        throw std::runtime_error(path.toStdString() + " cannot be written");
    }
}

} // namespace

LabelDocuments::LabelDocuments(const LabelLook &look)
    : mLook(look)
{ }

int LabelDocuments::margin() const
{
    return mLook.dots.width() / 25;
}

QRect LabelDocuments::photo() const
{
    const int top = partOf(kHeadEnd, mLook.dots.height()) + margin();
    return {margin(), top, mLook.dots.width() - 2 * margin(),
            partOf(kPhotoEnd, mLook.dots.height()) - top};
}

QRect LabelDocuments::red() const
{
    if (!mLook.hasRed) {
        return {};
    }
    return {0, 0, mLook.dots.width(), partOf(kHeadEnd, mLook.dots.height())};
}

std::vector<LabelCode> LabelDocuments::codes(int page) const
{
    const QString number = QString::number(page + 1);
    std::vector<LabelCode> codes = {
        {QStringLiteral("QRCode"), QStringLiteral("HTTPS://EXAMPLE.ORG/LOT/24117/") + number, {}},
        {QStringLiteral("DataMatrix"), QStringLiteral("Lot B-24117-") + number, {}},
        {QStringLiteral("Code128"), QStringLiteral("LOT24117-") + number, {}},
        {QStringLiteral("EAN-13"),
         sample::withCheckDigit(QStringLiteral("20011700001") + number.right(1)),
         {}},
    };
    const int height = mLook.dots.height();
    const QPoint places[] = {{2 * margin(), partOf(kWordsEnd, height)},
                             {mLook.dots.width() * 3 / 5, partOf(kWordsEnd, height)},
                             {2 * margin(), partOf(kSquaresEnd, height)},
                             {2 * margin(), partOf(kFirstBarsEnd, height)}};
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const QSize modules = modulesOf(codes[i]).size();
        codes[i].place = QRect(places[i],
                               isSquare(codes[i]) ? modules * mLook.squareModule
                                                  : QSize(modules.width() * mLook.barModule,
                                                          partOf(kBarsHeight, height)));
    }
    return codes;
}

void LabelDocuments::paintWords(QPainter &painter, int page) const
{
    const auto write = [&painter](const QRect &place, const QString &words, int flags) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setStyleStrategy(QFont::NoAntialias);
        font.setPixelSize(place.height() * 3 / 4);
        painter.setFont(font);
        painter.drawText(place, flags | Qt::TextDontClip, words);
    };
    const QSize dots = mLook.dots;
    const int headHeight = partOf(kHeadEnd, dots.height());
    painter.fillRect(0, 0, dots.width(), headHeight, mLook.hasRed ? Qt::red : Qt::black);
    painter.setPen(Qt::white);
    write({margin(), 0, dots.width(), headHeight}, QStringLiteral("Blood oranges"), Qt::AlignLeft);

    const QString lines[] = {
        QStringLiteral("Box %1 of 40").arg(page + 1), QStringLiteral("Class I, untreated, size 6"),
        QStringLiteral("Keep cool, 4 to 8 °C. Packed in week 17, bay C 08."),
        QStringLiteral("Net weight 10.0 kg. Gross weight 10.6 kg. Batch 24-117-B.")};
    painter.setPen(Qt::black);
    const double heights[] = {0.33, 0.22, 0.16, 0.13};
    int top = partOf(kPhotoEnd, dots.height()) + margin() / 2;
    const int room = partOf(kWordsEnd, dots.height()) - top;
    for (int i = 0; i < 4; ++i) {
        const int height = partOf(heights[i], room);
        write({margin(), top, dots.width(), height}, lines[i], Qt::AlignLeft);
        top += height;
    }
}

void LabelDocuments::paintCodes(QPainter &painter, int page) const
{
    for (const LabelCode &code : codes(page)) {
        paintModules(painter, code);
    }
}

void LabelDocuments::paint(QPainter &painter, int page) const
{
    painter.fillRect(QRect(QPoint(), mLook.dots), Qt::white);
    paintWords(painter, page);
    painter.drawImage(photo(), sample::stillLife(photo().size()));
    paintCodes(painter, page);
}

QImage LabelDocuments::picture(int page) const
{
    QImage image(mLook.dots, QImage::Format_RGB32);
    const int dotsPerMetre = qRound(mLook.dotsPerInch / 0.0254);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
    paint(painter, page);
    return image;
}

QString LabelDocuments::writePdf(const QString &folder) const
{
    const QString path = folder + QStringLiteral("/label.pdf");
    QPdfWriter writer(path);
    writer.setResolution(mLook.dotsPerInch);
    writer.setPageSize(QPageSize(QSizeF(mLook.dots) * 72.0 / mLook.dotsPerInch, QPageSize::Point,
                                 QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    check(painter.begin(&writer), path);
    for (int page = 0; page < mLook.pages; ++page) {
        check(page == 0 || writer.newPage(), path);
        paint(painter, page);
    }
    check(painter.end(), path);
    return path;
}

QString LabelDocuments::writePicture(const QString &path, const char *format) const
{
    QImageWriter writer(path, format);
    writer.setQuality(95);
    check(writer.write(picture()), path);
    return path;
}

QString LabelDocuments::writePng(const QString &folder) const
{
    return writePicture(folder + QStringLiteral("/label.png"), "png");
}

QString LabelDocuments::writeJpeg(const QString &folder) const
{
    return writePicture(folder + QStringLiteral("/label.jpeg"), "jpeg");
}
