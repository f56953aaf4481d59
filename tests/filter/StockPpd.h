// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The drivers that come with CUPS, as `lpinfo -m` lists them; no server is needed.
class StockDrivers
{
public:
    /// "drv:///sample.drv/zebra.ppd" and its like. Fails the test with an exception when CUPS does
    /// not say.
    QStringList names() const;

    /// The PPD that CUPS makes of the driver, in all its languages.
    QByteArray ppd(const QString &name) const;

private:
    QByteArray run(const QStringList &arguments) const;

    QTemporaryDir mCache;
};
