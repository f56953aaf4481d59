// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "controls/PDETextField.h"
#include "graphics_panel/LevelFixture.h"

#include <string>
#include <vector>

/// A shown panel with the keyboard, and a person who types into the number field of a level.
class LevelEntryTest : public LevelTest
{
protected:
    LevelEntryTest();
    ~LevelEntryTest() override;

    /// Shows the panel in a window; its calls are forgotten.
    void open(const QStringList &missing = {});

    PDETextField13_v300_ *field() const;
    QSlider *levelSlider() const;
    /// As a hand does: selects what is there and types over it.
    void type(const char *text);
    void key(Qt::Key key);
    /// The choices that the host was asked for since the last call.
    std::vector<std::string> committed();
    /// The tool tip on the screen once everything that was asked for has happened.
    static std::string toolTip();

    int beeps = 0;
};
