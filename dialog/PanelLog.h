// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLoggingCategory>

namespace dialog {

/// What panels and their bundles do wrong, for the makers of plug-ins. The user gets sentences.
Q_DECLARE_LOGGING_CATEGORY(lcPanels)

} // namespace dialog
