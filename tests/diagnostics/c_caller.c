/* SPDX-License-Identifier: Apache-2.0 */
/* What a driver author writes in C: every exported diagnostic function once. */
#include "diagnostics/Diagnostics.h"

#include "diagnostics/c_caller_support.h"

#include <stdio.h>
#include <string.h>

struct panel
{
    PDEObject object;
    int number;
};

static const char *describe_panel(const PDEObject *self)
{
    static char text[32];
    snprintf(text, sizeof text, "Panel %d", ((const struct panel *)self)->number);
    return text;
}

int main(int argc, char **argv)
{
    const struct panel panel = {{describe_panel}, 7};
    ppd_file_t *ppd = NULL;
    unsigned char bytes[20];
    size_t i;

    if (argc != 2) {
        fprintf(stderr, "usage: c_caller PPD\n");
        return 2;
    }
    for (i = 0; i < sizeof bytes; ++i) {
        bytes[i] = (unsigned char)i;
    }
    show_log_on_standard_output();

    _PDEProlog(&panel.object, "%d of %s", 1, "two");
    _PDELog(NULL, "%d items, %@ and %.1f", 3, &panel, 2.5);
    _PDEEpilog(&panel.object, NULL);

    _PDELog_ppd_option_t(NULL, "CvContrast");
    ppd = ppdOpenFile(argv[1]);
    _PDELog_ppd_option_t(ppd, NULL);
    _PDELog_ppd_option_t(ppd, "CvHalftonePattern");
    ppdClose(ppd);

    _PDELog_PMPrintSettings_WriteToFile(NULL, "none");
    _PDELog_PMPrintSettings_WriteToFile(some_print_settings(), "\xC3\xA9");

    debugLog(0, "%@ %C %ld", &panel, 0x20AC, 5000000000L);
    debugLog(1, "not %s", "shown");
    memoryCheck(0, bytes, (int)sizeof bytes);
    debugLogFd(0, 1, "%s", "to a descriptor");
    memoryCheckFd(0, 1, bytes, (int)sizeof bytes);
    return 0;
}
