// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

extern "C" {

/// The nearest integer, halves away from zero. Out of range: the nearest limit; no number: 0.
Q_DECL_EXPORT qint64 RoundDouble(double value);

/// Both with 0.0393701 inches to the millimetre.
Q_DECL_EXPORT double MiriToInch(double millimetres);
Q_DECL_EXPORT double InchToMiri(double inches);
}
