// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrinterSetup.h"

#include "GraphicsBundle.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QSlider>

#include <gmock/gmock.h>

using namespace dialog;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const QString kBrightness = QStringLiteral("CvBrightness");
const QString kResolution = QStringLiteral("Resolution");
const QString kColour = QStringLiteral("CvMultiColor");
const QString kBlackRed = QStringLiteral("CvMultiColorBlackRed");
const QString kFine = QStringLiteral("300x600dpi");

class PrinterSetupTest : public testing::Test
{
protected:
    std::unique_ptr<PrinterSetup> make(const JobSettings &job = {})
    {
        auto ppd = PpdFile::open(kSamplePpd);
        EXPECT_TRUE(ppd);
        return std::make_unique<PrinterSetup>(Printer::folder(), std::move(ppd).value(), job,
                                              graphicsPlugIn());
    }
    static QSlider *slider(PrinterSetup &setup, const QString &name)
    {
        return setup.panels().panels().at(0)->view()->findChild<QSlider *>(name);
    }
    static std::string sentence(const std::optional<Failure> &failure)
    {
        return failure ? failure->text().toStdString() : std::string();
    }
};

TEST_F(PrinterSetupTest, WhatIsWishedFromTheStartSurvivesTheStartOfThePanels)
{
    auto setup = make();
    ASSERT_FALSE(setup->choose({{kBrightness, QStringLiteral("5")}}));
    setup->start(PanelSet::Views::Made);
    EXPECT_EQ(setup->ppd()->markedChoice(kBrightness), QStringLiteral("5"));
    EXPECT_EQ(slider(*setup, QStringLiteral("mBrightnessSlider"))->value(), 5);
}

TEST_F(PrinterSetupTest, WithViewsWhatThePanelShowsIsMarkedFromTheStart)
{
    auto setup = make();
    ASSERT_FALSE(setup->choose({{kColour, kBlackRed}}));
    setup->start(PanelSet::Views::Made);
    const auto *shown = setup->panels().panels().at(0)->view()->findChild<QComboBox *>(
        QStringLiteral("mColorPUBtn"));
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->currentIndex(), 0);
    EXPECT_EQ(setup->ppd()->markedChoice(kColour), QStringLiteral("CvMultiColorMonochrome"));
}

TEST_F(PrinterSetupTest, WithoutViewsAWishedColourModeStays)
{
    auto setup = make();
    ASSERT_FALSE(setup->choose({{kColour, kBlackRed}}));
    setup->start(PanelSet::Views::None);
    EXPECT_EQ(setup->ppd()->markedChoice(kColour), kBlackRed);
    ASSERT_FALSE(setup->finish());
    EXPECT_EQ(setup->settings().choice(kColour), kBlackRed);
}

TEST_F(PrinterSetupTest, AChoiceThatThePpdDoesNotHaveIsNamed)
{
    auto setup = make();
    EXPECT_THAT(sentence(setup->choose({{kBrightness, QStringLiteral("99")}})),
                HasSubstr("CvBrightness=99"));
    EXPECT_THAT(sentence(setup->choose({{QStringLiteral("Nonsense"), QStringLiteral("1")}})),
                HasSubstr("Nonsense"));
}

TEST_F(PrinterSetupTest, GeneralOptionsGoThroughWithoutAPpd)
{
    PrinterSetup setup(Printer::folder(), nullptr, {}, graphicsPlugIn());
    EXPECT_FALSE(setup.choose({{QStringLiteral("media"), QStringLiteral("A6")}}));
    setup.start(PanelSet::Views::None);
    EXPECT_FALSE(setup.finish());
    EXPECT_EQ(setup.settings().choice(QStringLiteral("media")), QStringLiteral("A6"));
}

TEST_F(PrinterSetupTest, TakesTheGeneralPartOfTheJobOnly)
{
    JobSettings job;
    job.setCopies(7);
    job.setChoice(kBrightness, QStringLiteral("-3"));
    auto setup = make(job);
    EXPECT_EQ(setup->settings().copies(), 7);
    EXPECT_FALSE(setup->settings().choice(kBrightness));
}

TEST_F(PrinterSetupTest, LabelSizeReachesTheSettingsAndThePpd)
{
    auto setup = make();
    setup->start(PanelSet::Views::None);
    EXPECT_EQ(setup->settings().labelSize()->name, QStringLiteral("DC62x100"));
    QSignalSpy changed(setup.get(), &PrinterSetup::changed);
    ASSERT_FALSE(setup->setLabelSize(setup->ppd()->sizes().at(0)));
    EXPECT_EQ(setup->settings().labelSize()->name, QStringLiteral("DC17x54"));
    EXPECT_EQ(setup->ppd()->markedChoice(QStringLiteral("PageSize")), QStringLiteral("DC17x54"));
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(PrinterSetupTest, EachSizeOfTheUsersOwnCountsAlsoOneAfterAnother)
{
    auto setup = make();
    setup->start(PanelSet::Views::None);
    ASSERT_FALSE(setup->setLabelSize(LabelSize::custom(60, 100)));
    ASSERT_FALSE(setup->setLabelSize(LabelSize::custom(40, 30)));
    ASSERT_TRUE(setup->settings().labelSize());
    EXPECT_EQ(setup->settings().labelSize()->pageSizeChoice(), QStringLiteral("Custom.40x30mm"));
    EXPECT_THAT(sentence(setup->setLabelSize(LabelSize::custom(500, 30))), Not(HasSubstr("40")));
    EXPECT_EQ(setup->settings().labelSize()->pageSizeChoice(), QStringLiteral("Custom.40x30mm"));
}

TEST_F(PrinterSetupTest, AClashIsOneSentenceWithBothTitlesAndCanBePutRight)
{
    auto setup = make();
    setup->start(PanelSet::Views::None);
    EXPECT_FALSE(setup->conflict());
    ASSERT_FALSE(setup->choose({{kColour, kBlackRed}}));
    ASSERT_FALSE(setup->choose({{kResolution, kFine}}));
    EXPECT_THAT(sentence(setup->conflict()), HasSubstr("Resolution \"300 x 600 dpi\""));
    EXPECT_THAT(sentence(setup->conflict()), HasSubstr("Colour mode \"Black and red\""));
    EXPECT_THAT(sentence(setup->finish()), HasSubstr("cannot be had together"));
    EXPECT_TRUE(setup->resolveConflict());
    EXPECT_FALSE(setup->conflict());
    EXPECT_EQ(setup->ppd()->markedChoice(kResolution), kFine) << "the latest wish is kept";
}

TEST_F(PrinterSetupTest, FinishBringsEveryMarkedChoiceIntoTheSettings)
{
    auto setup = make();
    setup->start(PanelSet::Views::None);
    ASSERT_FALSE(setup->choose({{kBrightness, QStringLiteral("-20")}}));
    ASSERT_FALSE(setup->finish());
    EXPECT_EQ(setup->settings().choice(kBrightness), QStringLiteral("-20"));
    EXPECT_EQ(setup->settings().choice(QStringLiteral("CvContrast")), QStringLiteral("0"));
    EXPECT_EQ(setup->settings().choice(QStringLiteral("CutMedia")), QStringLiteral("EndOfPage"));
    EXPECT_FALSE(setup->settings().choice(QStringLiteral("PageRegion")));
}

TEST_F(PrinterSetupTest, PanelOptionsAreNotAmongTheUnclaimedOnes)
{
    auto setup = make();
    setup->start(PanelSet::Views::None);
    EXPECT_THAT(setup->unclaimedOptions(), Contains(kResolution));
    EXPECT_THAT(setup->unclaimedOptions(), Not(Contains(kBrightness)));
    EXPECT_THAT(setup->unclaimedOptions(), Not(Contains(QStringLiteral("PageSize"))));
}

TEST_F(PrinterSetupTest, AWishedColourModeSurvivesWhereThePpdHasNoSizes)
{
    auto ppd = PpdFile::open(QStringLiteral(TEST_DATA_DIR "/ppd/six-options.ppd"));
    ASSERT_TRUE(ppd);
    PrinterSetup setup(Printer::folder(), std::move(ppd).value(), {}, graphicsPlugIn());
    ASSERT_FALSE(setup.choose({{kColour, kBlackRed}}));
    setup.start(PanelSet::Views::None);
    EXPECT_FALSE(setup.finish());
    EXPECT_EQ(setup.settings().choice(kColour), kBlackRed);
}

TEST_F(PrinterSetupTest, APpdWithoutAnyOptionOfThePanelStillPrints)
{
    auto ppd = PpdFile::open(QStringLiteral(TEST_DATA_DIR "/ppd/no-panel-options.ppd"));
    ASSERT_TRUE(ppd);
    PrinterSetup setup(Printer::folder(), std::move(ppd).value(), {}, graphicsPlugIn());
    setup.start(PanelSet::Views::Made);
    EXPECT_FALSE(setup.finish());
    EXPECT_EQ(setup.settings().choice(QStringLiteral("CutMedia")), QStringLiteral("None"));
}

class OddPpd : public PrinterSetupTest, public testing::WithParamInterface<const char *>
{ };

TEST_P(OddPpd, IsSetUpAndFinishedWithoutAComplaint)
{
    auto ppd = PpdFile::open(QStringLiteral(TEST_DATA_DIR "/ppd/") + QLatin1String(GetParam()));
    ASSERT_TRUE(ppd) << ppd.failure().text().toStdString();
    PrinterSetup setup(Printer::folder(), std::move(ppd).value(), {}, graphicsPlugIn());
    QSignalSpy failed(&setup.panels(), &PanelSet::failed);
    setup.start(PanelSet::Views::Made);
    EXPECT_FALSE(setup.finish());
    EXPECT_EQ(failed.count(), 0);
    EXPECT_TRUE(setup.panels().panels().at(0)->view());
}

INSTANTIATE_TEST_SUITE_P(
    Files, OddPpd,
    testing::Values("no-bidi.ppd", "no-colour.ppd", "no-required-options.ppd", "two-defaults.ppd",
                    "no-default.ppd", "default-is-no-choice.ppd", "thousand-choices.ppd",
                    "duplicate-choices.ppd", "undecodable-titles.ppd", "short-lists.ppd",
                    "other-spelling.ppd", "truncated.ppd", "empty-choice-list.ppd"),
    [](const auto &row) {
        std::string name = row.param;
        std::replace_if(
            name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
        return name;
    });

} // namespace
