// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSettings>
#include <QSize>
#include <QString>

namespace dialog {

/// What the dialog keeps from one run to the next, in the user's configuration folder.
class Remembered
{
public:
    Remembered();

    /// The size of the window in points; invalid before the first run.
    QSize windowSize() const;
    void setWindowSize(const QSize &size);

    /// The printer that was printed to last; empty before the first job.
    QString lastPrinter() const;
    void setLastPrinter(const QString &name);

private:
    QSettings mSettings;
};

} // namespace dialog
