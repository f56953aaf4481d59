// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"

#include <QString>

#include <optional>

#include <cups/ppd.h>

/// What is known about the tape or label of the job.
struct TapeInfo
{
    double paperHeightMM = 100.0;
    /// 0 a plain size or none of the PPD's; 1 a size whose name begins "DC", "AV", "FL" or "C_";
    /// 2 a size whose name begins "Custom", a paper known from the ticket only, or one without
    /// name.
    qint32 tapeKind = 0;
    /// The name that the page format gives, else the ticket's.
    std::optional<QString> paperName;
    /// 0 monochrome, 1 black and red, 2 not recorded.
    qint32 colorSetting = 0;
};

/// The pages of the job, counted from 1.
struct PageRange
{
    quint32 firstPage = 0;
    quint32 lastPage = 0;
};

extern "C" {

/// Fills `info` from page format, PPD and ticket. The session is not used. A page format that is
/// missing has no paper; a null PPD has no sizes. Returns 0 or the status of the page-format call
/// that failed; after that, and without a paper or a height, `info` keeps monochrome and 100 mm.
Q_DECL_EXPORT OSStatus GetTapeInfo(PMPrintSession *session, const PMPrintSettings *settings,
                                   const PMPageFormat *pageFormat, ppd_file_t *ppd, TapeInfo *info);

/// Reads the page range and writes it back as it was read. Returns the status of the last call
/// that was made for the last page.
Q_DECL_EXPORT OSStatus GetTapeInfo3(PMPrintSettings *settings, PageRange *range);
}
