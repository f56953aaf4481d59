// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/PrintCore.h"
#include "ppd/TapeInfo.h"

#include <QLatin1String>
#include <QString>

/// The key of the print settings under which other panels of the driver store their ticket: an XML
/// property list with a dictionary as its root. It is only read here.
inline constexpr QLatin1String ExtendedTicketKey("org.labelprint.print.PrintSettingsTicket.KtE5");

// Trouble with the ticket, from its absence to its syntax, never fails: it leaves the default.

extern "C" {

/// Sets `paperName` to the ticket's paper, or to nothing. The first argument is ignored. Returns 0.
Q_DECL_EXPORT OSStatus GetTapeInfo2(const void *, const PMPrintSettings *settings, TapeInfo *info);

/// Sets `colorSetting` from the ticket: 0 monochrome, 1 black and red, 2 when it does not say.
/// The first argument is ignored. Returns 0.
Q_DECL_EXPORT OSStatus GetColorSetting(const void *, const PMPrintSettings *settings,
                                       TapeInfo *info);

/// Reads the number that the session holds under `key`: its low 32 bits, a fraction cut off. Data
/// that is no number leaves `number` as it is. Returns 0, or -30891 when there is no data.
Q_DECL_EXPORT OSStatus GetTicketFromSession(const PMPrintSession *session, const QString &key,
                                            qint32 *number);
}
