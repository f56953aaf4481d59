// SPDX-License-Identifier: Apache-2.0
#include "DialogWindow.h"
#include "FakePanel.h"
#include "TestJob.h"
#include "dialog/ExtendedTicket.h"
#include "dialog/JobPageFormat.h"
#include "dialog/MessageBar.h"
#include "dialog/PrinterSetup.h"
#include "ppd/ExtendedTicket.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace dialog;
using testing::HasSubstr;

namespace {

const QString kColour = QStringLiteral("CvMultiColor");
const QString kBlack = QStringLiteral("CvMultiColorMonochrome");
const QString kBlackRed = QStringLiteral("CvMultiColorBlackRed");
const QString kPageSizeOption = QStringLiteral("PageSize");

/// What the settings hold for panels.
ExtendedTicket ticketIn(const PMPrintSettings &settings)
{
    const auto bytes = settings.value(ExtendedTicketKey);
    EXPECT_TRUE(bytes);
    const auto ticket = ExtendedTicket::read(bytes.value_or(QByteArray()), QStringLiteral("held"));
    EXPECT_TRUE(ticket);
    return ticket ? ticket.value() : ExtendedTicket();
}

ExtendedTicket given(const char *paper, ColourMode mode)
{
    ExtendedTicket ticket =
        ExtendedTicket::read("<plist><dict><key>KtOther</key><string>kept</string></dict></plist>",
                             QStringLiteral("given"))
            .value();
    ticket.setPaperName(QLatin1String(paper));
    ticket.setColourMode(mode);
    return ticket;
}

class TicketOfTheJob : public DialogWindow
{
protected:
    std::unique_ptr<PrinterSetup> make(const PlugIns &plugIns = graphicsPlugIn(),
                                       const QString &ppd = kSamplePpd)
    {
        auto opened = PpdFile::open(ppd);
        EXPECT_TRUE(opened);
        return std::make_unique<PrinterSetup>(Printer::folder(), std::move(opened).value(),
                                              JobSettings(), plugIns);
    }
    /// The setup of a job without a window that starts with `ticket`.
    PrinterSetup *setUp(const ExtendedTicket &ticket, const OptionChoices &wishes = {},
                        PanelSet::Views views = PanelSet::Views::None)
    {
        controller = std::make_unique<PrintController>(
            cups, graphicsPlugIn(), PrintController::Folder{kSamplePpd, out()}, views);
        complaints = std::make_unique<QSignalSpy>(controller.get(), &PrintController::complained);
        controller->setTicket(ticket);
        controller->setWishes(wishes);
        controller->choosePrinter(Printer::folder(), {});
        return controller->setup();
    }

    std::unique_ptr<QSignalSpy> complaints;
};

TEST_F(TicketOfTheJob, StandsUnderTheKeyThatPanelsAskFor)
{
    EXPECT_EQ(ExtendedTicket::kKey, ExtendedTicketKey);
    EXPECT_EQ(ExtendedTicketKey, QLatin1String("org.labelprint.print.PrintSettingsTicket.KtE5"));
}

TEST_F(TicketOfTheJob, IsThereBeforeAnyPanelIsMade)
{
    std::optional<QString> paper;
    std::optional<ColourMode> colours;
    FakeBehaviour panel;
    panel.onKeys = [&](PDEPluginCallback13_v300_ &host) {
        paper = ticketIn(*host.printSettings()).paperName();
        colours = ticketIn(*host.printSettings()).colourMode();
    };
    auto setup = make(
        {FakePlugIn::loaded(QStringLiteral("Fake"), {panel}, std::make_shared<QStringList>())});
    setup->start(PanelSet::Views::None);
    EXPECT_EQ(paper, QStringLiteral("DC62x100"));
    EXPECT_EQ(colours, ColourMode::Black);
}

TEST_F(TicketOfTheJob, FollowsAChoiceBeforePanelsAreToldOfIt)
{
    QStringList told;
    FakeBehaviour panel;
    panel.onChange = [&](PDEPluginCallback13_v300_ &host, const QString &option, const QString &) {
        const ExtendedTicket ticket = ticketIn(*host.printSettings());
        const auto paper = host.pageFormat()->paper().value->ppdPaperName().value;
        told << option + u' ' + *ticket.paperName() + u' ' + *paper
                + (ticket.colourMode() == ColourMode::BlackAndRed ? QStringLiteral(" red")
                                                                  : QStringLiteral(" black"));
    };
    auto setup = make(
        {FakePlugIn::loaded(QStringLiteral("Fake"), {panel}, std::make_shared<QStringList>())});
    setup->start(PanelSet::Views::None);
    ASSERT_FALSE(setup->choose({{kPageSizeOption, QStringLiteral("DC17x54")}}));
    ASSERT_FALSE(setup->choose({{kColour, kBlackRed}}));
    EXPECT_EQ(told,
              (QStringList{QStringLiteral("PageSize DC17x54 DC17x54 black"),
                           QStringLiteral("CvMultiColor DC17x54 DC17x54 red")}));
}

TEST_F(TicketOfTheJob, ASizeOfTheUsersOwnIsCalledAsThePpdCallsIt)
{
    auto setup = make();
    setup->start(PanelSet::Views::None);
    ASSERT_FALSE(setup->setLabelSize(LabelSize::custom(40, 30)));
    EXPECT_EQ(ticketIn(setup->settings()).paperName(), QStringLiteral("Custom"));
}

TEST_F(TicketOfTheJob, FollowsTheControlsOfTheWindow)
{
    open();
    const auto held = [this] { return ticketIn(controller->setup()->settings()); };
    EXPECT_EQ(held().colourMode(), ColourMode::Black);
    pick("mColorPUBtn", 1);
    EXPECT_EQ(held().colourMode(), ColourMode::BlackAndRed);
    pick("labelSize", 0);
    EXPECT_EQ(held().paperName(), QStringLiteral("DC17x54"));
}

TEST_F(TicketOfTheJob, APanelWithoutAPopUpPrintsTheColoursOfTheTicket)
{
    HostedJob job = testJob();
    auto format = std::make_shared<JobPageFormat>();
    format->setSize(LabelSize::custom(60, 100));
    job.pageFormat = format;
    // The mark says black, and nobody but the ticket says otherwise.
    job.settings->setValue(ExtendedTicketKey, given("DC62x100", ColourMode::BlackAndRed).xml());
    PanelSet set(graphicsPlugIn(), job);
    set.start(PanelSet::Views::None);
    ASSERT_EQ(job.ppd->markedChoice(kColour), kBlack);
    ASSERT_FALSE(set.prepareJob());
    EXPECT_EQ(job.ppd->markedChoice(kColour), kBlackRed);
}

TEST_F(TicketOfTheJob, APanelWithoutAPopUpPrintsWhatTheUserChoseLast)
{
    PrinterSetup *setup = setUp(given("DC62x100", ColourMode::BlackAndRed));
    ASSERT_FALSE(setup->choose({{kColour, kBlack}}));
    ASSERT_FALSE(setup->finish());
    EXPECT_EQ(setup->settings().choice(kColour), kBlack);
    ASSERT_FALSE(setup->choose({{kColour, kBlackRed}}));
    ASSERT_FALSE(setup->finish());
    EXPECT_EQ(setup->settings().choice(kColour), kBlackRed);
}

TEST_F(TicketOfTheJob, AGivenTicketIsWhatTheJobStartsWith)
{
    PrinterSetup *setup = setUp(given("DC17x54", ColourMode::BlackAndRed));
    EXPECT_EQ(complaints->count(), 0);
    EXPECT_EQ(setup->settings().labelSize()->name, QStringLiteral("DC17x54"));
    EXPECT_EQ(setup->ppd()->markedChoice(kColour), kBlackRed);
    ASSERT_FALSE(setup->finish());
    EXPECT_EQ(setup->settings().choice(kColour), kBlackRed);
    EXPECT_THAT(ticketIn(setup->settings()).xml().toStdString(),
                HasSubstr("<key>KtOther</key><string>kept</string>"));
}

TEST_F(TicketOfTheJob, AWishByNameGoesBeforeTheTicket)
{
    PrinterSetup *setup = setUp(
        given("DC17x54", ColourMode::BlackAndRed),
        {{QStringLiteral("cvmulticolor"), kBlack}, {kPageSizeOption, QStringLiteral("DC62x100")}});
    EXPECT_EQ(complaints->count(), 0);
    EXPECT_EQ(ticketIn(setup->settings()).colourMode(), ColourMode::Black);
    EXPECT_EQ(ticketIn(setup->settings()).paperName(), QStringLiteral("DC62x100"));
    ASSERT_FALSE(setup->finish());
    EXPECT_EQ(setup->settings().choice(kColour), kBlack);
}

TEST_F(TicketOfTheJob, ALabelThatThePrinterDoesNotHaveIsASentence)
{
    PrinterSetup *setup = setUp(given("DC99x99", ColourMode::Black));
    ASSERT_EQ(complaints->count(), 1);
    EXPECT_THAT(complaints->at(0).at(0).value<Failure>().text().toStdString(),
                HasSubstr("DC99x99"));
    EXPECT_EQ(ticketIn(setup->settings()).paperName(), QStringLiteral("DC62x100"));
}

TEST_F(TicketOfTheJob, TheWindowSaysWhereAPanelStartsWithOtherColours)
{
    PrinterSetup *setup =
        setUp(given("DC62x100", ColourMode::BlackAndRed), {}, PanelSet::Views::Made);
    ASSERT_EQ(complaints->count(), 1);
    EXPECT_EQ(complaints->at(0).at(0).value<Failure>().text(),
              QStringLiteral("CvMultiColor=CvMultiColorBlackRed: the panel starts with "
                             "\"Monochrome\"; choose it there"));
    EXPECT_EQ(ticketIn(setup->settings()).colourMode(), ColourMode::Black);
}

TEST_F(TicketOfTheJob, EachPrinterStartsWithTheGivenTicketAgain)
{
    setUp(given("DC17x54", ColourMode::BlackAndRed));
    ASSERT_FALSE(controller->setup()->choose({{kColour, kBlack}}));
    controller->choosePrinter(Printer::folder(), {});
    EXPECT_EQ(ticketIn(controller->setup()->settings()).colourMode(), ColourMode::BlackAndRed);
}

TEST_F(TicketOfTheJob, APpdWithoutColoursOrSizesLeavesTheTicketAsItIs)
{
    auto opened = PpdFile::open(testPpd("no-colour.ppd"));
    ASSERT_TRUE(opened);
    PrinterSetup setup(Printer::folder(), std::move(opened).value(), {}, {},
                       given("DC17x54", ColourMode::BlackAndRed));
    EXPECT_EQ(ticketIn(setup.settings()).colourMode(), ColourMode::BlackAndRed);
    PrinterSetup general(Printer::folder(), nullptr, {}, {}, given("X", ColourMode::BlackAndRed));
    EXPECT_EQ(ticketIn(general.settings()).paperName(), QStringLiteral("X"));
    EXPECT_EQ(ticketIn(general.settings()).colourMode(), ColourMode::BlackAndRed);
}

} // namespace
