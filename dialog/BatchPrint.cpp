// SPDX-License-Identifier: Apache-2.0
#include "dialog/BatchPrint.h"

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

ExitCode BatchPrint::run(const Printer &printer, const JobSettings &job,
                         const std::shared_ptr<const DocumentPages> &document)
{
    QEventLoop loop;
    connect(&mController, &PrintController::setupFailed, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&mController, &PrintController::jobFailed, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&mController, &PrintController::printed, &loop, &QEventLoop::quit,
            Qt::QueuedConnection);
    connect(&mController, &PrintController::setupReady, &loop, [&] {
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
