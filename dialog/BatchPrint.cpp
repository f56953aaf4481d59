// SPDX-License-Identifier: Apache-2.0
#include "dialog/BatchPrint.h"

#include "dialog/BarcodeGuard.h"
#include "dialog/CodeWarning.h"
#include "dialog/DotPlacement.h"
#include "dialog/PrintedPages.h"
#include "dialog/Terminal.h"

#include <QCoreApplication>
#include <QEventLoop>

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
                  : printed ? tr("the printer is not sent dots; choose fit or actual")
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
        if (strict) {
            fail({FailureKind::Barcode, QStringLiteral("--strict"),
                  tr("the printer's dots are not known, so barcodes cannot be checked; leave out "
                     "--strict or choose another printer")});
        }
        return;
    }
    PageGuard guard;
    for (const int page : pagesFrom(setup.settings().pages(), document->pageCount(), 0)) {
        printed->page = page;
        const Result<std::vector<LostCode>> lost = guard.lostCodes(*printed);
        if (!lost) {
            // Whatever it was, the codes of the page are not checked.
            object({FailureKind::Barcode, lost.failure().what, lost.failure().why}, strict);
            if (lost.failure().kind == FailureKind::Barcode) {
                return;
            }
            continue;
        }
        for (const LostCode &code : lost.value()) {
            object(CodeWarning::failureOf(code), strict);
        }
    }
}

void BatchPrint::object(const Failure &failure, bool strict)
{
    complain(failure);
    if (strict && !mFailure) {
        mFailure = failure;
    }
}

ExitCode BatchPrint::run(const Printer &printer, const JobSettings &job,
                         const std::shared_ptr<const DocumentPages> &document, bool strict)
{
    QEventLoop loop;
    const auto quit = [&loop] {
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    };
    connect(&mController, &PrintController::setupFailed, &loop, quit);
    connect(&mController, &PrintController::jobFailed, &loop, quit);
    connect(&mController, &PrintController::printed, &loop, [&] {
        // A warning is no reason to let the printer wait.
        if (!strict) {
            checkCodes(document, strict);
        }
        quit();
    });
    connect(&mController, &PrintController::setupReady, &loop, [&] {
        checkScaling(document);
        if (!mFailure && strict) {
            checkCodes(document, strict);
        }
        if (mFailure) {
            quit();
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
