// SPDX-License-Identifier: Apache-2.0
#include "dialog/Printer.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using dialog::Printer;

namespace {

QString stateOf(Printer::State state, bool acceptsJobs, const QStringList &reasons = {})
{
    Printer printer;
    printer.state = state;
    printer.acceptsJobs = acceptsJobs;
    printer.stateReasons = reasons;
    return printer.stateText();
}

TEST(Printer, StateIsTextForPeople)
{
    EXPECT_EQ(stateOf(Printer::State::Idle, true), QStringLiteral("ready"));
    EXPECT_EQ(stateOf(Printer::State::Printing, true), QStringLiteral("printing"));
    EXPECT_EQ(stateOf(Printer::State::Stopped, true), QStringLiteral("stopped"));
    EXPECT_EQ(stateOf(Printer::State::Stopped, false),
              QStringLiteral("stopped, not accepting jobs"));
    EXPECT_EQ(stateOf(Printer::State::Idle, false), QStringLiteral("not accepting jobs"));
}

TEST(Printer, ReasonsFollowTheStateWithoutTheirSeverity)
{
    const QStringList reasons{QStringLiteral("paused"), QStringLiteral("cover-open-error"),
                              QStringLiteral("cover-open-report"),
                              QStringLiteral("media-low-warning"), QStringLiteral("cups-other")};
    EXPECT_EQ(stateOf(Printer::State::Stopped, true, reasons),
              QStringLiteral("stopped, cover is open, few labels left"));
    EXPECT_EQ(stateOf(Printer::State::Idle, true, {QStringLiteral("none")}),
              QStringLiteral("ready"));
}

TEST(Printer, TitleIsTheDescriptionOrTheName)
{
    Printer printer;
    printer.name = QStringLiteral("Lab");
    EXPECT_EQ(printer.title(), QStringLiteral("Lab"));
    printer.description = QStringLiteral("Label printer\nin the hall");
    EXPECT_EQ(printer.title(), QStringLiteral("Label printer in the hall"));
    printer.name = QStringLiteral("Lab/draft");
    EXPECT_EQ(printer.title(), QStringLiteral("Label printer in the hall (draft)"));
}

} // namespace
