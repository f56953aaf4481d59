/* SPDX-License-Identifier: Apache-2.0 */
#ifndef LABEL_PRINT_DIAGNOSTICS_H
#define LABEL_PRINT_DIAGNOSTICS_H

/*
 * Tracing and dumping for those who develop a panel or a driver; for C11 and C++.
 *
 * The functions are exported by the bundle's shared object. They are always there, nothing switches
 * them on or off, and the panel itself calls none of them. They keep no state, may be called from
 * any thread, report no failure and leave the settings of the host's signals alone: a line that
 * cannot be written costs nothing but the line.
 *
 * Texts are UTF-8 and end with a zero byte; bytes that are no UTF-8 become U+FFFD. A null pointer
 * is a text or an object that is missing, and is shown as "(null)".
 *
 * Formats are those of the C library, with %@ for an object (a PDEObject pointer), %C for a UTF-16
 * unit, %S for zero-terminated UTF-16, and %D %U %O for integers of 32 bits. %n prints and writes
 * nothing. Widths and precisions end at 4095. The locale has no part in it. Compilers do not know
 * these formats, so that nobody but the author checks a format against its arguments.
 */

#include <cups/ppd.h>

#if defined(__GNUC__)
#define PDE_DIAGNOSTICS_EXPORT __attribute__((visibility("default")))
#else
#define PDE_DIAGNOSTICS_EXPORT
#endif

/* The exported names begin with an underscore. */
#if defined(__clang__) && defined(__has_warning)
#pragma clang diagnostic push
#if __has_warning("-Wreserved-identifier")
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
#endif

#ifdef __cplusplus
/* The settings of a print job, as the panel host hands them out. */
class PMPrintSettings;
extern "C" {
#else
typedef struct PMPrintSettings PMPrintSettings;
#endif

/*
 * What begins like this is an object: a structure of your own with a PDEObject as its first member.
 * `description` answers the object's text, which stays valid until it is asked again, or null; the
 * pointer itself may be null too. It is borrowed for the call.
 */
typedef struct PDEObject PDEObject;
struct PDEObject
{
    const char *(*description)(const PDEObject *self);
};

/*
 * One line to the log of the system: the tag ("BEGIN", "END" or "LOG"), then "self(DESCRIPTION)"
 * when there is an object, then the filled format.
 *
 * The description becomes part of the format: a per-cent sign in it begins a conversion, which
 * takes the first argument. What is then missing at the end counts as 0 or "(null)".
 */
PDE_DIAGNOSTICS_EXPORT void _PDEProlog(const PDEObject *object, const char *format, ...);
PDE_DIAGNOSTICS_EXPORT void _PDEEpilog(const PDEObject *object, const char *format, ...);
PDE_DIAGNOSTICS_EXPORT void _PDELog(const PDEObject *object, const char *format, ...);

/*
 * The fields of one option and of its first choice to the log of the system, a line for each. Logs
 * that the file or the keyword is null; of an option that the PPD does not have, the first line
 * only.
 */
PDE_DIAGNOSTICS_EXPORT void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName);

/*
 * The settings as an XML property list in the file CvPDE_NAME.plist, which only its owner may read;
 * an older file of that name is replaced in one step. It lies in the folder that the environment
 * variable LABEL_PRINT_DUMP_FOLDER names; without it in the root of the file system when that is
 * writable, else in the folder for temporary files.
 *
 * No settings, no name, a name with a slash, or a folder that cannot be written to: no file. To be
 * called in the thread that the settings belong to.
 */
PDE_DIAGNOSTICS_EXPORT void _PDELog_PMPrintSettings_WriteToFile(const PMPrintSettings *settings,
                                                                const char *name);

/*
 * The filled format and a line feed; nothing when `level` is above 0. debugLog writes "DEBUG: " and
 * the text up to a zero unit to the standard error stream, debugLogFd the text alone to
 * `descriptor`.
 *
 * Descriptors stay open. One that blocks is waited for a quarter of a second each time that it is
 * full; then the rest of the call is dropped. One that does not block is not waited for.
 */
PDE_DIAGNOSTICS_EXPORT void debugLog(int level, const char *format, ...);
PDE_DIAGNOSTICS_EXPORT void debugLogFd(int level, int descriptor, const char *format, ...);

/*
 * The bytes as hexadecimal digits; nothing when `level` is above 0, `bytes` null or `length`
 * below 1. memoryCheck writes one line without an end to the standard error stream: "DEBUG:" in
 * front of each 16 bytes, and once more before the rest, also when that is empty. memoryCheckFd
 * writes a line for each 16 bytes and one for the rest to `descriptor`.
 */
PDE_DIAGNOSTICS_EXPORT void memoryCheck(int level, const void *bytes, int length);
PDE_DIAGNOSTICS_EXPORT void memoryCheckFd(int level, int descriptor, const void *bytes, int length);

#ifdef __cplusplus
}
#endif

#if defined(__clang__) && defined(__has_warning)
#pragma clang diagnostic pop
#endif

#endif
