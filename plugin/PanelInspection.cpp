// SPDX-License-Identifier: Apache-2.0
#include "plugin/PanelInspection.h"

#include "plugin/FormatterInspection.h"

PanelInspection::~PanelInspection() = default;
FormatterInspection::~FormatterInspection() = default;
