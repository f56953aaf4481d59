// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSlider;

namespace platform {
class RadioMatrix;
}

// The hand of a person at a control that is shown nowhere. Each sends the control's action exactly
// once, also when the control has the value already. Values are within the control's range.

namespace tools {

void moveByHand(QSlider *slider, int level);
void pickByHand(platform::RadioMatrix *matrix, int row);
void tickByHand(QCheckBox *box, bool ticked);
void pickByHand(QComboBox *popUp, int index);

/// Selects all of the field, sends the keys of `text` one by one, then the Return key.
void typeByHand(QLineEdit *field, const QString &text);

} // namespace tools
