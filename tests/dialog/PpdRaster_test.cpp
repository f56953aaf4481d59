// SPDX-License-Identifier: Apache-2.0
#include "dialog/PpdFile.h"
#include "dialog/PpdRaster.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

using dialog::dotFormOf;
using dialog::PpdFile;

namespace {

std::unique_ptr<PpdFile> opened(const QString &path)
{
    auto ppd = PpdFile::open(path);
    EXPECT_TRUE(ppd) << ppd.failure().text().toStdString();
    return ppd ? std::move(ppd).value() : nullptr;
}

std::unique_ptr<PpdFile> sample()
{
    return opened(QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"));
}

/// The sample printer's PPD with `from` replaced.
std::unique_ptr<PpdFile> changed(const QByteArray &from, const QByteArray &to)
{
    QFile file(QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains(from));
    text.replace(from, to);
    QTemporaryFile copy;
    EXPECT_TRUE(copy.open());
    copy.write(text);
    copy.flush();
    return opened(copy.fileName());
}

TEST(DotFormOfAPpd, HasTheSizeAndResolutionThatAreMarked)
{
    const auto ppd = sample();
    const auto form = dotFormOf(ppd->file());
    ASSERT_TRUE(form);
    EXPECT_EQ(form->resolution, QSize(300, 300));
    // 167.25 x 274.96 points of 175.75 x 283.46.
    EXPECT_EQ(form->dots, QSize(697, 1146));
    EXPECT_NEAR(form->origin.x(), 4.25, 0.01);
    EXPECT_NEAR(form->origin.y(), 4.25, 0.01);

    ppd->mark(QStringLiteral("Resolution"), QStringLiteral("300x600dpi"));
    EXPECT_EQ(dotFormOf(ppd->file())->resolution, QSize(300, 600));
    EXPECT_EQ(dotFormOf(ppd->file())->dots, QSize(697, 2291));
}

TEST(DotFormOfAPpd, FollowsASizeOfTheUsersOwn)
{
    const auto ppd = sample();
    ASSERT_FALSE(ppd->markSize(dialog::LabelSize::custom(50, 80)));
    // 50 x 80 mm less 4.25 points on each side.
    EXPECT_EQ(dotFormOf(ppd->file())->dots, QSize(555, 909));
}

TEST(DotFormOfAPpd, HasTheMarkedSettings)
{
    const auto ppd = sample();
    ppd->mark(QStringLiteral("CvHalftonePattern"), QStringLiteral("Dither"));
    ppd->mark(QStringLiteral("CvBrightness"), QStringLiteral("-7"));
    ppd->mark(QStringLiteral("CvContrast"), QStringLiteral("12"));
    ppd->mark(QStringLiteral("CvMultiColor"), QStringLiteral("CvMultiColorBlackRed"));
    ppd->mark(QStringLiteral("CvRedLevel"), QStringLiteral("20"));
    const imaging::PageSettings expected{imaging::HalftoneMethod::Dither, -7, 12,
                                         imaging::ColorMode::BlackRed, 20};
    EXPECT_EQ(dotFormOf(ppd->file())->settings, expected);
    EXPECT_EQ(dotFormOf(ppd->file())->format(), imaging::InputFormat::Rgb24);
}

TEST(DotFormOfAPpd, IsNotThereWithoutAHalftone)
{
    const auto ppd = opened(QStringLiteral(TEST_DATA_DIR "/ppd/no-panel-options.ppd"));
    EXPECT_FALSE(dotFormOf(ppd->file()));
    EXPECT_FALSE(dotFormOf(nullptr));
}

TEST(DotFormOfAPpd, TakesTheResolutionByNameWhenNoCodeStatesIt)
{
    const auto ppd = changed("<</HWResolution[300 300]>>setpagedevice", "");
    EXPECT_EQ(dotFormOf(ppd->file())->resolution, QSize(300, 300));
    EXPECT_EQ(dotFormOf(ppd->file())->dots, QSize(697, 1146));
}

TEST(GraphicsFilter, IsSeenInThePpd)
{
    EXPECT_FALSE(dialog::hasGraphicsFilter(sample()->file()));
    const QByteArray line = "*cupsFilter: \"application/vnd.cups-raster 0 rastertolabel\"\n";
    const QByteArray before = "*cupsPreFilter: \"application/vnd.cups-raster 0 ";
    EXPECT_TRUE(
        dialog::hasGraphicsFilter(changed(line, line + before + "labelgraphics\"\n")->file()));
    EXPECT_TRUE(dialog::hasGraphicsFilter(
        changed(line, line + before + "/opt/filter/labelgraphics\"\n")->file()));
    EXPECT_FALSE(
        dialog::hasGraphicsFilter(changed(line, line + before + "mylabelgraphics\"\n")->file()));
}

} // namespace
