// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/LevelFixture.h"

#include "platform/Controls.h"

void PrintTo(const LevelNames &names, std::ostream *out)
{
    *out << names.setting;
}

std::string levelName(const testing::TestParamInfo<LevelNames> &info)
{
    return info.param.setting;
}

std::vector<LevelNames> allLevels()
{
    using Panel = GraphicsPDE13_v300_;
    return {{"Brightness", kBrightness, "CvBrightness", "Brightness", "HC_Brightness", 64,
             "mBrightnessSlider", "mBrightnessText", "mBrightnessTitle", "HlftnColMinTx",
             "HlftnColMidTx", "HlftnColMaxTx", &Panel::initializeUI_Brightness,
             &Panel::saveSetting_Brightness, &Panel::changeBrightness},
            {"Contrast", kContrast, "CvContrast", "Contrast", "HC_Contrast", 128, "mContrustSlider",
             "mContrustText", "mContrustTitle", "Hlftn2ColMinTx", "Hlftn2ColMidTx",
             "Hlftn2ColMaxTx", &Panel::initializeUI_Contrast, &Panel::saveSetting_Contrast,
             &Panel::changeContrast},
            {"RedLevel", kRedLevel, "CvRedLevel", "Red level", "HC_RedLevel", 6291456,
             "mRedLevelSlider", "mRedLevelText", "mRedLevelTitle", "mRedLevelMinTx",
             "mRedLevelMidTx", "mRedLevelMaxTx", &Panel::initializeUI_RedLevel,
             &Panel::saveSetting_RedLevel, &Panel::changeRedLevel}};
}

void LevelTest::useChoices(const QList<QByteArray> &choices, const QByteArray &defaultChoice)
{
    auto options = sixOptions();
    options[GetParam().place].choices = choices;
    options[GetParam().place].defaultChoice = defaultChoice;
    usePpd(options);
}

void LevelTest::useDefault(const QByteArray &keyword)
{
    useChoices(levelChoices(41), keyword);
}

void LevelTest::useNoOption()
{
    auto options = sixOptions();
    options.erase(options.begin() + qint64(GetParam().place));
    usePpd(options);
}

std::vector<std::string> LevelTest::takeChoices()
{
    const std::string prefix = std::string(GetParam().option) + "=";
    std::vector<std::string> choices;
    for (const std::string &change : takeChanges()) {
        EXPECT_TRUE(change.starts_with(prefix)) << change;
        choices.push_back(change.substr(prefix.size()));
    }
    return choices;
}

std::vector<std::string> LevelTest::saved()
{
    takeCalls();
    (panel.get()->*GetParam().save)();
    return takeChoices();
}

std::vector<std::string> LevelTest::changedTo(int level)
{
    platform::setIntValue(control<QSlider>(GetParam().slider), level);
    takeCalls();
    (panel.get()->*GetParam().change)(nullptr);
    return takeChoices();
}
