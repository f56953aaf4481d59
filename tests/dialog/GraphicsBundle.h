// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PanelSet.h"
#include "loading/BundleLoader.h"

#include <gtest/gtest.h>

/// The Graphics panel's bundle of this build, loaded as the program loads it.
inline dialog::PlugIns graphicsPlugIn()
{
    auto loaded = loading::BundleLoader().load(QStringLiteral(BUNDLE_DIR));
    EXPECT_TRUE(loaded) << loaded.failure().text().toStdString();
    dialog::PlugIns plugIns;
    plugIns.push_back(std::make_shared<loading::LoadedPlugIn>(std::move(loaded).value()));
    return plugIns;
}

inline const QString kSamplePpd = QStringLiteral(SOURCE_DIR "/resources/ppd/label-300.ppd");
