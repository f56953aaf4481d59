// SPDX-License-Identifier: Apache-2.0
#include "dialog/DialogRun.h"

#include "dialog/PagePreview.h"
#include "dialog/Terminal.h"

#include <QEventLoop>
#include <QPixmap>
#include <QTimer>

namespace dialog {
namespace {

/// How often the window looks for printers that came or went, in milliseconds.
constexpr int kRefreshInterval = 5000;

/// How long a picture waits for a server that does not answer, in milliseconds.
constexpr int kLongestWait = 30000;

} // namespace

DialogRun::DialogRun(PrintController &controller, PrinterList &printers)
    : mPrinters(printers)
    , mWindow(controller, printers)
{
    QObject::connect(&controller, &PrintController::printed, &mWindow,
                     [](const QString &where) { say(where + u'\n'); });
}

ExitCode DialogRun::show()
{
    mPrinters.setRefreshInterval(kRefreshInterval);
    return mWindow.exec() == QDialog::Accepted ? ExitCode::Done : ExitCode::Cancelled;
}

ExitCode DialogRun::savePicture(const QString &file)
{
    QEventLoop loop;
    QTimer::singleShot(kLongestWait, &loop, &QEventLoop::quit);
    const auto quitWhenShown = [&] {
        if (mWindow.isSettled() && mWindow.hasCheckedCodes()) {
            loop.quit();
        }
    };
    QObject::connect(&mWindow, &PrintDialog::settled, &loop, quitWhenShown, Qt::QueuedConnection);
    mWindow.show();
    QTimer::singleShot(0, &loop, quitWhenShown);
    loop.exec();
    const QPixmap picture = mWindow.grab();
    mWindow.reject();
    if (!picture.save(file)) {
        complain(
            {FailureKind::Folder, file,
             tr("the picture cannot be written; give a file ending in .png in a folder that can "
                "be written to")});
        return ExitCode::Job;
    }
    return ExitCode::Done;
}

} // namespace dialog
