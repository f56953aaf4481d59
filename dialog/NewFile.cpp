// SPDX-License-Identifier: Apache-2.0
#include "dialog/NewFile.h"

#include <unistd.h>

namespace dialog {

NewFile::NewFile(const QString &path)
    : mFile(path)
{ }

Failure NewFile::failure() const
{
    return {
        FailureKind::Folder, mFile.fileName(),
        tr("cannot be written (%1); choose another folder or make room").arg(mFile.errorString())};
}

std::optional<Failure> NewFile::open()
{
    return mFile.open(QIODevice::WriteOnly | QIODevice::NewOnly) ? std::nullopt
                                                                 : std::optional(failure());
}

std::optional<Failure> NewFile::write(const char *bytes, qint64 count)
{
    return mFile.write(bytes, count) == count ? std::nullopt : std::optional(failure());
}

std::optional<Failure> NewFile::finish()
{
    const bool isWritten = mFile.flush() && ::fsync(mFile.handle()) == 0;
    return isWritten ? std::nullopt : std::optional(failure());
}

} // namespace dialog
