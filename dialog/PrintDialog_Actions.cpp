// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialog.h"

#include "dialog/BarcodeGuard.h"
#include "dialog/ColourBadge.h"
#include "dialog/JobBox.h"
#include "dialog/LabelSizeBox.h"
#include "dialog/MessageBar.h"
#include "dialog/PagePreview.h"
#include "dialog/PanelTabs.h"
#include "dialog/PpdRaster.h"
#include "dialog/Remembered.h"
#include "dialog/SummaryView.h"

#include <QComboBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>

namespace dialog {

void PrintDialog::setDocument(std::shared_ptr<const DocumentPages> document)
{
    mDocument = std::move(document);
    mPreview->setDocument(mDocument);
    setWindowTitle(mDocument ? tr("Print Label - %1").arg(mDocument->title()) : tr("Print Label"));
    jobEdited();
    showSheet();
}

void PrintDialog::setJob(const JobSettings &job)
{
    mJob = job;
    mJobBox->showSettings(job);
    jobEdited();
}

void PrintDialog::wishPrinter(const QString &name)
{
    mWishedPrinter = name;
    listChanged();
}

bool PrintDialog::isSettled() const
{
    return mPreview->isUpToDate() && !mController.printer().name.isEmpty() && !mLoading;
}

void PrintDialog::showFailure(const Failure &failure)
{
    mMessages->show(MessageBar::Kind::Warning, failure.text());
}

void PrintDialog::openDocument()
{
    auto *files = new QFileDialog(this, tr("Open Document"), QString(),
                                  tr("Documents (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)"));
    files->setAttribute(Qt::WA_DeleteOnClose);
    files->setFileMode(QFileDialog::ExistingFile);
    connect(files, &QFileDialog::fileSelected, this, [this](const QString &path) {
        const auto document = DocumentPages::open(path);
        if (document) {
            mMessages->clear();
            setDocument(document.value());
        } else {
            showFailure(document.failure());
        }
    });
    files->open();
}

void PrintDialog::listChanged()
{
    if (mPrinterPicked) {
        return;
    }
    const QString wished = mWishedPrinter.isEmpty() ? Remembered().lastPrinter() : mWishedPrinter;
    std::optional<int> row = mPrinters.rowOf(wished);
    if (!row && mPrinters.hasAnswer()) {
        if (!mWishedPrinter.isEmpty()) {
            showFailure({FailureKind::Printer, mWishedPrinter,
                         tr("there is no such printer; another one is chosen")});
        }
        row = mPrinters.defaultRow();
    }
    if (row) {
        mPrinterPicked = mPrinters.hasAnswer();
        mPrinterBox->setCurrentIndex(*row);
        choosePrinter(*row);
    } else {
        mPrinterBox->setCurrentIndex(-1);
        mPrinterState->setText(tr("Looking for printers..."));
    }
}

void PrintDialog::serverFailed(const Failure &failure)
{
    listChanged();
    // Who prints into a folder needs no server and is not bothered with it.
    if (mWishedPrinter != Printer::folder().name) {
        showFailure(failure);
    }
}

void PrintDialog::choosePrinter(int row)
{
    if (row < 0 || row >= mPrinters.rowCount()) {
        return;
    }
    const Printer &printer = mPrinters.at(row);
    const QString former = mController.printer().name;
    if (former == printer.name && (mController.setup() || mLoading)) {
        return;
    }
    if (!former.isEmpty() && !mPrinters.rowOf(former)) {
        showFailure(
            {FailureKind::Printer, former,
             tr("the printer is not there any more; %1 is chosen now").arg(printer.title())});
    }
    mLoading = true;
    mController.choosePrinter(printer, mJob);
    showPrinterState();
}

void PrintDialog::showSetup()
{
    mLoading = false;
    PrinterSetup &setup = *mController.setup();
    connect(&setup, &PrinterSetup::changed, this, &PrintDialog::showMarks);
    const PpdFile *ppd = setup.ppd();
    mSizeBox->setSizes(ppd ? ppd->sizes() : std::vector<LabelSize>(),
                       ppd ? ppd->customSizes() : std::nullopt);
    mPanels->setSetup(&setup);
    mColours->setSetup(&setup);
    mSummary->setPanels(&setup.panels());
    connect(&setup.panels(), &PanelSet::failed, mSummary, &SummaryView::updateSoon);
    jobEdited();
    showMarks();
    showPrinterState();
    Q_EMIT settled();
}

void PrintDialog::letGoOfSetup()
{
    mPanels->setSetup(nullptr);
    mColours->setSetup(nullptr);
    mSummary->setPanels(nullptr);
}

void PrintDialog::hideSetup()
{
    letGoOfSetup();
    mSizeBox->setSizes({}, {});
    mClash.reset();
    mGuard->clear();
    updatePrintButton();
}

void PrintDialog::setupFailed(const Failure &failure)
{
    mLoading = false;
    showFailure(failure);
    showPrinterState();
    updatePrintButton();
    Q_EMIT settled();
}

void PrintDialog::showPrinterState()
{
    const std::optional<int> row = mPrinters.rowOf(mController.printer().name);
    if (!row) {
        return;
    }
    const Printer &printer = mPrinters.at(*row);
    mPrinterState->setText(mLoading ? tr("Asking for the printer's settings...")
                                    : printer.stateText());
    updatePrintButton();
}

void PrintDialog::jobEdited()
{
    const bool failedBefore = mJobFailure.has_value();
    mJobFailure = mJobBox->takeOver(mJob, mDocument ? mDocument->pageCount() : 0);
    if (mJobFailure) {
        showFailure(*mJobFailure);
    } else if (failedBefore) {
        mMessages->clear();
    }
    if (PrinterSetup *setup = mController.setup()) {
        setup->settings().takeGeneralPart(mJob);
    }
    mPreview->setScaling(mJob.scaling());
    guardCodes();
    updatePrintButton();
}

void PrintDialog::sizePicked()
{
    const std::optional<LabelSize> size = mSizeBox->size();
    PrinterSetup *setup = mController.setup();
    if (!size || !setup) {
        return;
    }
    if (const std::optional<Failure> failure = setup->setLabelSize(*size)) {
        showFailure(*failure);
    }
}

void PrintDialog::choicePicked(const QString &option, const QString &choice)
{
    PrinterSetup *setup = mController.setup();
    if (!setup) {
        return;
    }
    if (const std::optional<Failure> failure = setup->choose({{option, choice}})) {
        showFailure(*failure);
    }
}

void PrintDialog::showMarks()
{
    PrinterSetup &setup = *mController.setup();
    mPanels->showMarks();
    mColours->showMark();
    mSummary->updateSoon();
    if (const std::optional<LabelSize> &size = setup.settings().labelSize()) {
        mSizeBox->setSize(*size);
    }
    showSheet();
    showClash();
}

void PrintDialog::showSheet()
{
    PrinterSetup *setup = mController.setup();
    if (setup && setup->ppd()) {
        mPreview->setSheet(setup->sheet(), dotFormOf(setup->ppd()->file()));
    } else {
        // While nobody knows the label, the page is shown by itself.
        mPreview->setSheet(setup ? setup->sheet() : Sheet());
    }
    guardCodes();
}

void PrintDialog::showClash()
{
    const bool clashedBefore = mClash.has_value();
    mClash = mController.setup()->conflict();
    if (mClash) {
        mMessages->show(MessageBar::Kind::Warning, mClash->text(), tr("Put right"), [this] {
            if (!mController.setup() || !mController.setup()->resolveConflict()) {
                showFailure(*mClash);
            }
        });
    } else if (clashedBefore) {
        mMessages->clear();
    }
    updatePrintButton();
}

void PrintDialog::updatePrintButton()
{
    const std::optional<int> row = mPrinters.rowOf(mController.printer().name);
    const bool accepts = row && mPrinters.at(*row).acceptsJobs;
    const QString objection = objectionOfGuard();
    mPrint->setToolTip(objection);
    mPrint->setEnabled(mDocument && mController.setup() && accepts && !mJobFailure && !mClash
                       && !mController.isPrinting() && objection.isEmpty());
}

void PrintDialog::print()
{
    mMessages->clear();
    setBusy(true);
    mController.print(mDocument);
}

void PrintDialog::printed(const QString &)
{
    Remembered().setLastPrinter(mController.printedOn().name);
    setBusy(false);
    accept();
}

void PrintDialog::jobFailed(const Failure &failure)
{
    setBusy(false);
    showFailure(failure);
}

void PrintDialog::setBusy(bool busy)
{
    mProgress->setValue(0);
    mProgress->setVisible(busy);
    mPrint->setEnabled(!busy);
    if (!busy) {
        updatePrintButton();
    }
}

// Escape stops what is going on in the preview before it closes the window.
void PrintDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !mPreview->stopDots()) {
        QDialog::keyPressEvent(event);
    }
}

void PrintDialog::done(int result)
{
    if (result != Accepted && mController.isPrinting()) {
        // The first Cancel stops the job; the settings stay for another try.
        mController.cancelJob();
        return;
    }
    Remembered().setWindowSize(size());
    letGoOfSetup();
    mController.close(result != Accepted);
    QDialog::done(result);
}

} // namespace dialog
