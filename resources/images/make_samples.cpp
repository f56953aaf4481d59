// SPDX-License-Identifier: Apache-2.0
// make_sample_images FOLDER: draws the sample pictures of the panel into an existing folder.
#include "resources/images/Halftones.h"
#include "resources/images/Scene.h"

#include <QDir>
#include <QString>

#include <cstdio>
#include <utility>

namespace {

// 72 dots an inch: a pixel is a point.
constexpr int kDotsPerMetre = 2835;

QImage greyOf(const QImage &scene)
{
    QImage grey(scene.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            const QRgb pixel = scene.pixel(x, y);
            const int sum = qRed(pixel) * 299 + qGreen(pixel) * 587 + qBlue(pixel) * 114;
            grey.scanLine(y)[x] = uchar((sum + 500) / 1000);
        }
    }
    return grey;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("make_sample_images: give the folder to write the pictures to.\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QImage scene = samples::drawScene();
    const QImage grey = greyOf(scene);
    const std::pair<const char *, QImage> pictures[] = {
        {"Effect.png", scene},
        {"Binary.png", samples::threshold(grey)},
        {"Dither.png", samples::orderedDither(grey)},
        {"Diffusion.png", samples::errorDiffusion(grey)},
    };
    for (auto [name, picture] : pictures) {
        picture.setDotsPerMeterX(kDotsPerMetre);
        picture.setDotsPerMeterY(kDotsPerMetre);
        const QString path = folder.filePath(QLatin1String(name));
        if (!picture.save(path)) {
            std::fprintf(stderr,
                         "make_sample_images: cannot write %s; check that the folder exists.\n",
                         path.toLocal8Bit().constData());
            return 1;
        }
    }
    return 0;
}
