// SPDX-License-Identifier: Apache-2.0
#include "plugin/PanelInspection.h"

PanelInspection::~PanelInspection() = default;
