// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "graphics_panel/GraphicsKeys.h"
#include "platform/Controls.h"

using namespace graphics;

void GraphicsPDE13_v300_::changeHalftone(QWidget * /*sender*/)
{
    redrawHalftoneView();
    const qint32 row = platform::selectedRow(mHalftoneRadio);
    selectionForItem(row, QLatin1String(kHalftoneOption), mHalftone_Choices.get(), kHalftoneItem);
    updateUIItem(kHalftoneItem);
}

void GraphicsPDE13_v300_::changeBrightness(QWidget * /*sender*/)
{
    redrawBriConView();
    chooseLevel(brightnessLevel(), platform::intValue(mBrightnessSlider));
}

void GraphicsPDE13_v300_::changeContrast(QWidget * /*sender*/)
{
    redrawBriConView();
    chooseLevel(contrastLevel(), platform::intValue(mContrustSlider));
}

void GraphicsPDE13_v300_::changeBidiPrint(QWidget * /*sender*/)
{
    const qint32 state = platform::state(mBiDiPrintChkBx);
    selectionForItem(state, QLatin1String(kBiDiPrintOption), mBiDiPrint_Choices.get(),
                     kBiDiPrintItem);
    updateUIItem(kBiDiPrintItem);
}

void GraphicsPDE13_v300_::changeColor(QWidget * /*sender*/)
{
    const qint32 index = platform::indexOfSelectedItem(mColorPUBtn);
    selectionForItem(index, QLatin1String(kColorOption), mColor_Choices.get(), kColorItem);
    updateUIItem(kColorItem);
    // Meant: the mode that updateUIItem announced is announced once more. No item (-1) is not
    // monochrome.
    applyColorMode(index != 0);
}

void GraphicsPDE13_v300_::changeRedLevel(QWidget * /*sender*/)
{
    chooseLevel(redLevel(), platform::intValue(mRedLevelSlider));
}
