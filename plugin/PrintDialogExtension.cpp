// SPDX-License-Identifier: Apache-2.0
#include "plugin/PrintDialogExtension.h"

PDEPluginCallback13_v300_::~PDEPluginCallback13_v300_() = default;

void PDEPluginCallback13_v300_::panelViewDidResize()
{ }

PDEPanel::~PDEPanel() = default;
PDEPlugIn::~PDEPlugIn() = default;
