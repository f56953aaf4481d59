// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

/// A status of the print system: 0 is success, anything else is passed on unchanged.
using OSStatus = qint32;

/// A status and the value that came with it. The value counts only when the status is 0.
template <class T> struct PMResult
{
    OSStatus status = 0;
    T value{};
};

/// The paper of a page format; for a label printer the label or the tape.
class PLATFORM_EXPORT PMPaper
{
public:
    virtual ~PMPaper();

    /// The paper's name as the PPD spells it; nothing when the paper has none.
    virtual PMResult<std::optional<QString>> ppdPaperName() const = 0;

    /// Height in points.
    virtual PMResult<double> height() const = 0;
};

/// How the pages of the job lie on the paper.
class PLATFORM_EXPORT PMPageFormat
{
public:
    virtual ~PMPageFormat();

    /// The chosen paper, or null when none is chosen. Owned by the page format, valid as long as
    /// it.
    virtual PMResult<const PMPaper *> paper() const = 0;
};

/// The settings of one print job.
class PLATFORM_EXPORT PMPrintSettings
{
public:
    virtual ~PMPrintSettings();

    /// The bytes stored under `key`, or nothing.
    virtual std::optional<QByteArray> value(const QString &key) const = 0;

    /// First and last page, counted from 1; the largest 32-bit number as last page means "to the
    /// end".
    virtual PMResult<quint32> firstPage() const = 0;
    virtual OSStatus setFirstPage(quint32 page) = 0;
    virtual PMResult<quint32> lastPage() const = 0;
    virtual OSStatus setLastPage(quint32 page) = 0;

    /// All settings as an XML property list, or nothing when they cannot be written.
    virtual std::optional<QByteArray> dataRepresentation() const = 0;
};

/// The time from opening the print dialog to the end of its job.
class PLATFORM_EXPORT PMPrintSession
{
public:
    virtual ~PMPrintSession();

    /// What is stored under `key`; an invalid variant when nothing is.
    virtual PMResult<QVariant> data(const QString &key) const = 0;
};

/// A printer of the print system.
class PLATFORM_EXPORT PMPrinter
{
public:
    virtual ~PMPrinter();

    /// The device URI as the print system spells it, neither decoded nor case-folded, or nothing.
    virtual std::optional<QString> copyDeviceURI() const = 0;
};
