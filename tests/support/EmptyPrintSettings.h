// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"

/// Print settings that hold nothing, for pages 1 to 1.
struct EmptyPrintSettings : PMPrintSettings
{
    std::optional<QByteArray> value(const QString &) const override { return std::nullopt; }
    PMResult<quint32> firstPage() const override { return {0, 1}; }
    OSStatus setFirstPage(quint32) override { return 0; }
    PMResult<quint32> lastPage() const override { return {0, 1}; }
    OSStatus setLastPage(quint32) override { return 0; }
    std::optional<QByteArray> dataRepresentation() const override { return std::nullopt; }
};
