// SPDX-License-Identifier: Apache-2.0
#include "dialog/DotPictures.h"

#include "dialog/NewFile.h"
#include "dialog/PageDots.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace dialog {

namespace {

constexpr double kMetresPerInch = 0.0254;

QString nameOf(int page, const char *plate)
{
    return QStringLiteral("page-%1-%2.png")
        .arg(page + 1, 4, 10, QLatin1Char('0'))
        .arg(QLatin1String(plate));
}

/// Ink is 0, paper is 1.
QImage pictureOf(const PageDots &dots, const std::vector<std::uint8_t> &plate)
{
    QImage picture(dots.form.dots, QImage::Format_Mono);
    picture.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    picture.setDotsPerMeterX(qRound(dots.form.resolution.width() / kMetresPerInch));
    picture.setDotsPerMeterY(qRound(dots.form.resolution.height() / kMetresPerInch));
    for (int row = 0; row < picture.height(); ++row) {
        const auto from = plate.begin() + std::ptrdiff_t(dots.rowBytes) * row;
        std::transform(from, from + std::ptrdiff_t(dots.rowBytes), picture.scanLine(row),
                       [](std::uint8_t ink) { return std::uint8_t(~ink); });
    }
    return picture;
}

std::optional<Failure> writePicture(const QImage &picture, const QString &path)
{
    // In memory first: Qt's PNG code leaks when it cannot write.
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!QImageWriter(&png, "png").write(picture)) {
        return Failure{FailureKind::Document, path,
                       DocumentPages::tr("there is not enough memory to show the page")};
    }
    NewFile file(path);
    if (auto failure = file.open()) {
        return failure;
    }
    if (auto failure = file.write(png.data().constData(), png.size())) {
        return failure;
    }
    return file.finish();
}

} // namespace

DotPictures::DotPictures(DotPages pages)
    : mPages(std::move(pages))
{ }

bool DotPictures::mayBeCalled(const QString &name)
{
    static const QRegularExpression names(QStringLiteral("^page-\\d+-(black|red)\\.png$"),
                                          QRegularExpression::CaseInsensitiveOption);
    return names.match(name).hasMatch();
}

std::optional<Failure> DotPictures::writeInto(const QString &folder,
                                              const BandsDone &progress) const
{
    const QDir in(folder);
    int done = 0;
    for (const int page : mPages.pages) {
        const SheetPixels pixels = mPages.pixels(page);
        if (pixels.isTooLarge() || mPages.form.dots.height() > kMostRows) {
            return Failure{FailureKind::Document, mPages.document->path(),
                           tr("page %1 has too many dots for a PNG file; choose a shorter label or "
                              "a lower resolution")
                               .arg(page + 1)};
        }
        const int bands = pixels.bands() * int(mPages.pages.size());
        const Result<PageDots> dots = dotsOf(pixels, [&](int) { return progress(done++, bands); });
        if (!dots) {
            return dots.failure();
        }
        const auto write = [&](const char *plate, const std::vector<std::uint8_t> &ink) {
            return ink.empty()
                ? std::nullopt
                : writePicture(pictureOf(dots.value(), ink), in.filePath(nameOf(page, plate)));
        };
        if (auto failure = write("black", dots.value().black)) {
            return failure;
        }
        if (auto failure = write("red", dots.value().red)) {
            return failure;
        }
    }
    return {};
}

} // namespace dialog
