// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelSet.h"

#include "dialog/TestJob.h"

#include <QSlider>

#include <gmock/gmock.h>

using dialog::HostedJob;
using dialog::OptionChoices;
using dialog::PanelSet;
using loading::BundleLoader;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const QString kBrightness = QStringLiteral("CvBrightness");
const QString kContrast = QStringLiteral("CvContrast");
const QString kHalftone = QStringLiteral("CvHalftonePattern");

/// The Graphics panel as it is built, where it is built.
class PanelSetGraphics : public testing::Test
{
protected:
    void start(PanelSet::Views views = PanelSet::Views::Made)
    {
        auto loaded = BundleLoader().load(QStringLiteral(BUNDLE_DIR));
        ASSERT_TRUE(loaded) << loaded.failure().text().toStdString();
        set = std::make_unique<PanelSet>(
            dialog::PlugIns{std::make_shared<loading::LoadedPlugIn>(std::move(loaded).value())},
            job);
        set->start(views);
        ASSERT_THAT(set->failures(), IsEmpty());
        ASSERT_THAT(set->panels(), SizeIs(1));
    }
    QSlider *slider(const char *name) const
    {
        return set->panels().front()->view()->findChild<QSlider *>(QLatin1String(name));
    }

    HostedJob job = testJob();
    std::unique_ptr<PanelSet> set;
};

TEST_F(PanelSetGraphics, StartsWithWhatTheUserChoseAndShowsIt)
{
    job.ppd->mark(kBrightness, QStringLiteral("7"));
    job.ppd->mark(kHalftone, QStringLiteral("Binary"));
    start();
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), QStringLiteral("7"));
    EXPECT_EQ(job.ppd->markedChoice(kHalftone), QStringLiteral("Binary"));
    ASSERT_NE(slider("mBrightnessSlider"), nullptr);
    EXPECT_EQ(slider("mBrightnessSlider")->value(), 7);
    EXPECT_THAT(job.settings->choices(), IsEmpty());
}

TEST_F(PanelSetGraphics, ClaimsTheSixOptionsOfThePpd)
{
    start(PanelSet::Views::None);
    EXPECT_EQ(set->claimedOptions(),
              (QStringList{kHalftone, kBrightness, kContrast, QStringLiteral("CvBiDiPrint"),
                           QStringLiteral("CvMultiColor"), QStringLiteral("CvRedLevel")}));
}

TEST_F(PanelSetGraphics, AMovedSliderGoesWithTheJob)
{
    start();
    ASSERT_NE(slider("mContrustSlider"), nullptr);
    slider("mContrustSlider")->setValue(-12);
    EXPECT_FALSE(set->prepareJob());
    EXPECT_EQ(job.ppd->markedChoice(kContrast), QStringLiteral("-12"));
    EXPECT_EQ(job.settings->choice(kContrast), QStringLiteral("-12"));
}

TEST_F(PanelSetGraphics, WithoutADialogTheChosenOptionsGoWithTheJob)
{
    job.ppd->mark(kBrightness, QStringLiteral("-4"));
    start(PanelSet::Views::None);
    EXPECT_FALSE(set->prepareJob());
    const OptionChoices choices = set->claimedChoices();
    ASSERT_EQ(choices.size(), 6U);
    EXPECT_EQ(choices[1].choice, QLatin1String("-4"));
}

TEST_F(PanelSetGraphics, ChoicesFromOutsideMoveTheSliders)
{
    start();
    set->apply({{kBrightness, QStringLiteral("15")}});
    EXPECT_EQ(slider("mBrightnessSlider")->value(), 15);
    EXPECT_EQ(job.settings->choice(kBrightness), QStringLiteral("15"));
}

} // namespace
