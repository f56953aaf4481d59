// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QtGlobal>

#include <functional>
#include <optional>

namespace platform {

/// The parts of a system version, in the order in which they are written.
enum class SystemVersionPart
{
    Major,
    Minor,
    BugFix,
};

/// Answers one part, or nothing when it cannot be found out.
using SystemVersionQuery = std::function<std::optional<qint32>(SystemVersionPart part)>;

/// The version of the system that a plug-in finds itself in: the level of the extension interface
/// that the dialog offers, 11.0.0, whatever the desktop below it is called.
PLATFORM_EXPORT std::optional<qint32> systemVersion(SystemVersionPart part);

/// Lets `query` answer instead; an empty one brings the dialog's own answer back.
PLATFORM_EXPORT void setSystemVersionQuery(SystemVersionQuery query);

} // namespace platform
