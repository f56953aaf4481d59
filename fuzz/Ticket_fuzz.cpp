// SPDX-License-Identifier: Apache-2.0
// Any bytes as the extended ticket: whatever they are, the queries answer 0 and something that a
// caller can use.
#include "ppd/ExtendedTicket.h"
#include "ppd/TapeInfo.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

struct TicketSettings : PMPrintSettings
{
    explicit TicketSettings(QByteArray bytes)
        : ticket(std::move(bytes))
    { }

    QByteArray ticket;

    std::optional<QByteArray> value(const QString &key) const override
    {
        return key == ExtendedTicketKey ? std::optional(ticket) : std::nullopt;
    }
    PMResult<quint32> firstPage() const override { return {0, 1}; }
    OSStatus setFirstPage(quint32) override { return 0; }
    PMResult<quint32> lastPage() const override { return {0, 1}; }
    OSStatus setLastPage(quint32) override { return 0; }
    std::optional<QByteArray> dataRepresentation() const override { return std::nullopt; }
};

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const TicketSettings settings(
        QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    TapeInfo info;
    require(GetColorSetting(nullptr, &settings, &info) == 0);
    require(info.colorSetting >= 0 && info.colorSetting <= 2);
    require(GetTapeInfo2(nullptr, &settings, &info) == 0);
    const std::optional<QString> first = info.paperName;
    require(GetTapeInfo2(nullptr, &settings, &info) == 0 && info.paperName == first);
    return 0;
}
