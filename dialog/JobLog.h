// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PrintJob.h"

#include <QCoreApplication>
#include <QFile>

#include <optional>

namespace dialog {

/// The log of the jobs in a folder: one line of text a job, the oldest first. Open, it keeps other
/// programs that print into the same folder waiting.
class JobLog
{
    Q_DECLARE_TR_FUNCTIONS(dialog::JobLog)

public:
    explicit JobLog(const QString &path);

    std::optional<Failure> open();

    /// Writes the whole line or none of it.
    std::optional<Failure> append(const QString &jobName, const PrintJob &job);

    /// "2024-05-31T12:00:00+02:00 job-0001 "label.pdf" application/pdf 1234 bytes copies=1 ..."
    static QString line(const QString &jobName, const PrintJob &job);

private:
    Failure failure() const;

    QFile mFile;
};

} // namespace dialog
