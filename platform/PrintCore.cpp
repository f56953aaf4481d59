// SPDX-License-Identifier: Apache-2.0
#include "platform/PrintCore.h"

// One home for the virtual tables, so that dialog and bundle agree on the types.
PMPaper::~PMPaper() = default;
PMPageFormat::~PMPageFormat() = default;
PMPrintSettings::~PMPrintSettings() = default;
PMPrintSession::~PMPrintSession() = default;
PMPrinter::~PMPrinter() = default;
