// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelHost.h"

#include "dialog/JobPageFormat.h"
#include "dialog/JobPrinter.h"
#include "dialog/JobSession.h"
#include "dialog/TestJob.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using dialog::HostedJob;
using dialog::PanelHost;

namespace {

const QString kOption = QStringLiteral("CvBrightness");
const QString kChoice = QStringLiteral("5");

TEST(PanelHost, AnswersWithThePartsOfTheJob)
{
    HostedJob job = testJob();
    job.session = std::make_shared<dialog::JobSession>();
    job.pageFormat = std::make_shared<dialog::JobPageFormat>();
    job.printer = std::make_shared<dialog::JobPrinter>(QStringLiteral("usb://Sample"));
    const PanelHost host(job, nullptr);
    EXPECT_EQ(host.printSession(), job.session.get());
    EXPECT_EQ(host.printSettings(), job.settings.get());
    EXPECT_EQ(host.pageFormat(), job.pageFormat.get());
    EXPECT_EQ(host.PMPrinter(), job.printer.get());
    EXPECT_EQ(host.ppdFile(), job.ppd->file());
}

TEST(PanelHost, AnswersNullForWhatTheJobDoesNotHave)
{
    const PanelHost host(HostedJob(), nullptr);
    EXPECT_EQ(host.printSession(), nullptr);
    EXPECT_EQ(host.printSettings(), nullptr);
    EXPECT_EQ(host.pageFormat(), nullptr);
    EXPECT_EQ(host.PMPrinter(), nullptr);
    EXPECT_EQ(host.ppdFile(), nullptr);
}

TEST(PanelHost, AsksForEachMarkAndIgnoresAMissingChoice)
{
    QStringList asked;
    PanelHost host(
        {}, [&](const QString &option, const QString &choice) { asked << option << choice; });
    host.willChangePPDOptionKeyValue(kOption, {});
    host.willChangePPDOptionKeyValue(kOption, kChoice);
    EXPECT_EQ(asked, (QStringList{kOption, kChoice}));
}

TEST(PanelHost, ClosedAsksForNothingAndStillAnswers)
{
    int asked = 0;
    const HostedJob job = testJob();
    PanelHost host(job, [&](const QString &, const QString &) { ++asked; });
    host.close();
    host.willChangePPDOptionKeyValue(kOption, kChoice);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(host.ppdFile(), job.ppd->file());
}

TEST(PanelHost, KeepsThePpdOpenForAPanelThatKeepsTheHost)
{
    HostedJob job = testJob();
    const std::weak_ptr<dialog::PpdFile> ppd = job.ppd;
    auto host = std::make_unique<PanelHost>(job, nullptr);
    job = {};
    EXPECT_FALSE(ppd.expired());
    host.reset();
    EXPECT_TRUE(ppd.expired());
}

TEST(PanelHost, OffersTheResizeOfTheViewAndNoOtherOptionalOperation)
{
    PanelHost host({}, nullptr);
    QSignalSpy resized(&host, &PanelHost::viewResized);
    EXPECT_TRUE(host.respondsToSelector(QLatin1String("panelViewDidResize")));
    EXPECT_FALSE(host.respondsToSelector(QLatin1String("panelviewdidresize")));
    EXPECT_FALSE(host.respondsToSelector(QLatin1String("somethingNewer")));
    host.panelViewDidResize();
    EXPECT_EQ(resized.count(), 1);
}

} // namespace
