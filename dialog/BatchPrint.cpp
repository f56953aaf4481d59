// SPDX-License-Identifier: Apache-2.0
#include "dialog/BatchPrint.h"

#include "dialog/BarcodeGuard.h"
#include "dialog/CodeWarning.h"
#include "dialog/DotPlacement.h"
#include "dialog/PrintedPages.h"
#include "dialog/Terminal.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <algorithm>
#include <iterator>

namespace dialog {

BatchPrint::BatchPrint(PrintController &controller)
    : mController(controller)
{
    connect(&controller, &PrintController::complained, this, &BatchPrint::complained);
    connect(&controller, &PrintController::setupFailed, this, &BatchPrint::fail);
    connect(&controller, &PrintController::jobFailed, this, &BatchPrint::fail);
    connect(&controller, &PrintController::printed, this,
            [](const QString &where) { say(where + u'\n'); });
}

void BatchPrint::complained(const Failure &failure)
{
    complain(failure);
    // A panel that fails costs itself, not the job; anything else was asked for and cannot be had.
    if (failure.kind != FailureKind::Panel && !mFailure) {
        mFailure = failure;
    }
}

void BatchPrint::fail(const Failure &failure)
{
    complain(failure);
    mFailure = failure;
}

void BatchPrint::checkScaling(const std::shared_ptr<const DocumentPages> &document)
{
    PrinterSetup &setup = *mController.setup();
    if (setup.settings().scaling() != Scaling::WholeDots) {
        return;
    }
    const std::optional<PrintedPage> printed = printedPageOf(setup, document);
    if (!printed || !printed->mayHaveWholeDots) {
        fail({FailureKind::Settings, QStringLiteral("--scaling whole-dots"),
              document->pixelSize(0).isEmpty()
                  ? tr("the document has no pixels of its own; choose fit or actual")
                  : tr("the printer's dots are not known; choose fit or actual")});
    } else if (placeOnDots(*document, 0, printed->sheet, Scaling::WholeDots, printed->form)
                   .dotsOfPixel.isEmpty()) {
        complain({FailureKind::Settings, QStringLiteral("--scaling whole-dots"),
                  tr("the picture has more pixels than the label has dots; it is fitted to the "
                     "label")});
    }
}

void BatchPrint::checkCodes(const std::shared_ptr<const DocumentPages> &document, bool strict)
{
    PrinterSetup &setup = *mController.setup();
    std::optional<PrintedPage> printed = printedPageOf(setup, document);
    if (!printed) {
        return;
    }
    PageGuard guard;
    for (const int page : pagesFrom(setup.settings().pages(), document->pageCount(), 0)) {
        printed->page = page;
        const Result<std::vector<LostCode>> lost = guard.lostCodes(*printed);
        std::vector<Failure> failures;
        if (lost) {
            std::transform(lost.value().begin(), lost.value().end(), std::back_inserter(failures),
                           CodeWarning::failureOf);
        } else if (lost.failure().kind == FailureKind::Barcode) {
            failures.push_back(lost.failure());
        }
        for (const Failure &failure : failures) {
            complain(failure);
            if (strict && !mFailure) {
                mFailure = failure;
            }
        }
        if (!lost && lost.failure().kind == FailureKind::Barcode) {
            return;
        }
    }
}

ExitCode BatchPrint::run(const Printer &printer, const JobSettings &job,
                         const std::shared_ptr<const DocumentPages> &document, bool strict)
{
    QEventLoop loop;
    connect(&mController, &PrintController::setupFailed, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&mController, &PrintController::jobFailed, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&mController, &PrintController::printed, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&mController, &PrintController::setupReady, &loop, [&] {
        checkScaling(document);
        if (!mFailure) {
            checkCodes(document, strict);
        }
        if (mFailure) {
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
        } else {
            mController.print(document);
        }
    });
    // Queued, because a folder answers before the loop runs.
    QMetaObject::invokeMethod(
        &loop, [&] { mController.choosePrinter(printer, job); }, Qt::QueuedConnection);
    loop.exec();
    mController.close(mFailure.has_value());
    return mFailure ? exitCodeOf(mFailure->kind) : ExitCode::Done;
}

} // namespace dialog
