// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/ExtendedTicket.h"
#include "dialog/Failure.h"
#include "dialog/JobPageFormat.h"
#include "dialog/JobSettings.h"
#include "dialog/PanelSet.h"
#include "dialog/PpdFile.h"
#include "dialog/Printer.h"
#include "dialog/SheetLayout.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace dialog {

/// One chosen printer while a job for it is set up: its PPD with the marks, the job's settings and
/// the panels.
///
/// Order of calls: choose() for what is wished from the start, then start(), then the user's
/// changes, then finish() for each job. The interface thread only.
class PrinterSetup : public QObject
{
    Q_OBJECT
public:
    /// `ppd` may be null: the job then has its general settings only. Takes title, copies, pages
    /// and scaling over from `job`. The settings hold `ticket` for the panels from now on, with the
    /// label and the colour mode that are marked.
    PrinterSetup(const Printer &printer, std::shared_ptr<PpdFile> ppd, const JobSettings &job,
                 const PlugIns &plugIns, const ExtendedTicket &ticket = {});

    const Printer &printer() const { return mPrinter; }

    /// Null when the printer has none.
    const PpdFile *ppd() const { return mJob.ppd.get(); }
    JobSettings &settings() { return *mJob.settings; }
    PanelSet &panels() { return mPanels; }

    /// Chooses for options by keyword; the first pair that the PPD does not know is the failure. An
    /// option that the PPD does not have is taken as a general one of the print system when the
    /// printer has no PPD.
    std::optional<Failure> choose(const OptionChoices &choices);

    /// Makes the panels and brings them to agree with what is chosen. With views, what a panel
    /// shows in spite of that is chosen then.
    void start(PanelSet::Views views);

    /// The label with its margins; without a size while nobody knows it.
    Sheet sheet() const;

    std::optional<Failure> setLabelSize(const LabelSize &size);

    /// The options of the PPD that no panel claims.
    QStringList unclaimedOptions() const;

    /// One sentence on choices that cannot be had together; nothing when all is well.
    std::optional<Failure> conflict() const;

    /// Marks what libcups proposes so that nothing clashes any more; false when it finds no way.
    bool resolveConflict();

    /// Asks the panels and brings every marked choice into the settings: what is printed is what is
    /// marked.
    std::optional<Failure> finish();

Q_SIGNALS:
    /// A choice is marked, by a panel or by the dialog, or the label size is another one.
    void changed();

private:
    std::optional<Failure> chooseOne(const OptionChoice &choice);
    void followMarks();
    void writeTicket();

    Printer mPrinter;
    std::shared_ptr<JobPageFormat> mPageFormat;
    HostedJob mJob;
    ExtendedTicket mTicket;
    PanelSet mPanels;
    /// What the user, or the command line, asked for last: a way out of a clash keeps it.
    OptionChoice mLatest;
};

} // namespace dialog
