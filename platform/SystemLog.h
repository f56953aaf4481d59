// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <functional>

class QString;

// Any thread.

namespace platform {

using SystemLogSink = std::function<void(const QString &line)>;

/// Sends one line to the sink; without one to the log of the system (user messages, debug level),
/// in UTF-8. The log's identity is the program's: it is neither opened nor closed here. The
/// system's log ends a line at U+0000; line feeds stay within it.
PLATFORM_EXPORT void systemLog(const QString &line);

/// Lines go to `sink` from now on; an empty one restores the log of the system. It is called in the
/// thread that logs, may log itself, and may still be running in another thread for a moment
/// after it has been replaced.
PLATFORM_EXPORT void setSystemLogSink(SystemLogSink sink);

} // namespace platform
