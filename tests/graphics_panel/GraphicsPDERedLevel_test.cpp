// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelFixture.h"

#include "platform/Controls.h"

using testing::ElementsAre;

namespace {

class GraphicsPDERedLevel : public PanelTest
{
protected:
    bool enabledFor(int item)
    {
        platform::selectItemAtIndex(control<QComboBox>("mColorPUBtn"), item);
        platform::setEnabled(control<QSlider>("mRedLevelSlider"), item == 0);
        panel->initializeUI_RedLevel();
        return control<QSlider>("mRedLevelSlider")->isEnabled();
    }
};

TEST_F(GraphicsPDERedLevel, SliderIsEnabledUnlessMonochromeIsSelected)
{
    makeView();
    EXPECT_FALSE(enabledFor(0));
    EXPECT_TRUE(enabledFor(1));
    EXPECT_TRUE(enabledFor(-1));
}

TEST_F(GraphicsPDERedLevel, WithoutTheOptionTheSliderIsStillEnabledOrDisabled)
{
    usePpdFile(QStringLiteral("no-colour.ppd"));
    makeView();
    EXPECT_FALSE(enabledFor(0));
    EXPECT_TRUE(enabledFor(1));
}

TEST_F(GraphicsPDERedLevel, MissingPopUpDisablesTheSlider)
{
    makeView({QStringLiteral("mColorPUBtn")});
    panel->initializeUI_RedLevel();
    EXPECT_FALSE(control<QSlider>("mRedLevelSlider")->isEnabled());
}

TEST_F(GraphicsPDERedLevel, MonochromeIsNoHindranceToTheSave)
{
    makeView();
    EXPECT_FALSE(enabledFor(0));
    setText("mRedLevelText", "5");
    takeCalls();
    panel->saveSetting_RedLevel();
    EXPECT_THAT(takeChanges(), ElementsAre("CvRedLevel=5"));
}

TEST_F(GraphicsPDERedLevel, ShowingTheSelectionDoesNotEnableTheSlider)
{
    makeView();
    EXPECT_FALSE(enabledFor(0));
    GraphicsPDETestAccess(*panel).select("CvRedLevel", 5);
    panel->updateUIItem(0x200000);
    EXPECT_EQ(slider("mRedLevelSlider"), 15);
    EXPECT_FALSE(control<QSlider>("mRedLevelSlider")->isEnabled());
}

} // namespace
