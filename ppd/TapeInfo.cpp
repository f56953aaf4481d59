// SPDX-License-Identifier: Apache-2.0
#include "ppd/TapeInfo.h"

#include "platform/TextEncodings.h"
#include "ppd/ExtendedTicket.h"
#include "ppd/Units.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr OSStatus kNoError = 0;
constexpr OSStatus kParameterError = -50;
constexpr double kPointsPerInch = 72.0;
/// The room for a name with its terminator.
constexpr qsizetype kNameRoom = 256;
constexpr std::array<std::string_view, 4> kTapePrefixes{"DC", "AV", "FL", "C_"};

/// The name in UTF-8; empty when it does not fit as a whole.
QByteArray nameBuffer(const QString &name)
{
    const auto length = platform::encodedLength(name, platform::TextEncoding::Utf8);
    if (!length || *length >= kNameRoom) {
        return {};
    }
    // As C text: what stands behind a terminator is no part of it.
    return QByteArray(name.toUtf8().constData());
}

bool hasSize(const ppd_file_t *ppd, std::string_view name)
{
    if (!ppd || !ppd->sizes) {
        return false;
    }
    return std::any_of(ppd->sizes, ppd->sizes + ppd->num_sizes, [name](const ppd_size_t &size) {
        return std::string_view(size.name, qstrnlen(size.name, PPD_MAX_NAME)) == name;
    });
}

qint32 kindOfSize(const ppd_file_t *ppd, std::string_view name)
{
    if (!hasSize(ppd, name)) {
        return 0;
    }
    const auto begins = [name](std::string_view prefix) { return name.starts_with(prefix); };
    if (std::any_of(kTapePrefixes.begin(), kTapePrefixes.end(), begins)) {
        return 1;
    }
    return begins("Custom") ? 2 : 0;
}

/// Sets the paper's name. Returns the name that the page format gives, empty when it gives none.
QByteArray readPaperName(const PMPrintSettings *settings, const PMPaper &paper, TapeInfo *info)
{
    const auto name = paper.ppdPaperName();
    if (name.status == kNoError && name.value) {
        info->paperName = *name.value;
        return nameBuffer(*name.value);
    }
    GetTapeInfo2(nullptr, settings, info);
    return {};
}

} // namespace

OSStatus GetTapeInfo(PMPrintSession *, const PMPrintSettings *settings,
                     const PMPageFormat *pageFormat, ppd_file_t *ppd, TapeInfo *info)
{
    if (!info) {
        return kParameterError;
    }
    *info = TapeInfo();
    const auto paper = pageFormat ? pageFormat->paper() : PMResult<const PMPaper *>();
    if (paper.status != kNoError || !paper.value) {
        return paper.status;
    }
    const QByteArray name = readPaperName(settings, *paper.value, info);
    const auto height = paper.value->height();
    // Meant: without a height the colour setting stays monochrome and is not read.
    if (height.status != kNoError || height.value == 0.0) {
        return height.status;
    }
    info->paperHeightMM = InchToMiri(height.value / kPointsPerInch);
    info->tapeKind = name.isEmpty() ? 2 : kindOfSize(ppd, name.toStdString());
    GetColorSetting(nullptr, settings, info);
    return kNoError;
}

OSStatus GetTapeInfo3(PMPrintSettings *settings, PageRange *range)
{
    if (!range) {
        return kParameterError;
    }
    *range = PageRange();
    if (!settings) {
        return kParameterError;
    }
    const auto first = settings->firstPage();
    if (first.status == kNoError) {
        settings->setFirstPage(first.value);
        range->firstPage = first.value;
    }
    const auto last = settings->lastPage();
    if (last.status != kNoError) {
        return last.status;
    }
    const OSStatus status = settings->setLastPage(last.value);
    range->lastPage = last.value;
    return status;
}
