// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <functional>

namespace platform {

/// Sounds the desktop's alert once. The interface thread only.
PLATFORM_EXPORT void beep();

/// Puts `sound` in the place of the desktop's alert; an empty function puts that one back.
PLATFORM_EXPORT void setBeep(std::function<void()> sound);

} // namespace platform
