// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelSet.h"

#include "dialog/TestJob.h"
#include "platform/NotificationCenter.h"
#include "support/TestBundles.h"

#include <QComboBox>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

using dialog::HostedJob;
using dialog::OptionChoice;
using dialog::PanelSet;
using dialog::PlugIns;
using loading::BundleLoader;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const QString kHalftone = QStringLiteral("CvHalftonePattern");
const QString kDither = QStringLiteral("Dither");

/// Panels of real bundles. The good one's panel marks Binary when it is first shown.
class PanelSetBundles : public testing::Test
{
protected:
    void start(const QStringList &names, PanelSet::Views views = PanelSet::Views::Made)
    {
        PlugIns plugIns;
        for (const QString &name : names) {
            auto loaded = BundleLoader().load(bundles.copy(name));
            ASSERT_TRUE(loaded) << loaded.failure().text().toStdString();
            plugIns.push_back(std::make_shared<loading::LoadedPlugIn>(std::move(loaded).value()));
        }
        set = std::make_unique<PanelSet>(std::move(plugIns), job);
        set->start(views);
    }
    void start(const char *name, PanelSet::Views views = PanelSet::Views::Made)
    {
        start(QStringList{QLatin1String(name)}, views);
    }
    QComboBox *view() const { return qobject_cast<QComboBox *>(set->panels().front()->view()); }
    /// As a person would: the next item with the arrow key.
    void chooseNext() { QTest::keyClick(view(), Qt::Key_Down); }
    std::string onlyFailure() const
    {
        EXPECT_THAT(set->failures(), SizeIs(1));
        return set->failures().empty() ? std::string()
                                       : set->failures().front().text().toStdString();
    }

    TestBundles bundles;
    HostedJob job = testJob();
    std::unique_ptr<PanelSet> set;
};

TEST_F(PanelSetBundles, TheStartLeavesMarksAndSettingsAndTheControlsShowThem)
{
    job.ppd->mark(kHalftone, kDither);
    start("Good");
    ASSERT_THAT(set->panels(), SizeIs(1));
    EXPECT_EQ(view()->currentText(), kDither);
    EXPECT_THAT(set->claimedChoices(), ElementsAre(OptionChoice{kHalftone, kDither}));
    EXPECT_THAT(job.settings->choices(), IsEmpty());
    EXPECT_THAT(set->failures(), IsEmpty());
}

TEST_F(PanelSetBundles, WithoutAViewTheMarksGoWithTheJob)
{
    job.ppd->mark(kHalftone, kDither);
    start("Good", PanelSet::Views::None);
    EXPECT_FALSE(set->prepareJob());
    EXPECT_THAT(set->claimedChoices(), ElementsAre(OptionChoice{kHalftone, kDither}));
}

TEST_F(PanelSetBundles, WhatTheUserChoosesIsMarkedAndKeptInTheSettings)
{
    job.ppd->mark(kHalftone, QStringLiteral("Binary"));
    start("Good");
    chooseNext();
    EXPECT_EQ(job.ppd->markedChoice(kHalftone), kDither);
    EXPECT_EQ(job.settings->choice(kHalftone), kDither);
}

TEST_F(PanelSetBundles, ANotificationOfTheBundlesCodeReachesAnObserverInTheProgram)
{
    auto &center = platform::NotificationCenter::defaultCenter();
    QStringList chosen;
    center.addObserver(
        this, [&](const platform::Notification &note) { chosen << std::get<QString>(note.object); },
        QStringLiteral("TestPanelDidChoose"));
    job.ppd->mark(kHalftone, QStringLiteral("Binary"));
    start("Good");
    chooseNext();
    center.removeObserver(this);
    EXPECT_THAT(chosen, ElementsAre(kDither));
}

TEST_F(PanelSetBundles, ThePanelsViewOutlivesTheWindowItWasIn)
{
    start("Good");
    auto window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(window.get());
    layout->addWidget(view());
    const QPointer<QWidget> shown = view();
    set.reset();
    EXPECT_TRUE(shown.isNull()) << "deleted by its panel, once";
    window.reset();
}

TEST_F(PanelSetBundles, ANullViewCostsThePanel)
{
    start({QStringLiteral("NullView")});
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_THAT(set->claimedOptions(), IsEmpty());
    EXPECT_EQ(onlyFailure(),
              "panel Test of plug-in NullView is switched off: it has no view; install the plug-in "
              "again");
    EXPECT_FALSE(set->prepareJob());
}

TEST_F(PanelSetBundles, ANullViewDoesNotMatterWithoutADialog)
{
    start("NullView", PanelSet::Views::None);
    EXPECT_THAT(set->panels(), SizeIs(1));
    EXPECT_THAT(set->failures(), IsEmpty());
}

TEST_F(PanelSetBundles, AnOptionThatThePpdLacksCostsThePanel)
{
    start("WrongKeys");
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_THAT(set->claimedOptions(), IsEmpty());
    EXPECT_EQ(
        onlyFailure(),
        "panel Test of plug-in WrongKeys is switched off: it wants to set the option "
        "NoSuchOption, which the printer does not have; install the plug-in for this printer");
}

TEST_F(PanelSetBundles, NullPanelsCostOneSentence)
{
    start("NoPanels");
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_EQ(onlyFailure(),
              "a panel of plug-in NoPanels is left out: the plug-in could not make it; install the "
              "plug-in again");
}

TEST_F(PanelSetBundles, APlugInThatThrowsInsteadOfMakingPanelsIsLeftOut)
{
    start("ThrowingPanels");
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_EQ(onlyFailure(),
              "plug-in ThrowingPanels is left out: it failed to make its panels (no memory); ask "
              "its maker for a newer version");
}

TEST_F(PanelSetBundles, APanelThatThrowsFromEverythingCostsOnlyItself)
{
    start("Throwing", PanelSet::Views::None);
    job.ppd->mark(kHalftone, kDither);
    EXPECT_FALSE(set->prepareJob()) << "the job goes on";
    EXPECT_FALSE(set->panels().front()->summary());
    EXPECT_THAT(set->panels(), SizeIs(1)) << "two faults are borne";
    set->windowWillClose(false);
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_THAT(onlyFailure(), HasSubstr("panel Test of plug-in Throwing is switched off"));
    EXPECT_THAT(set->claimedChoices(), ElementsAre(OptionChoice{kHalftone, kDither}));
}

TEST_F(PanelSetBundles, AForeignOptionIsNotMarkedAndThePanelStays)
{
    start("ForeignOption", PanelSet::Views::None);
    EXPECT_TRUE(set->mark(QStringLiteral("CvContrast"), QStringLiteral("1")));
    EXPECT_EQ(job.ppd->markedChoice(QStringLiteral("CvBrightness")), QStringLiteral("0"));
    EXPECT_THAT(set->panels(), SizeIs(1));
}

TEST_F(PanelSetBundles, ForeignOptionsAgainAndAgainCostThePanel)
{
    start("ForeignOption", PanelSet::Views::None);
    for (int level = 1; level <= 3; ++level) {
        set->mark(QStringLiteral("CvContrast"), QString::number(level));
    }
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_EQ(job.ppd->markedChoice(QStringLiteral("CvBrightness")), QStringLiteral("0"));
    EXPECT_THAT(onlyFailure(), HasSubstr("it tried to set the option CvBrightness"));
}

TEST_F(PanelSetBundles, BadPanelsDoNotDisturbAGoodOneThatSetsTheSameOption)
{
    job.ppd->mark(kHalftone, QStringLiteral("Binary"));
    start({QStringLiteral("NullView"), QStringLiteral("ThrowingPanels"),
           QStringLiteral("WrongKeys"), QStringLiteral("Good")});
    EXPECT_THAT(set->failures(), SizeIs(3));
    ASSERT_THAT(set->panels(), SizeIs(1));
    chooseNext();
    EXPECT_FALSE(set->prepareJob());
    EXPECT_THAT(set->claimedChoices(), ElementsAre(OptionChoice{kHalftone, kDither}));
}

} // namespace
