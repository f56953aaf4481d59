/* SPDX-License-Identifier: Apache-2.0 */
#ifndef C_CALLER_SUPPORT_H
#define C_CALLER_SUPPORT_H

#include "diagnostics/Diagnostics.h"

/* What a program in C cannot make itself. */

#ifdef __cplusplus
extern "C" {
#endif

void show_log_on_standard_output(void);
const PMPrintSettings *some_print_settings(void);

#ifdef __cplusplus
}
#endif

#endif
