// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace {

constexpr const char *kNames[] = {"Effect.png", "Binary.png", "Dither.png", "Diffusion.png"};
constexpr const char *kHalftones[] = {"Binary.png", "Dither.png", "Diffusion.png"};

QImage keptPicture(const char *name)
{
    const QDir folder(QStringLiteral(SOURCE_DIR "/resources/images"));
    const QImage picture(folder.filePath(QLatin1String(name)));
    EXPECT_EQ(picture.size(), QSize(120, 90)) << name;
    return picture;
}

int greyOf(QRgb pixel)
{
    return (qRed(pixel) * 299 + qGreen(pixel) * 587 + qBlue(pixel) * 114 + 500) / 1000;
}

double meanGrey(const QImage &picture)
{
    double sum = 0.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            sum += greyOf(picture.pixel(x, y));
        }
    }
    return sum / (picture.width() * picture.height());
}

std::set<int> greysIn(const QImage &picture)
{
    std::set<int> greys;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            greys.insert(greyOf(picture.pixel(x, y)));
        }
    }
    return greys;
}

/// Runs the generator; its exit code, and what it complained about.
std::pair<int, QString> generate(const QStringList &arguments)
{
    QProcess generator;
    generator.start(QStringLiteral(MAKE_SAMPLE_IMAGES), arguments);
    if (!generator.waitForFinished()) {
        return {-1, generator.errorString()};
    }
    return {generator.exitCode(), QString::fromLocal8Bit(generator.readAllStandardError())};
}

TEST(SampleImages, AreWhatTheGeneratorDraws)
{
    const QTemporaryDir folder;
    EXPECT_EQ(generate({folder.path()}), std::pair(0, QString()));
    for (const char *name : kNames) {
        const QImage drawn(folder.filePath(QLatin1String(name)));
        ASSERT_FALSE(drawn.isNull()) << name;
        EXPECT_EQ(drawn.convertToFormat(QImage::Format_RGB32),
                  keptPicture(name).convertToFormat(QImage::Format_RGB32))
            << name;
    }
}

TEST(SampleImages, GeneratorNamesAFolderThatItCannotWriteTo)
{
    const auto [code, complaint] = generate({QStringLiteral("/nonexistent/folder")});
    EXPECT_EQ(code, 1);
    EXPECT_EQ(complaint,
              QStringLiteral("make_sample_images: cannot write /nonexistent/folder/Effect.png; "
                             "check that the folder exists.\n"));
    EXPECT_EQ(generate({}).first, 2);
}

TEST(SampleImages, HaveOneSizeAndAPointForAPixel)
{
    for (const char *name : kNames) {
        const QImage picture = keptPicture(name);
        EXPECT_EQ(picture.devicePixelRatio(), 1.0) << name;
        EXPECT_EQ(picture.dotsPerMeterX(), 2835) << name;
        EXPECT_EQ(picture.dotsPerMeterY(), 2835) << name;
        EXPECT_FALSE(picture.hasAlphaChannel()) << name;
    }
}

TEST(SampleImages, EffectHasTheFullRangeOfTones)
{
    const std::set<int> greys = greysIn(keptPicture("Effect.png"));
    EXPECT_THAT(greys, testing::IsSupersetOf({0, 255}));
    EXPECT_GT(greys.size(), 230U);
}

TEST(SampleImages, HalftonesAreBlackAndWhite)
{
    for (const char *name : kHalftones) {
        EXPECT_THAT(greysIn(keptPicture(name)), testing::ElementsAre(0, 255)) << name;
    }
}

TEST(SampleImages, BinaryCutsTheGreyOfTheEffectInTheMiddle)
{
    const QImage effect = keptPicture("Effect.png");
    const QImage binary = keptPicture("Binary.png");
    for (int y = 0; y < effect.height(); ++y) {
        for (int x = 0; x < effect.width(); ++x) {
            ASSERT_EQ(greyOf(binary.pixel(x, y)) == 255, greyOf(effect.pixel(x, y)) >= 128)
                << x << ", " << y;
        }
    }
}

TEST(SampleImages, DitherAndDiffusionKeepTheGreyOfEveryPart)
{
    const QImage effect = keptPicture("Effect.png");
    const QImage dither = keptPicture("Dither.png");
    const QImage diffusion = keptPicture("Diffusion.png");
    for (int y = 0; y < 75; y += 15) {
        for (int x = 0; x < 120; x += 20) {
            const QRect part(x, y, 20, 15);
            const double grey = meanGrey(effect.copy(part));
            EXPECT_NEAR(meanGrey(dither.copy(part)), grey, 20.0) << x << ", " << y;
            EXPECT_NEAR(meanGrey(diffusion.copy(part)), grey, 20.0) << x << ", " << y;
        }
    }
    EXPECT_NE(dither, diffusion);
}

TEST(SampleImages, DitherComparesTheGreyWithTheDispersedDotMatrix)
{
    constexpr int kRanks[8][8] = {
        {0, 32, 8, 40, 2, 34, 10, 42},  {48, 16, 56, 24, 50, 18, 58, 26},
        {12, 44, 4, 36, 14, 46, 6, 38}, {60, 28, 52, 20, 62, 30, 54, 22},
        {3, 35, 11, 43, 1, 33, 9, 41},  {51, 19, 59, 27, 49, 17, 57, 25},
        {15, 47, 7, 39, 13, 45, 5, 37}, {63, 31, 55, 23, 61, 29, 53, 21},
    };
    const QImage effect = keptPicture("Effect.png");
    const QImage dither = keptPicture("Dither.png");
    for (int y = 0; y < effect.height(); ++y) {
        for (int x = 0; x < effect.width(); ++x) {
            const double limit = (kRanks[y % 8][x % 8] + 0.5) * 255.0 / 64.0;
            ASSERT_EQ(greyOf(dither.pixel(x, y)) == 255, greyOf(effect.pixel(x, y)) > limit)
                << x << ", " << y;
        }
    }
}

} // namespace
