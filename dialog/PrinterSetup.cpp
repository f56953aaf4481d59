// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrinterSetup.h"

#include "dialog/JobPrinter.h"
#include "dialog/JobSession.h"

namespace dialog {
namespace {

const QString kPageSize = QStringLiteral("PageSize");
const QString kPageRegion = QStringLiteral("PageRegion");
const LabelSize kUnknownLabel = LabelSize{QString(), QString(), 175.75, 283.46};

std::shared_ptr<JobSettings> settingsFor(const JobSettings &job)
{
    auto settings = std::make_shared<JobSettings>();
    settings->takeGeneralPart(job);
    return settings;
}

} // namespace

PrinterSetup::PrinterSetup(const Printer &printer, std::shared_ptr<PpdFile> ppd,
                           const JobSettings &job, const PlugIns &plugIns,
                           const ExtendedTicket &ticket)
    : mPrinter(printer)
    , mPageFormat(std::make_shared<JobPageFormat>())
    , mJob{std::move(ppd), settingsFor(job), std::make_shared<JobSession>(), mPageFormat,
           std::make_shared<JobPrinter>(printer.deviceUri)}
    , mTicket(ticket)
    , mPanels(plugIns, mJob)
{
    followMarks();
    connect(&mPanels, &PanelSet::marked, this, &PrinterSetup::followMarks);
    connect(&mPanels, &PanelSet::choiceMarked, this,
            [this](const QString &option, const QString &choice) {
                mLatest = {option, choice};
                Q_EMIT changed();
            });
}

void PrinterSetup::followMarks()
{
    if (ppd()) {
        settings().setLabelSize(ppd()->markedSize());
    }
    // Panels take a job without any paper for a monochrome one, so an unknown label is a nameless
    // one.
    mPageFormat->setSize(settings().labelSize().value_or(kUnknownLabel));
    writeTicket();
}

void PrinterSetup::writeTicket()
{
    const std::optional<LabelSize> &size = settings().labelSize();
    if (size && !size->name.isEmpty()) {
        mTicket.setPaperName(size->name);
    }
    if (ppd() && ppd()->hasOption(kColourOption)) {
        mTicket.setColourMode(colourModeOf(ppd()->markedChoice(kColourOption)));
    }
    settings().setValue(ExtendedTicket::kKey, mTicket.xml());
}

std::optional<Failure> PrinterSetup::choose(const OptionChoices &choices)
{
    for (const OptionChoice &choice : choices) {
        if (std::optional<Failure> failure = chooseOne(choice)) {
            return failure;
        }
    }
    return {};
}

std::optional<Failure> PrinterSetup::chooseOne(const OptionChoice &choice)
{
    if (!ppd()) {
        settings().setChoice(choice.option, choice.choice);
        return {};
    }
    if (std::optional<Failure> failure = ppd()->check(choice.option, choice.choice)) {
        return failure;
    }
    if (mPanels.mark(choice.option, choice.choice)) {
        return {};
    }
    // Another size of the user's own is the same record of the PPD, so nothing was reported.
    Q_EMIT changed();
    return {};
}

void PrinterSetup::start(PanelSet::Views views)
{
    mPanels.start(views);
    if (views == PanelSet::Views::Made) {
        // A panel may print what its controls show, not what was marked: so that is what counts
        // from the start. Its objections wait for the job.
        mPanels.prepareJob();
    }
    followMarks();
}

Sheet PrinterSetup::sheet() const
{
    const std::optional<LabelSize> &size = mJob.settings->labelSize();
    if (!size || !size->isKnown()) {
        return {};
    }
    return {QSizeF(size->width, size->height), ppd() ? ppd()->margins(*size) : QMarginsF()};
}

std::optional<Failure> PrinterSetup::setLabelSize(const LabelSize &size)
{
    if (!ppd()) {
        settings().setLabelSize(size);
        followMarks();
        Q_EMIT changed();
        return {};
    }
    return chooseOne({kPageSize, size.pageSizeChoice()});
}

QStringList PrinterSetup::unclaimedOptions() const
{
    QStringList options;
    if (ppd()) {
        const QStringList claimed = mPanels.claimedOptions();
        for (const QString &option : ppd()->options()) {
            if (!claimed.contains(option) && option != kPageSize && option != kPageRegion) {
                options << option;
            }
        }
    }
    return options;
}

std::optional<Failure> PrinterSetup::conflict() const
{
    if (!ppd()) {
        return {};
    }
    const std::vector<PpdConflict> clashes = ppd()->conflicts();
    if (clashes.size() < 2) {
        return {};
    }
    const auto named = [](const PpdConflict &clash) {
        return tr("%1 \"%2\"", "an option and its choice")
            .arg(clash.optionTitle, clash.choiceTitle);
    };
    return Failure{
        FailureKind::Settings, named(clashes[0]),
        tr("cannot be had together with %1; change one of the two").arg(named(clashes[1]))};
}

bool PrinterSetup::resolveConflict()
{
    if (!ppd()) {
        return false;
    }
    const std::optional<OptionChoices> way = ppd()->resolution(mLatest.option, mLatest.choice);
    if (!way) {
        return false;
    }
    mPanels.apply(*way);
    return !conflict();
}

std::optional<Failure> PrinterSetup::finish()
{
    if (std::optional<Failure> failure = mPanels.prepareJob()) {
        return failure;
    }
    if (std::optional<Failure> failure = conflict()) {
        return failure;
    }
    if (ppd()) {
        QStringList options = mPanels.claimedOptions() + unclaimedOptions();
        for (const QString &option : std::as_const(options)) {
            if (const std::optional<QString> choice = ppd()->markedChoice(option)) {
                settings().setChoice(option, *choice);
            }
        }
    }
    return {};
}

} // namespace dialog
