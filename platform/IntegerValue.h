// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QStringView>

namespace platform {

/// The integer that `text` begins with: white space, an optional sign, ASCII digits; whatever
/// follows is ignored. No digits are 0; numbers out of range are cut to the 32-bit limits.
PLATFORM_EXPORT qint32 integerValue(QStringView text);

} // namespace platform
