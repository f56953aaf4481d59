// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"
#include "ppd/ExtendedTicket.h"

#include <string>
#include <vector>

// The parts of a print job with every answer open to the test, failures included.

struct FakePaper : PMPaper
{
    PMResult<std::optional<QString>> ppdPaperName() const override { return name; }
    PMResult<double> height() const override { return points; }

    PMResult<std::optional<QString>> name;
    PMResult<double> points{0, 283.46};
};

struct FakePageFormat : PMPageFormat
{
    PMResult<const PMPaper *> paper() const override { return chosen; }

    PMResult<const PMPaper *> chosen;
};

struct FakeSettings : PMPrintSettings
{
    std::optional<QByteArray> value(const QString &key) const override
    {
        return key == ExtendedTicketKey ? ticket : std::nullopt;
    }
    PMResult<quint32> firstPage() const override { return first; }
    PMResult<quint32> lastPage() const override { return last; }
    OSStatus setFirstPage(quint32 page) override
    {
        calls.push_back("first " + std::to_string(page));
        return firstWritten;
    }
    OSStatus setLastPage(quint32 page) override
    {
        calls.push_back("last " + std::to_string(page));
        return lastWritten;
    }
    std::optional<QByteArray> dataRepresentation() const override { return std::nullopt; }

    std::optional<QByteArray> ticket;
    PMResult<quint32> first{0, 1};
    PMResult<quint32> last{0, 1};
    OSStatus firstWritten = 0;
    OSStatus lastWritten = 0;
    std::vector<std::string> calls;
};

struct FakeSession : PMPrintSession
{
    PMResult<QVariant> data(const QString &key) const override
    {
        return key == QStringLiteral("KtNumber") ? stored : PMResult<QVariant>();
    }

    PMResult<QVariant> stored;
};

/// An XML property list with these entries in its dictionary: `<key>A</key><string>b</string>`.
inline QByteArray ticketWith(const QByteArray &entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<plist version=\"1.0\">\n<dict>"
        + entries + "</dict>\n</plist>\n";
}

inline QByteArray stringEntry(const QByteArray &key, const QByteArray &value)
{
    return "<key>" + key + "</key><string>" + value + "</string>";
}
