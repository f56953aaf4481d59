// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/JobSettings.h"
#include "dialog/PanelHost.h"
#include "dialog/PpdFile.h"

#include <gtest/gtest.h>

/// A job for a printer with a PPD of tests/data/ppd, defaults marked.
inline dialog::HostedJob testJob(const char *ppd = "six-options.ppd")
{
    auto opened = dialog::PpdFile::open(QStringLiteral(TEST_DATA_DIR "/ppd/") + QLatin1String(ppd));
    EXPECT_TRUE(opened) << opened.failure().text().toStdString();
    dialog::HostedJob job;
    job.ppd = std::move(opened).value();
    job.settings = std::make_shared<dialog::JobSettings>();
    return job;
}
