// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CommandLine.h"
#include "dialog/CupsServer.h"
#include "dialog/DocumentPages.h"
#include "dialog/ExtendedTicket.h"
#include "dialog/PrintController.h"
#include "loading/Refusal.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

namespace dialog {

/// The program from its arguments to its exit code.
class Application
{
    Q_DECLARE_TR_FUNCTIONS(dialog::Application)

public:
    /// Makes the QApplication, too, and runs until the job is done or the dialog is closed.
    static int run(int argc, char **argv);

private:
    explicit Application(const CommandLine &line);

    ExitCode start();
    ExitCode listPrinters();
    ExitCode printAtOnce();
    ExitCode showDialog();

    std::optional<Failure> openDocument();
    std::optional<Failure> openTicket();
    void loadPlugIns();
    void complainLater(const loading::Refusal &refusal);
    PrintController::Folder folder() const;
    QString wishedPrinter() const;
    JobSettings wishedJob() const;
    Result<Printer> findPrinter();

    CommandLine mLine;
    std::shared_ptr<CupsServer> mServer;
    std::shared_ptr<const DocumentPages> mDocument;
    ExtendedTicket mTicket;
    PlugIns mPlugIns;
    std::vector<Failure> mComplaints;
};

} // namespace dialog
