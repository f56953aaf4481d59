// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "loading/Result.h"

#include <QString>

namespace dialog {

/// What went wrong, for the exit code and for the place where the window shows it.
enum class FailureKind
{
    Usage, ///< the command line
    Document, ///< the document cannot be read or shown
    Ppd, ///< the PPD cannot be used
    Settings, ///< a setting of the job has a value that cannot be used
    Server, ///< the print server cannot be reached or broke off
    Printer, ///< there is no such printer, or it takes no jobs
    Job, ///< the job was refused or failed on its way
    Folder, ///< the folder cannot be written to
    Panel, ///< a panel or its bundle
    Barcode, ///< a barcode would not be readable, or cannot be checked
    Cancelled ///< the user stopped it
};

/// A failure for the user. `what` names the thing, `why` is the sentence that says what is wrong
/// with it and what to do; neither ends with a full stop. The command line prints
/// "label-print: what: why".
struct Failure
{
    FailureKind kind = FailureKind::Job;
    QString what;
    QString why;

    QString text() const { return what + QStringLiteral(": ") + why; }
};

/// A value, or the failure that stood in its way.
template <class T> using Result = loading::Result<T, Failure>;

} // namespace dialog
