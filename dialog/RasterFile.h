// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/Failure.h"
#include "dialog/PageDots.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QTemporaryFile>

#include <memory>
#include <optional>
#include <vector>

#include <cups/raster.h>

namespace dialog {

/// Pages as compressed CUPS raster in a file that nobody else sees and that goes with this. One
/// thread at a time.
class RasterFile
{
    Q_DECLARE_TR_FUNCTIONS(dialog::RasterFile)

public:
    RasterFile();

    /// Makes the file.
    std::optional<Failure> open();

    /// The next page; then its bands, all of them.
    std::optional<Failure> startPage(cups_page_header2_t header);
    std::optional<Failure> add(PixelBand band);

    /// The raster of the pages in `order`, by their numbers from 0 as they were written; any page
    /// may come several times. Takes the file over.
    static std::unique_ptr<QIODevice> inOrder(std::unique_ptr<RasterFile> file,
                                              const std::vector<int> &order);

private:
    struct RasterCloser
    {
        void operator()(cups_raster_t *raster) const { cupsRasterClose(raster); }
    };

    Failure writeFailure(const QString &why) const;
    Failure writeFailure() const;

    QString mFolder;
    QTemporaryFile mFile;
    std::unique_ptr<cups_raster_t, RasterCloser> mRaster;
    /// Where each page starts in the file.
    std::vector<qint64> mStarts;

    friend class RasterPlayback;
};

} // namespace dialog
