// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QStringList>

/// An interface description of the panel for tests, without the controls called `missing`.
///
/// The view is 500 wide and 400 high. Frames from the bottom left corner: halftone placeholder
/// (20, 310, 80, 60), preview placeholder (20, 250, 60, 50). Row 0 of the radio matrix is on, the
/// sliders reach from -20 to 20 and stand at 0, the number fields show 0, the pop-up has the items
/// nib0 and nib1 with nib0 selected, the check box is off and called nib.
QByteArray interfaceDescription(const QStringList &missing = {});
