// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QPointF>
#include <QStringView>

namespace platform {

/// The first two numbers in `text` as x and y, whatever stands around them: "{10, 20}" and "10 20"
/// are the same point. A missing number is 0. The decimal point is a full stop in every locale.
PLATFORM_EXPORT QPointF pointFromString(QStringView text);

} // namespace platform
