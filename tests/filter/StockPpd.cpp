// SPDX-License-Identifier: Apache-2.0
#include "filter/StockPpd.h"

#include <QProcess>
#include <QRegularExpression>

#include <stdexcept>

namespace {

constexpr int kPatience = 60000;

} // namespace

QByteArray StockDrivers::run(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_CACHEDIR"), mCache.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("/usr/lib/cups/daemon/cups-driverd"), arguments);
    if (!process.waitForFinished(kPatience) || process.exitCode() != 0) {
        throw std::runtime_error("cups-driverd: " + process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

QStringList StockDrivers::names() const
{
    // An IPP message, in which the names stand as they are.
    const QString list =
        QString::fromLatin1(run({QStringLiteral("list"), QStringLiteral("1"), QStringLiteral("0"),
                                 QStringLiteral("requested-attributes=ppd-name")}));
    static const QRegularExpression name(QStringLiteral("drv:///[A-Za-z0-9_.-]+/[A-Za-z0-9_.-]+?"
                                                        "\\.ppd"));
    QStringList names;
    for (auto matches = name.globalMatch(list); matches.hasNext();) {
        names.append(matches.next().captured());
    }
    return names;
}

QByteArray StockDrivers::ppd(const QString &name) const
{
    return run({QStringLiteral("cat"), name});
}
