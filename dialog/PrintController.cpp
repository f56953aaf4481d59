// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintController.h"

#include "dialog/FolderPrinter.h"

#include <algorithm>

namespace dialog {
namespace {

const QString kPageSize = QStringLiteral("PageSize");
/// The name of any size of the user's own.
const QString kSizeWithoutNumbers = QStringLiteral("Custom");

} // namespace

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
    connect(&mSender, &JobSender::sent, this, [this](int job) { Q_EMIT printed(whereIs(job)); });
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
    mSetup = std::make_unique<PrinterSetup>(mPrinter, std::move(ppd), mJob, mPlugIns, mTicket);
    connect(&mSetup->panels(), &PanelSet::failed, this, &PrintController::complained);
    OptionChoices wishes = wishesFor(mSetup->ppd());
    std::erase_if(wishes, [this](const OptionChoice &wish) {
        const std::optional<Failure> failure = mSetup->choose({wish});
        if (failure) {
            Q_EMIT complained(*failure);
        }
        return failure.has_value();
    });
    mSetup->start(mViews);
    complainOfOtherChoices(wishes);
    Q_EMIT setupReady();
}

OptionChoices PrintController::wishesFor(const PpdFile *ppd) const
{
    OptionChoices wishes;
    const auto add = [&](const QString &option, const QString &choice) {
        const auto sameOption = [&option](const OptionChoice &wish) {
            return wish.option.compare(option, Qt::CaseInsensitive) == 0;
        };
        if (std::none_of(mWishes.begin(), mWishes.end(), sameOption)) {
            wishes.push_back({option, choice});
        }
    };
    if (ppd && mTicket.paperName() && ppd->hasOption(kPageSize)
        && *mTicket.paperName() != kSizeWithoutNumbers) {
        add(kPageSize, *mTicket.paperName());
    }
    if (ppd && mTicket.colourMode() == ColourMode::BlackAndRed) {
        add(kColourOption, kBlackAndRedChoice);
    } else if (ppd && mTicket.colourMode() && ppd->hasOption(kColourOption)) {
        add(kColourOption, kBlackChoice);
    }
    wishes.insert(wishes.end(), mWishes.begin(), mWishes.end());
    return wishes;
}

void PrintController::complainOfOtherChoices(const OptionChoices &wishes)
{
    const QStringList claimed = mSetup->panels().claimedOptions();
    for (const OptionChoice &wish : wishes) {
        if (!claimed.contains(wish.option, Qt::CaseInsensitive)) {
            continue;
        }
        const std::optional<QString> marked = mSetup->ppd()->markedChoice(wish.option);
        if (marked && marked->compare(wish.choice, Qt::CaseInsensitive) != 0) {
            Q_EMIT complained({FailureKind::Settings,
                               wish.option + QStringLiteral("=") + wish.choice,
                               tr("the panel starts with \"%1\"; choose it there")
                                   .arg(mSetup->ppd()->choiceTitle(wish.option, *marked))});
        }
    }
}

void PrintController::dropSetup()
{
    if (mSetup) {
        Q_EMIT setupGoes();
        mSetup.reset();
    }
}

bool PrintController::print(const std::shared_ptr<const DocumentPages> &document)
{
    if (!mSetup || isPrinting()) {
        return false;
    }
    mPrintedOn = mPrinter;
    mSetup->settings().setTitle(document->title());
    if (const std::optional<Failure> failure = mSetup->finish()) {
        Q_EMIT jobFailed(*failure);
        return true;
    }
    const Result<PrintJob> job = jobFor(document);
    if (!job) {
        Q_EMIT jobFailed(job.failure());
        return true;
    }
    return mPrinter.isFolder ? mSender.sendInto(mFolder.output, job.value())
                             : mSender.send(job.value());
}

// A queue gets the pages as they are previewed, where it takes them; else the document itself.
Result<PrintJob> PrintController::jobFor(const std::shared_ptr<const DocumentPages> &document)
{
    ppd_file_t *ppd = mSetup->ppd() ? mSetup->ppd()->file() : nullptr;
    PrintJob job{mPrinter.name, {}, mSetup->settings()};
    job.dots = DotPages::of(document, ppd, mSetup->sheet(), job.settings);
    if (job.dots && !mPrinter.isFolder) {
        const auto raster = RasterDocument::of(*job.dots, ppd, job.settings.copies());
        if (raster) {
            job.document = PrintDocument::fromPages(*raster, document->title());
            return job;
        }
    }
    const Result<PrintableDocument> printable = document->printable();
    if (!printable) {
        return printable.failure();
    }
    job.document = PrintDocument::fromBytes(printable.value().data, printable.value().mimeType,
                                            document->title());
    return job;
}

QString PrintController::whereIs(int job) const
{
    return mPrintedOn.isFolder
        ? tr("Printed to the folder %1").arg(FolderPrinter(mFolder.output).pathOf(job))
        : tr("Sent to %1 as job %2").arg(mPrintedOn.title()).arg(job);
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
