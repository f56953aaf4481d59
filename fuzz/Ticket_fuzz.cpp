// SPDX-License-Identifier: Apache-2.0
// Any bytes as the extended ticket: whatever they are, the queries answer 0 and something that a
// caller can use.
#include "fuzz/Require.h"
#include "ppd/ExtendedTicket.h"
#include "ppd/TapeInfo.h"
#include "tests/support/EmptyPrintSettings.h"

#include <cstddef>
#include <cstdint>

namespace {

struct TicketSettings : EmptyPrintSettings
{
    explicit TicketSettings(QByteArray bytes)
        : ticket(std::move(bytes))
    { }

    QByteArray ticket;

    std::optional<QByteArray> value(const QString &key) const override
    {
        return key == ExtendedTicketKey ? std::optional(ticket) : std::nullopt;
    }
};

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
