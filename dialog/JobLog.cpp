// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobLog.h"

#include <QDateTime>
#include <QFileInfo>
#include <QStringList>

#include <sys/file.h>
#include <unistd.h>

namespace dialog {

namespace {

/// In quotes, on one line.
QString quoted(QString text)
{
    for (QChar &c : text) {
        if (!c.isPrint()) {
            c = QLatin1Char(' ');
        }
    }
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

JobLog::JobLog(const QString &path)
    : mFile(path)
{ }

Failure JobLog::failure() const
{
    return {
        FailureKind::Folder, mFile.fileName(),
        tr("cannot be written (%1); choose another folder or make room").arg(mFile.errorString())};
}

std::optional<Failure> JobLog::open()
{
    // Unbuffered, so that a line is one call of the system.
    if (!mFile.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        return failure();
    }
    // Where a file system has no locks, two programs at once still get names of their own.
    ::flock(mFile.handle(), LOCK_EX);
    return {};
}

std::optional<Failure> JobLog::append(const QString &jobName, const PrintJob &job)
{
    const QByteArray text = line(jobName, job).toUtf8() + '\n';
    const qint64 before = mFile.size();
    if (mFile.write(text) == text.size()) {
        return {};
    }
    const Failure reason = failure();
    mFile.resize(before);
    return reason;
}

QString JobLog::line(const QString &jobName, const PrintJob &job)
{
    const qint64 size = job.document.path.isEmpty() ? job.document.bytes.size()
                                                    : QFileInfo(job.document.path).size();
    const QDateTime now = QDateTime::currentDateTime();
    QStringList words{now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate), jobName,
                      quoted(job.title()), job.document.mimeType,
                      QStringLiteral("%1 bytes").arg(size)};
    for (const OptionChoice &pair : job.settings.jobOptions()) {
        words.append(pair.option + QLatin1Char('=') + pair.choice);
    }
    return words.join(QLatin1Char(' '));
}

} // namespace dialog
