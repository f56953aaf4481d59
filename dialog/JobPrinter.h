// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"

#include <QString>

#include <optional>
#include <utility>

namespace dialog {

/// The chosen printer as a panel sees it.
class JobPrinter : public PMPrinter
{
public:
    /// `deviceUri` raw, as the print system spells it; empty when it is not known.
    explicit JobPrinter(QString deviceUri)
        : mDeviceUri(std::move(deviceUri))
    { }

    std::optional<QString> copyDeviceURI() const override
    {
        return mDeviceUri.isEmpty() ? std::nullopt : std::optional(mDeviceUri);
    }

private:
    QString mDeviceUri;
};

} // namespace dialog
