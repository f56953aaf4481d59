// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace controls {

/// Lets interface descriptions name the input controls as widget classes: PDETextField13_v300_, a
/// line edit, and PDEButtonCell13_v300_, a button with that cell. To be called before a description
/// that does is loaded.
void registerInputControls();

} // namespace controls
