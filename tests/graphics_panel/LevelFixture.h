// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "graphics_panel/PanelFixture.h"

/// One of the settings that are levels, and its names.
struct LevelNames
{
    const char *setting;
    size_t place;
    const char *option;
    const char *title;
    const char *fallbackKey;
    qint32 itemType;
    const char *slider;
    const char *text;
    const char *titleLabel;
    const char *minimum;
    const char *middle;
    const char *maximum;
    void (GraphicsPDE13_v300_::*initialize)();
    void (GraphicsPDE13_v300_::*save)();
    void (GraphicsPDE13_v300_::*change)(QWidget *);
};

void PrintTo(const LevelNames &names, std::ostream *out);
std::string levelName(const testing::TestParamInfo<LevelNames> &info);

/// Brightness, contrast and red level.
std::vector<LevelNames> allLevels();

class LevelTest : public PanelTest, public testing::WithParamInterface<LevelNames>
{
protected:
    /// The six options with other choices or another default for this setting.
    void useChoices(const QList<QByteArray> &choices, const QByteArray &defaultChoice = "0");
    void useDefault(const QByteArray &keyword);
    void useNoOption();

    void initialize() { (panel.get()->*GetParam().initialize)(); }
    /// What a save asks the host for: the choices of this setting's option.
    std::vector<std::string> saved();
    /// The same for the slider's action, sent with the slider at `level`.
    std::vector<std::string> changedTo(int level);
    void setNumber(const char *text) { setText(GetParam().text, text); }
    std::string number() const { return text(GetParam().text); }
    int level() const { return slider(GetParam().slider); }

private:
    std::vector<std::string> takeChoices();
};
