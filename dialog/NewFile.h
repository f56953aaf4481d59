// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"

#include <QCoreApplication>
#include <QFile>

#include <optional>

namespace dialog {

/// A file that was not there before, written from beginning to end. One thread at a time.
class NewFile
{
    Q_DECLARE_TR_FUNCTIONS(dialog::NewFile)

public:
    explicit NewFile(const QString &path);

    /// Never opens what is there already.
    std::optional<Failure> open();

    std::optional<Failure> write(const char *bytes, qint64 count);

    /// Brings all of it onto the disk.
    std::optional<Failure> finish();

private:
    Failure failure() const;

    QFile mFile;
};

} // namespace dialog
