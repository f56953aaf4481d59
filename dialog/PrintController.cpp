// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintController.h"

#include "dialog/FolderPrinter.h"

namespace dialog {

PrintController::PrintController(std::shared_ptr<CupsServer> server, PlugIns plugIns, Folder folder,
                                 PanelSet::Views views)
    : mPlugIns(std::move(plugIns))
    , mFolder(std::move(folder))
    , mViews(views)
    , mFetcher(server)
    , mSender(server)
{
    connect(&mFetcher, &PpdFetcher::fetched, this,
            [this](const QString &, const std::shared_ptr<PpdFile> &ppd) { makeSetup(ppd); });
    connect(&mFetcher, &PpdFetcher::failed, this,
            [this](const QString &, const Failure &failure) { Q_EMIT setupFailed(failure); });
    connect(&mSender, &JobSender::progressed, this, &PrintController::progressed);
    connect(&mSender, &JobSender::failed, this, &PrintController::jobFailed);
    connect(&mSender, &JobSender::sent, this, [this](int job) {
        Q_EMIT printed(tr("Sent to %1 as job %2").arg(mPrinter.title()).arg(job));
    });
}

PrintController::~PrintController() = default;

void PrintController::choosePrinter(const Printer &printer, const JobSettings &job)
{
    dropSetup();
    mPrinter = printer;
    mJob = job;
    if (printer.isFolder) {
        mFetcher.cancel();
        chooseFolder();
    } else {
        mFetcher.fetch(printer.name);
    }
}

void PrintController::chooseFolder()
{
    if (mFolder.ppdFile.isEmpty()) {
        makeSetup(nullptr);
        return;
    }
    Result<std::unique_ptr<PpdFile>> ppd = PpdFile::open(mFolder.ppdFile);
    if (ppd) {
        makeSetup(std::move(ppd).value());
    } else {
        Q_EMIT setupFailed(ppd.failure());
    }
}

void PrintController::makeSetup(std::shared_ptr<PpdFile> ppd)
{
    mSetup = std::make_unique<PrinterSetup>(mPrinter, std::move(ppd), mJob, mPlugIns);
    connect(&mSetup->panels(), &PanelSet::failed, this, &PrintController::complained);
    for (const OptionChoice &wish : mWishes) {
        if (const std::optional<Failure> failure = mSetup->choose({wish})) {
            Q_EMIT complained(*failure);
        }
    }
    mSetup->start(mViews);
    Q_EMIT setupReady();
}

void PrintController::dropSetup()
{
    if (mSetup) {
        Q_EMIT setupGoes();
        mSetup.reset();
    }
}

bool PrintController::print(const DocumentPages &document)
{
    if (!mSetup || isPrinting()) {
        return false;
    }
    mSetup->settings().setTitle(document.title());
    if (const std::optional<Failure> failure = mSetup->finish()) {
        Q_EMIT jobFailed(*failure);
        return true;
    }
    const Result<PrintableDocument> printable = document.printable();
    if (!printable) {
        Q_EMIT jobFailed(printable.failure());
        return true;
    }
    const PrintJob job{mPrinter.name,
                       PrintDocument::fromBytes(printable.value().data, printable.value().mimeType,
                                                document.title()),
                       mSetup->settings()};
    if (mPrinter.isFolder) {
        printToFolder(job);
        return true;
    }
    return mSender.send(job);
}

void PrintController::printToFolder(const PrintJob &job)
{
    const Result<FolderJob> done = FolderPrinter(mFolder.output).print(job);
    if (done) {
        Q_EMIT printed(tr("Printed to the folder %1").arg(done.value().path));
    } else {
        Q_EMIT jobFailed(done.failure());
    }
}

void PrintController::close(bool userCancelled)
{
    mFetcher.cancel();
    if (mSetup) {
        mSetup->panels().windowWillClose(userCancelled);
        dropSetup();
    }
}

} // namespace dialog
