// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CupsServer.h"
#include "dialog/DocumentPages.h"
#include "dialog/JobSender.h"
#include "dialog/PpdFetcher.h"
#include "dialog/PrinterSetup.h"

#include <QObject>

#include <memory>

namespace dialog {

/// Turns a printer into a setup with panels, and a setup into a job. With and without a window.
///
/// The interface thread only; nothing here waits for the network.
class PrintController : public QObject
{
    Q_OBJECT
public:
    struct Folder
    {
        /// The PPD that stands for the folder's printer; empty gives general settings only.
        QString ppdFile;
        /// Where its jobs go.
        QString output;
    };

    PrintController(std::shared_ptr<CupsServer> server, PlugIns plugIns, Folder folder,
                    PanelSet::Views views);
    ~PrintController() override;

    /// Choices to start every printer with, as far as it has them.
    void setWishes(const OptionChoices &wishes) { mWishes = wishes; }

    /// The ticket to start every printer with. Its label and colour mode are wishes, too; choices
    /// wished for by name go before them.
    void setTicket(const ExtendedTicket &ticket) { mTicket = ticket; }

    /// Makes a setup for `printer`; `job` gives title, copies, pages and scaling. setupReady or
    /// setupFailed follows, for a queue after the server has answered. The setup before it is gone
    /// then.
    void choosePrinter(const Printer &printer, const JobSettings &job);

    /// The chosen printer, also while its setup is not ready yet.
    const Printer &printer() const { return mPrinter; }

    /// The printer of the latest job, whatever was chosen since.
    const Printer &printedOn() const { return mPrintedOn; }

    /// Null while there is none.
    PrinterSetup *setup() const { return mSetup.get(); }

    /// Prints `document` with the setup; printed or jobFailed follows. False when a job is under
    /// way or there is no setup.
    bool print(const std::shared_ptr<const DocumentPages> &document);
    bool isPrinting() const { return mSender.isBusy(); }
    void cancelJob() { mSender.cancel(); }

    /// The dialog is closing: tells the panels and lets go of the setup.
    void close(bool userCancelled);

Q_SIGNALS:
    /// Whoever shows something of the setup lets go of it now.
    void setupGoes();
    void setupReady();
    void setupFailed(const dialog::Failure &failure);
    /// A wish, or a panel, that could not be had; the setup is made all the same.
    void complained(const dialog::Failure &failure);

    /// How much of rendering and sending is done.
    void progressed(qint64 done, qint64 total);
    /// `where` is a sentence for the user: which printer or which folder has the job.
    void printed(const QString &where);
    void jobFailed(const dialog::Failure &failure);

private:
    void chooseFolder();
    void makeSetup(std::shared_ptr<PpdFile> ppd);
    OptionChoices wishesFor(const PpdFile *ppd) const;
    void complainOfOtherChoices(const OptionChoices &wishes);
    void dropSetup();
    Result<PrintJob> jobFor(const std::shared_ptr<const DocumentPages> &document);
    QString whereIs(int job) const;

    PlugIns mPlugIns;
    Folder mFolder;
    PanelSet::Views mViews;
    OptionChoices mWishes;
    ExtendedTicket mTicket;
    Printer mPrinter;
    /// The one that has, or gets, the latest job.
    Printer mPrintedOn;
    JobSettings mJob;
    PpdFetcher mFetcher;
    JobSender mSender;
    std::unique_ptr<PrinterSetup> mSetup;
};

} // namespace dialog
