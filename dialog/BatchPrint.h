// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/CommandLine.h"
#include "dialog/PrintController.h"

namespace dialog {

/// Prints one document without a dialog and says on the terminal what became of it.
class BatchPrint : public QObject
{
    Q_OBJECT
public:
    /// `controller` outlives this.
    explicit BatchPrint(PrintController &controller);

    /// Runs the application's event loop until the job is handed over or has failed.
    /// A code of the document that nobody would read is a warning, once the job is handed over. In
    /// `strict` runs codes are checked before that, and such a code, or one that cannot be checked,
    /// stands in the way of the job.
    ExitCode run(const Printer &printer, const JobSettings &job,
                 const std::shared_ptr<const DocumentPages> &document, bool strict = false);

private:
    void complained(const Failure &failure);
    void fail(const Failure &failure);
    void checkScaling(const std::shared_ptr<const DocumentPages> &document);
    void checkCodes(const std::shared_ptr<const DocumentPages> &document, bool strict);
    void object(const Failure &failure, bool strict);

    PrintController &mController;
    /// The first thing that stands in the way of the job.
    std::optional<Failure> mFailure;
};

} // namespace dialog
