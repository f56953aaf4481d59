// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Export.h"

#include <QString>

#include <optional>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

// Reads and writes of controls that may be missing: a missing control reads as zero or no, and a
// write to it goes nowhere. No write here sends the control's action; only a person or an assistive
// tool does.

namespace platform {

class RadioMatrix;

PLATFORM_EXPORT qint32 intValue(const QSlider *slider);
PLATFORM_EXPORT float floatValue(const QSlider *slider);
/// Clamped to the slider's bounds.
PLATFORM_EXPORT void setIntValue(QSlider *slider, qint32 value);
/// The step of an arrow key.
PLATFORM_EXPORT void setAltIncrementValue(QSlider *slider, double value);

/// The integer that the text begins with, 0 without one.
PLATFORM_EXPORT qint32 intValue(const QLineEdit *field);
/// ASCII digits in every locale, so that the text reads back.
PLATFORM_EXPORT void setIntValue(QLineEdit *field, qint32 value);
/// Nothing as text leaves the field as it is.
PLATFORM_EXPORT void setStringValue(QLineEdit *field, const std::optional<QString> &text);

/// Titles are data: ampersands and markup in them are shown as they stand. The letter that the
/// interface description made the mnemonic stays the mnemonic when the new title has it.
PLATFORM_EXPORT void setStringValue(QLabel *label, const QString &text);
PLATFORM_EXPORT QString stringValue(const QLabel *label);
PLATFORM_EXPORT void setButtonTitle(QAbstractButton *button, const QString &title);
PLATFORM_EXPORT QString buttonTitle(const QAbstractButton *button);

/// The row that is on, -1 when none is.
PLATFORM_EXPORT qint32 selectedRow(const RadioMatrix *matrix);
/// A row that does not exist changes nothing.
PLATFORM_EXPORT void selectCellAtRow(RadioMatrix *matrix, qint64 row);
PLATFORM_EXPORT void setTitleOfRow(RadioMatrix *matrix, int row, const QString &title);

/// 0 off, 1 on, -1 mixed. Every state but 0 and mixed -1 of a box that allows it is set as on.
PLATFORM_EXPORT qint32 state(const QCheckBox *box);
PLATFORM_EXPORT void setState(QCheckBox *box, qint64 state);

/// The item's place, -1 when none is selected.
PLATFORM_EXPORT qint32 indexOfSelectedItem(const QComboBox *popUp);
/// -1 or an index beyond the items selects nothing.
PLATFORM_EXPORT void selectItemAtIndex(QComboBox *popUp, qint64 index);
/// Beyond the items the new one goes last. An empty pop-up selects its first item.
PLATFORM_EXPORT void insertItem(QComboBox *popUp, const QString &title, int index);
/// When the selected item goes, the first one is selected.
PLATFORM_EXPORT void removeItemAtIndex(QComboBox *popUp, int index);

/// The control's own flag, whatever its parents say.
PLATFORM_EXPORT bool isEnabled(const QWidget *control);
PLATFORM_EXPORT void setEnabled(QWidget *control, bool enabled);
PLATFORM_EXPORT void setHidden(QWidget *control, bool hidden);

} // namespace platform
