// SPDX-License-Identifier: Apache-2.0
#include "dialog/FolderPrinter.h"

#include "dialog/DotPictures.h"
#include "dialog/JobLog.h"
#include "dialog/NewFile.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <algorithm>
#include <cstdio>

namespace dialog {

namespace {

const QString kSettings = QStringLiteral("settings.plist");

Failure folderFailure(const QString &path, const QString &why)
{
    return {FailureKind::Folder, path, why};
}

/// A hidden folder for a job on its way. What is still in it at the end goes with it.
class UnfinishedFolder
{
public:
    explicit UnfinishedFolder(const QDir &folder)
        : mPath(
            folder.filePath(QStringLiteral(".job-") + QUuid::createUuid().toString(QUuid::Id128)))
        , mIsMade(QDir().mkdir(mPath))
    { }
    ~UnfinishedFolder()
    {
        if (mIsMade) {
            QDir(mPath).removeRecursively();
        }
    }
    UnfinishedFolder(const UnfinishedFolder &) = delete;
    UnfinishedFolder &operator=(const UnfinishedFolder &) = delete;

    bool isMade() const { return mIsMade; }
    QString path() const { return mPath; }
    QString filePath(const QString &name) const { return mPath + QLatin1Char('/') + name; }

private:
    QString mPath;
    bool mIsMade;
};

/// The document's name as a file name: without folders, and with nothing in it that a shell, a
/// desktop or another system's file system stumbles over.
QString fileNameFor(const PrintDocument &document)
{
    QString name = document.name.section(QLatin1Char('/'), -1).trimmed();
    for (QChar &c : name) {
        if (!c.isPrint() || QStringLiteral("\\:*?\"<>|").contains(c)) {
            c = QLatin1Char('_');
        }
    }
    while (name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char('-'))) {
        name.remove(0, 1);
    }
    // File systems end names at 255 bytes; the end of the name, with its suffix, is the better
    // half.
    while (name.toUtf8().size() > 200) {
        name.remove(0, name.front().isHighSurrogate() ? 2 : 1);
    }
    if (DotPictures::mayBeCalled(name)) {
        name.prepend(QStringLiteral("document-"));
    }
    return name.isEmpty() || name == kSettings ? QStringLiteral("document") : name;
}

std::optional<Failure> writeSettings(const QString &path, const JobSettings &settings)
{
    const auto xml = settings.dataRepresentation();
    if (!xml) {
        return Failure{FailureKind::Settings, settings.title(),
                       FolderPrinter::tr("the settings of the job cannot be written down")};
    }
    NewFile file(path);
    if (auto failure = file.open()) {
        return failure;
    }
    if (auto failure = file.write(xml->constData(), xml->size())) {
        return failure;
    }
    return file.finish();
}

std::optional<Failure> copyDocument(PrintDocument &document, const QString &path)
{
    const auto source = document.open();
    if (!source) {
        return source.failure();
    }
    NewFile file(path);
    if (auto failure = file.open()) {
        return failure;
    }
    constexpr qint64 kBlock = 1 << 20;
    QByteArray block(kBlock, Qt::Uninitialized);
    for (;;) {
        const qint64 count = source.value()->read(block.data(), kBlock);
        if (count < 0) {
            return Failure{
                FailureKind::Document, document.name,
                FolderPrinter::tr("cannot be read (%1)").arg(source.value()->errorString())};
        }
        if (count == 0) {
            return file.finish();
        }
        if (auto failure = file.write(block.constData(), count)) {
            return failure;
        }
    }
}

std::optional<Failure> fill(const UnfinishedFolder &folder, const QString &name, PrintJob &job,
                            const BandsDone &progress)
{
    if (auto failure = copyDocument(job.document, folder.filePath(name))) {
        return failure;
    }
    if (auto failure = writeSettings(folder.filePath(kSettings), job.settings)) {
        return failure;
    }
    return job.dots ? DotPictures(*job.dots).writeInto(folder.path(), progress) : std::nullopt;
}

QString nameOf(int number)
{
    return QStringLiteral("job-%1").arg(number, 4, 10, QLatin1Char('0'));
}

int highestNumber(const QDir &folder)
{
    int highest = 0;
    const QStringList names =
        folder.entryList({QStringLiteral("job-*")}, QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        highest = std::max(highest, name.mid(4).toInt());
    }
    return highest;
}

/// Gives the finished folder `from` a name that nobody has; the number in it, or 0.
int moveToFreshName(const QString &from, const QDir &folder)
{
    const int first = highestNumber(folder) + 1;
    constexpr int kAttempts = 1000;
    for (int number = first; number < first + kAttempts; ++number) {
        const QString path = folder.filePath(nameOf(number));
        // Making the folder reserves the name; an empty folder can then be replaced in one step.
        if (!folder.mkdir(nameOf(number))) {
            continue;
        }
        if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(path).constData())
            == 0) {
            return number;
        }
        folder.rmdir(nameOf(number));
        return 0;
    }
    return 0;
}

} // namespace

FolderPrinter::FolderPrinter(QString folder)
    : mFolder(std::move(folder))
{ }

QString FolderPrinter::pathOf(int number) const
{
    return QDir(mFolder).filePath(nameOf(number));
}

Result<FolderJob> FolderPrinter::print(PrintJob job, const BandsDone &progress) const
{
    const QDir folder(mFolder);
    if (mFolder.isEmpty()) {
        return folderFailure(tr("Folder"), tr("choose the folder to print into"));
    }
    if (!QDir().mkpath(mFolder)) {
        return folderFailure(mFolder, tr("cannot be made; choose another folder"));
    }
    const UnfinishedFolder unfinished(folder);
    if (!unfinished.isMade()) {
        return folderFailure(mFolder, tr("cannot be written to; choose another folder"));
    }
    const QString name = fileNameFor(job.document);
    if (const auto failure = fill(unfinished, name, job, progress)) {
        return *failure;
    }
    JobLog log(folder.filePath(QStringLiteral("jobs.log")));
    if (const auto failure = log.open()) {
        return *failure;
    }
    const int number = moveToFreshName(unfinished.path(), folder);
    if (number == 0) {
        return folderFailure(mFolder, tr("takes no more jobs; choose another folder"));
    }
    const QString path = pathOf(number);
    const FolderJob done{number, path, path + QLatin1Char('/') + name,
                         path + QLatin1Char('/') + kSettings};
    if (const auto failure = log.append(nameOf(number), job)) {
        QDir(path).removeRecursively();
        return *failure;
    }
    return done;
}

Result<JobSettings> FolderPrinter::readSettings(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Failure{FailureKind::Settings, path,
                       tr("cannot be read (%1)").arg(file.errorString())};
    }
    return JobSettings::fromDataRepresentation(file.readAll(), path);
}

} // namespace dialog
