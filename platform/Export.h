// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/qglobal.h>

// Marks what the shared library of `platform/` and the contract offers to dialog and bundles.
#ifdef LABELPRINT_PLATFORM_BUILD
#define PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define PLATFORM_EXPORT Q_DECL_IMPORT
#endif
