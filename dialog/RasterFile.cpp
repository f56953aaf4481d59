// SPDX-License-Identifier: Apache-2.0
#include "dialog/RasterFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace dialog {

/// Reads pages of a finished file one after the other, as if they stood in one.
class RasterPlayback : public QIODevice
{
public:
    RasterPlayback(std::unique_ptr<RasterFile> file, const std::vector<int> &order)
        : mFile(std::move(file))
    {
        const std::vector<qint64> &starts = mFile->mStarts;
        const qint64 end = mFile->mFile.size();
        // The word in front of all pages says in which form they are.
        mParts.push_back({0, starts.front()});
        for (const int page : order) {
            const auto index = std::size_t(page);
            mParts.push_back({starts[index], index + 1 < starts.size() ? starts[index + 1] : end});
        }
        for (const Part &part : mParts) {
            mSize += part.end - part.start;
        }
        QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }
    qint64 size() const override { return mSize; }

protected:
    qint64 readData(char *to, qint64 most) override
    {
        if (mPart == mParts.size()) {
            return 0;
        }
        const Part &part = mParts[mPart];
        QTemporaryFile &file = mFile->mFile;
        const qint64 wanted = std::min(most, part.end - part.start - mRead);
        if (!file.seek(part.start + mRead) || file.read(to, wanted) != wanted) {
            setErrorString(file.errorString());
            return -1;
        }
        mRead += wanted;
        if (part.start + mRead == part.end) {
            mRead = 0;
            ++mPart;
        }
        return wanted;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    struct Part
    {
        qint64 start;
        qint64 end;
    };

    std::unique_ptr<RasterFile> mFile;
    std::vector<Part> mParts;
    std::size_t mPart = 0;
    /// How much of the part has been read.
    qint64 mRead = 0;
    qint64 mSize = 0;
};

RasterFile::RasterFile()
    : mFolder(qEnvironmentVariableIsEmpty("TMPDIR") ? QStringLiteral("/tmp")
                                                    : qEnvironmentVariable("TMPDIR"))
    , mFile(mFolder + QStringLiteral("/label-print-XXXXXX"))
{ }

Failure RasterFile::writeFailure(const QString &why) const
{
    return {FailureKind::Job, mFolder,
            tr("the prepared pages cannot be kept there (%1); make room, or set TMPDIR to another "
               "folder")
                .arg(why)};
}

Failure RasterFile::writeFailure() const
{
    return writeFailure(QString::fromLocal8Bit(std::strerror(errno)));
}

std::optional<Failure> RasterFile::open()
{
    if (!mFile.open()) {
        return writeFailure(mFile.errorString());
    }
    mRaster.reset(cupsRasterOpen(mFile.handle(), CUPS_RASTER_WRITE_COMPRESSED));
    return mRaster ? std::nullopt : std::optional(writeFailure());
}

std::optional<Failure> RasterFile::startPage(cups_page_header2_t header)
{
    mStarts.push_back(mFile.size());
    return cupsRasterWriteHeader2(mRaster.get(), &header) != 0 ? std::nullopt
                                                               : std::optional(writeFailure());
}

std::optional<Failure> RasterFile::add(PixelBand band)
{
    const auto count = static_cast<unsigned>(band.bytes.size());
    return cupsRasterWritePixels(mRaster.get(), band.bytes.data(), count) == count
        ? std::nullopt
        : std::optional(writeFailure());
}

std::unique_ptr<QIODevice> RasterFile::inOrder(std::unique_ptr<RasterFile> file,
                                               const std::vector<int> &order)
{
    file->mRaster.reset();
    return std::make_unique<RasterPlayback>(std::move(file), order);
}

} // namespace dialog
