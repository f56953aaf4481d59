// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DotPages.h"
#include "dialog/RasterDocument.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace dialog {

/// The dots of a job's pages as pictures, one for each plate: page-0001-black.png,
/// page-0001-red.png and so on, numbered as in the document. PNG with one bit for each dot, black
/// on white, and with the printer's resolution.
class DotPictures
{
    Q_DECLARE_TR_FUNCTIONS(dialog::DotPictures)

public:
    /// More rows than these are not read by everybody who reads PNG.
    static constexpr int kMostRows = 1'000'000;

    explicit DotPictures(DotPages pages);

    /// Whether a picture could be called `name`, in small or capital letters.
    static bool mayBeCalled(const QString &name);

    /// Writes them all into `folder`, which has none of them. After a failure some are there: that
    /// of a page, of the folder, or FailureKind::Cancelled. Any thread.
    std::optional<Failure> writeInto(const QString &folder, const BandsDone &progress) const;

private:
    DotPages mPages;
};

} // namespace dialog
