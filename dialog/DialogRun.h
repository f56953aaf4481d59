// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CommandLine.h"
#include "dialog/PrintDialog.h"

namespace dialog {

/// Shows the window until it is closed, or as long as it takes to picture it.
class DialogRun
{
    Q_DECLARE_TR_FUNCTIONS(dialog::DialogRun)

public:
    /// Both outlive this.
    DialogRun(PrintController &controller, PrinterList &printers);

    PrintDialog &window() { return mWindow; }

    /// Runs the application's event loop; says on the terminal where the job went.
    ExitCode show();

    /// Saves the window as it looks once the printer's settings and the page are there.
    ExitCode savePicture(const QString &file);

private:
    PrinterList &mPrinters;
    PrintDialog mWindow;
};

} // namespace dialog
