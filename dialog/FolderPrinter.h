// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PrintJob.h"

#include <QCoreApplication>
#include <QString>

namespace dialog {

/// What a job has left in the folder.
struct FolderJob
{
    int number = 0;
    /// The job's own folder and two files in it.
    QString path;
    QString document;
    QString settings;
};

/// Prints into a folder, without any server.
///
/// Each job gets a folder of its own, job-0001 and so on, with the document as it was,
/// settings.plist and the dots of its pages (DotPictures), and one line in jobs.log. The folder
/// appears whole or not at all; several programs may print into the same folder. What is there
/// already is never overwritten.
class FolderPrinter
{
    Q_DECLARE_TR_FUNCTIONS(dialog::FolderPrinter)

public:
    /// The folder is made with the first job when it is not there yet.
    explicit FolderPrinter(QString folder);

    /// The failure is FailureKind::Cancelled when `progress`, which follows the pictures, says no.
    Result<FolderJob> print(
        PrintJob job, const BandsDone &progress = [](int, int) { return true; }) const;

    /// The folder of job `number`.
    QString pathOf(int number) const;

    /// The settings of a job from its settings.plist.
    static Result<JobSettings> readSettings(const QString &path);

private:
    QString mFolder;
};

} // namespace dialog
