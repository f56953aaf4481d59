// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelLog.h"

namespace dialog {

Q_LOGGING_CATEGORY(lcPanels, "labelprint.panels")

} // namespace dialog
