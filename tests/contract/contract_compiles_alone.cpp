// SPDX-License-Identifier: Apache-2.0
#include "plugin/PrintDialogExtension.h"

// The header is all that a host includes; this file proves that it needs nothing before it.
static_assert(kPDEInterfaceVersion > 0);
