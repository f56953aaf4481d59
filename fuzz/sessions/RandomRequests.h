// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "fuzz/sessions/RandomPpd.h"

#include <QByteArrayList>

/// The lines of a session that opens the PPD in `ppdFile` and then asks for `count` things at
/// random, some of them nonsense. Other options of `open` are random too; `mayDecline` allows a
/// system that the plug-in refuses.
QByteArrayList randomRequests(Random &random, const RandomPpd &ppd, const QString &ppdFile,
                              int count, bool mayDecline);
