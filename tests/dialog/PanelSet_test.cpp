// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelSet.h"

#include "dialog/FakePanel.h"
#include "dialog/TestJob.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using dialog::HostedJob;
using dialog::OptionChoice;
using dialog::PanelGuard;
using dialog::PanelSet;
using dialog::PlugIns;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Host = PDEPluginCallback13_v300_;

const QString kHalftone = QStringLiteral("CvHalftonePattern");
const QString kBrightness = QStringLiteral("CvBrightness");
const QString kContrast = QStringLiteral("CvContrast");
const QString kFive = QStringLiteral("5");
const QString kZero = QStringLiteral("0");

/// Marks brightness 5, the default being 0.
void markFive(Host &host)
{
    host.willChangePPDOptionKeyValue(kBrightness, kFive);
}

class PanelSetTest : public testing::Test
{
protected:
    void add(const char *name, std::vector<FakeBehaviour> behaviours)
    {
        plugIns.push_back(FakePlugIn::loaded(QLatin1String(name), std::move(behaviours), calls));
    }
    void start(PanelSet::Views views = PanelSet::Views::Made)
    {
        set = std::make_unique<PanelSet>(std::move(plugIns), job);
        set->start(views);
    }
    QStringList namesOfPanels() const
    {
        QStringList names;
        for (PanelGuard *panel : set->panels()) {
            names << panel->name();
        }
        return names;
    }
    std::string onlyFailure() const
    {
        EXPECT_THAT(set->failures(), SizeIs(1));
        return set->failures().empty() ? std::string()
                                       : set->failures().front().text().toStdString();
    }

    HostedJob job = testJob();
    Calls calls = std::make_shared<QStringList>();
    PlugIns plugIns;
    std::unique_ptr<PanelSet> set;
};

TEST_F(PanelSetTest, AsksEachForOptionsThenViewThenShowsItAndRestoresAllAtTheEnd)
{
    add("A", {{.keys = {kBrightness}}});
    add("B", {{.keys = {kContrast}}});
    start();
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.keys"), QStringLiteral("A.view"),
                            QStringLiteral("A.willShow"), QStringLiteral("B.keys"),
                            QStringLiteral("B.view"), QStringLiteral("B.willShow"),
                            QStringLiteral("A.restore"), QStringLiteral("B.restore")));
    EXPECT_EQ(set->claimedOptions(), (QStringList{kBrightness, kContrast}));
    EXPECT_THAT(set->failures(), IsEmpty());
}

TEST_F(PanelSetTest, WithoutViewsOnlyTheOptionsAreAskedFor)
{
    add("A", {{.keys = {kBrightness}}});
    start(PanelSet::Views::None);
    EXPECT_THAT(*calls, ElementsAre(QStringLiteral("A.keys")));
    EXPECT_EQ(set->panels().front()->view(), nullptr);
}

TEST_F(PanelSetTest, WhatAPanelMarksWhileItIsShownIsMarkedBackAndReportedBeforeItRestores)
{
    add("A", {{.keys = {kBrightness}, .onShow = markFive}});
    start();
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.keys"), QStringLiteral("A.view"),
                            QStringLiteral("A.willShow"), QStringLiteral("A.CvBrightness=5"),
                            QStringLiteral("A.CvBrightness=0"), QStringLiteral("A.restore")));
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), kZero);
    EXPECT_THAT(job.settings->choices(), IsEmpty());
}

TEST_F(PanelSetTest, ChoicesMadeBeforeTheStartSurviveIt)
{
    job.ppd->mark(kBrightness, QStringLiteral("-3"));
    add("A", {{.keys = {kBrightness}, .onShow = markFive}});
    start();
    EXPECT_THAT(set->claimedChoices(),
                ElementsAre(OptionChoice{kBrightness, QStringLiteral("-3")}));
}

TEST_F(PanelSetTest, WhatAPanelMarksWhenAskedForItsOptionsIsMarkedBackWithoutAView)
{
    add("A", {{.keys = {kBrightness}, .onKeys = markFive}});
    start(PanelSet::Views::None);
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.keys"), QStringLiteral("A.CvBrightness=5"),
                            QStringLiteral("A.CvBrightness=0")));
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), kZero);
    EXPECT_THAT(job.settings->choices(), IsEmpty());
}

TEST_F(PanelSetTest, AnOptionWithoutAMarkKeepsWhatItsPanelMarked)
{
    job = testJob("no-default.ppd");
    ASSERT_FALSE(job.ppd->markedChoice(kBrightness));
    add("A", {{.keys = {kBrightness}, .onShow = markFive}});
    start();
    EXPECT_THAT(set->claimedChoices(), ElementsAre(OptionChoice{kBrightness, kFive}));
    EXPECT_EQ(job.settings->choice(kBrightness), kFive);
}

TEST_F(PanelSetTest, AMarkIsToldToEveryPanelOfEveryPlugInTheCallerIncluded)
{
    add("A", {{.keys = {kBrightness}, .onSave = markFive}, {.keys = {kHalftone}}});
    add("B", {{.keys = {kContrast}}});
    start(PanelSet::Views::None);
    QSignalSpy marked(set.get(), &PanelSet::choiceMarked);
    calls->clear();
    set->prepareJob();
    EXPECT_THAT(calls->mid(0, 4),
                ElementsAre(QStringLiteral("A.save"), QStringLiteral("A.CvBrightness=5"),
                            QStringLiteral("A2.CvBrightness=5"),
                            QStringLiteral("B.CvBrightness=5")));
    EXPECT_THAT(marked, SizeIs(1));
    EXPECT_EQ(job.settings->choice(kBrightness), kFive);
}

TEST_F(PanelSetTest, AMarkThatChangesNothingIsToldToNobody)
{
    add("A", {{.keys = {kBrightness}}});
    start(PanelSet::Views::None);
    calls->clear();
    EXPECT_FALSE(set->mark(kBrightness, kZero));
    EXPECT_THAT(*calls, IsEmpty());
}

TEST_F(PanelSetTest, AllPanelsHearOfChangesInTheOrderInWhichTheyWereMade)
{
    const auto follow = [](Host &host, const QString &option, const QString &choice) {
        if (option == kContrast) {
            host.willChangePPDOptionKeyValue(kBrightness, choice);
        }
    };
    add("A", {{.keys = {kBrightness}, .onChange = follow}});
    add("B", {{.keys = {kContrast}}});
    start(PanelSet::Views::None);
    calls->clear();
    EXPECT_TRUE(set->mark(kContrast, kFive));
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.CvContrast=5"), QStringLiteral("B.CvContrast=5"),
                            QStringLiteral("A.CvBrightness=5"),
                            QStringLiteral("B.CvBrightness=5")));
}

TEST_F(PanelSetTest, ChoicesFromOutsideAreToldThenRestored)
{
    add("A", {{.keys = {kBrightness, kContrast}}});
    start(PanelSet::Views::None);
    calls->clear();
    set->apply({{kBrightness, kFive}, {kContrast, kZero}});
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.CvBrightness=5"), QStringLiteral("A.restore")));
}

TEST_F(PanelSetTest, APanelThatCannotRestoreSaysSoAndStays)
{
    add("A", {{.keys = {kBrightness}, .restores = false}});
    start();
    EXPECT_EQ(onlyFailure(), "panel of plug-in A: no restoring");
    EXPECT_THAT(set->panels(), SizeIs(1));
}

TEST_F(PanelSetTest, BeforeAJobAllSaveThenAllAreAskedInOrder)
{
    add("A", {{}});
    add("B", {{}});
    start(PanelSet::Views::None);
    calls->clear();
    EXPECT_FALSE(set->prepareJob());
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.save"), QStringLiteral("B.save"),
                            QStringLiteral("A.shouldPrint"), QStringLiteral("B.shouldPrint")));
}

TEST_F(PanelSetTest, APanelThatSaysNoStopsTheJobWithASentenceThatNamesIt)
{
    add("A", {{.prints = false}});
    add("B", {{}});
    start(PanelSet::Views::None);
    const auto failure = set->prepareJob();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->text(),
              QLatin1String("panel A: it does not let the job start; check its settings"));
    EXPECT_FALSE(calls->contains(QLatin1String("B.shouldPrint")));
}

TEST_F(PanelSetTest, APanelThatCannotSaveStopsTheJobWithItsSentence)
{
    add("A", {{.saves = false}});
    start(PanelSet::Views::None);
    const auto failure = set->prepareJob();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->text(), QLatin1String("panel of plug-in A: no saving"));
    EXPECT_FALSE(calls->contains(QLatin1String("A.shouldPrint")));
}

TEST_F(PanelSetTest, AllPanelsHearHowTheDialogCloses)
{
    add("A", {{}});
    add("B", {{}});
    start(PanelSet::Views::None);
    calls->clear();
    set->windowWillClose(true);
    set->windowWillClose(false);
    EXPECT_THAT(*calls,
                ElementsAre(QStringLiteral("A.cancelled"), QStringLiteral("B.cancelled"),
                            QStringLiteral("A.closed"), QStringLiteral("B.closed")));
}

TEST_F(PanelSetTest, LetsGoOfPanelsThenPlugInsThenHosts)
{
    bool hostThere = false;
    add("A", {{.keys = {kBrightness}, .onEnd = [&](Host &host) {
                   markFive(host);
                   hostThere = host.ppdFile() != nullptr;
               }}});
    start(PanelSet::Views::None);
    const std::weak_ptr<dialog::PpdFile> ppd = job.ppd;
    calls->clear();
    set.reset();
    EXPECT_THAT(*calls, ElementsAre(QStringLiteral("A.gone"), QStringLiteral("A plug-in gone")));
    EXPECT_TRUE(hostThere);
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), kZero) << "too late to mark";
    job = {};
    EXPECT_TRUE(ppd.expired()) << "no host is left";
}

TEST_F(PanelSetTest, PlugInsThatTheDialogKeepsServeTheNextPrinter)
{
    add("A", {{.keys = {kBrightness}}});
    const PlugIns kept = plugIns;
    start(PanelSet::Views::None);
    set.reset();
    plugIns = kept;
    job = testJob("no-bidi.ppd");
    start(PanelSet::Views::None);
    EXPECT_EQ(namesOfPanels(), QStringList{QStringLiteral("A")});
    EXPECT_EQ(calls->count(QStringLiteral("A.keys")), 2);
}

TEST_F(PanelSetTest, APanelThatItsPlugInKeepsLongerStillHasItsHostAndPpdButMarksNothing)
{
    Host *host = nullptr;
    add("A", {{.keys = {kBrightness}, .onKeys = [&](Host &asked) { host = &asked; }}});
    const PlugIns kept = plugIns;
    start(PanelSet::Views::None);
    set.reset();
    ASSERT_NE(host, nullptr);
    markFive(*host);
    host->panelViewDidResize();
    EXPECT_EQ(host->ppdFile(), job.ppd->file());
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), kZero);
}

TEST_F(PanelSetTest, OfTwoPanelsThatClaimOneOptionTheFirstKeepsIt)
{
    add("A", {{.keys = {kBrightness}}});
    add("B", {{.keys = {kContrast, QStringLiteral("cvbrightness")}}});
    start();
    EXPECT_EQ(namesOfPanels(), QStringList{QStringLiteral("A")});
    EXPECT_EQ(set->claimedOptions(), QStringList{kBrightness});
    EXPECT_EQ(onlyFailure(),
              "panel of plug-in B is switched off: it wants to set the option CvBrightness, which "
              "another panel sets already; remove one of the two plug-ins");
}

TEST_F(PanelSetTest, APanelMayNotMarkInItsShowWhatTheNextOneClaims)
{
    add("A", {{.keys = {kContrast}, .onShow = markFive}});
    add("B", {{.keys = {kBrightness}}});
    start();
    EXPECT_FALSE(calls->contains(QStringLiteral("A.CvBrightness=5")));
    EXPECT_THAT(set->panels(), SizeIs(2));
}

TEST_F(PanelSetTest, AnOptionNamedTwiceByOnePanelIsClaimedOnce)
{
    add("A", {{.keys = {kBrightness, kBrightness}}});
    start();
    EXPECT_EQ(set->claimedOptions(), QStringList{kBrightness});
    EXPECT_THAT(set->failures(), IsEmpty());
}

TEST_F(PanelSetTest, WithoutAPpdAPanelThatClaimsNothingStays)
{
    job.ppd = nullptr;
    add("A", {{}});
    add("B", {{.keys = {kBrightness}}});
    start();
    EXPECT_EQ(namesOfPanels(), QStringList{QStringLiteral("A")});
    EXPECT_THAT(set->claimedChoices(), IsEmpty());
    EXPECT_THAT(onlyFailure(), HasSubstr("which the printer does not have"));
}

TEST_F(PanelSetTest, AnotherPanelsOptionIsNotMarked)
{
    add("A", {{.keys = {kBrightness}}});
    add("B", {{.keys = {kContrast}, .onSave = markFive}});
    start(PanelSet::Views::None);
    EXPECT_FALSE(set->prepareJob());
    EXPECT_EQ(job.ppd->markedChoice(kBrightness), kZero);
    EXPECT_THAT(set->panels(), SizeIs(2));
    set->prepareJob();
    set->prepareJob();
    EXPECT_EQ(namesOfPanels(), QStringList{QStringLiteral("A")});
    EXPECT_EQ(onlyFailure(),
              "panel of plug-in B is switched off: it tried to set the option CvBrightness, which "
              "is not its own, its third fault; ask its maker for a newer version");
}

TEST_F(PanelSetTest, OfAPlugInsPanelsTheOneThatIsInTheMiddleOfACallIsBlamed)
{
    add("A", {{.keys = {kContrast}}, {.keys = {kHalftone}, .onSave = markFive}});
    start(PanelSet::Views::None);
    for (int i = 0; i < PanelGuard::kMostFaults; ++i) {
        set->prepareJob();
    }
    EXPECT_EQ(namesOfPanels(), QStringList{QStringLiteral("A")});
    EXPECT_THAT(onlyFailure(), HasSubstr("panel A2 of plug-in A is switched off"));
}

TEST_F(PanelSetTest, WhatADroppedPanelChoseStillGoesWithTheJob)
{
    add("A", {{.keys = {kBrightness}, .onSave = markFive}});
    start();
    set->prepareJob();
    auto *panel = set->panels().front();
    panel->drop(QStringLiteral("why"));
    EXPECT_THAT(set->panels(), IsEmpty());
    EXPECT_THAT(set->claimedChoices(), ElementsAre(OptionChoice{kBrightness, kFive}));
}

TEST_F(PanelSetTest, EachFailureIsSignalledOnce)
{
    add("A", {{.keys = {QStringLiteral("NoSuchOption")}}});
    set = std::make_unique<PanelSet>(std::move(plugIns), job);
    QStringList sentences;
    QObject::connect(set.get(), &PanelSet::failed,
                     [&](const dialog::Failure &failure) { sentences << failure.text(); });
    set->start(PanelSet::Views::Made);
    EXPECT_THAT(sentences, SizeIs(1));
}

TEST_F(PanelSetTest, TheResizeOfAViewReachesTheWindow)
{
    add("A", {{.keys = {kBrightness}, .onSave = [](Host &host) { host.panelViewDidResize(); }}});
    start();
    QSignalSpy resized(set.get(), &PanelSet::viewResized);
    set->prepareJob();
    EXPECT_THAT(resized, SizeIs(1));
}

} // namespace
