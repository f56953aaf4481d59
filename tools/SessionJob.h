// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <limits>
#include <optional>
#include <utility>

namespace tools {

// The job as the panel of a session sees it: what the session was opened with, and the choices
// that were marked since.

class SessionPaper : public PMPaper
{
public:
    SessionPaper(PMResult<std::optional<QString>> name, PMResult<double> height)
        : mName(std::move(name))
        , mHeight(height)
    { }

    PMResult<std::optional<QString>> ppdPaperName() const override { return mName; }
    PMResult<double> height() const override { return mHeight; }

private:
    PMResult<std::optional<QString>> mName;
    PMResult<double> mHeight;
};

class SessionPageFormat : public PMPageFormat
{
public:
    /// No paper is chosen.
    SessionPageFormat() = default;
    SessionPageFormat(OSStatus status, SessionPaper paper)
        : mStatus(status)
        , mPaper(std::move(paper))
    { }

    PMResult<const PMPaper *> paper() const override
    {
        return {mStatus, mPaper ? &*mPaper : nullptr};
    }

private:
    OSStatus mStatus = 0;
    std::optional<SessionPaper> mPaper;
};

/// Settings of all pages of a job, with one value for each key. Keys are compared exactly.
class SessionSettings : public PMPrintSettings
{
public:
    void setValue(const QString &key, const QByteArray &value) { mValues.insert(key, value); }

    std::optional<QByteArray> value(const QString &key) const override
    {
        const auto found = mValues.constFind(key);
        return found == mValues.constEnd() ? std::nullopt : std::optional(*found);
    }
    PMResult<quint32> firstPage() const override { return {0, mFirst}; }
    PMResult<quint32> lastPage() const override { return {0, mLast}; }
    OSStatus setFirstPage(quint32 page) override
    {
        mFirst = page;
        return 0;
    }
    OSStatus setLastPage(quint32 page) override
    {
        mLast = page;
        return 0;
    }
    std::optional<QByteArray> dataRepresentation() const override { return std::nullopt; }

private:
    QMap<QString, QByteArray> mValues;
    quint32 mFirst = 1;
    quint32 mLast = std::numeric_limits<qint32>::max();
};

class SessionPrinter : public PMPrinter
{
public:
    explicit SessionPrinter(std::optional<QString> deviceURI)
        : mDeviceURI(std::move(deviceURI))
    { }

    std::optional<QString> copyDeviceURI() const override { return mDeviceURI; }

private:
    std::optional<QString> mDeviceURI;
};

class SessionData : public PMPrintSession
{
public:
    PMResult<QVariant> data(const QString & /*key*/) const override { return {}; }
};

} // namespace tools
