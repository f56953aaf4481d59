// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "graphics_panel/GraphicsKeys.h"
#include "platform/Controls.h"
#include "platform/NotificationCenter.h"
#include "ppd/PDEUtilsMethod.h"

#include <limits>

using namespace graphics;

namespace {

constexpr qint64 kNotFound = std::numeric_limits<qint64>::max();

qint64 indexOfObjectIdenticalTo(const ChoiceList &choices, const PDEChoice *choice)
{
    for (size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].get() == choice) {
            return qint64(i);
        }
    }
    return kNotFound;
}

void showLevel(const ChoiceList &choices, const PDEChoice *selection, QSlider *slider,
               QLineEdit *text)
{
    const qint64 shifted = indexOfObjectIdenticalTo(choices, selection) - 20;
    // Meant: the test looks at the shifted place and so never says no.
    if (shifted != kNotFound) {
        platform::setIntValue(slider, levelOfIndex(shifted + 20));
        platform::setIntValue(text, levelOfIndex(shifted + 20));
    }
}

} // namespace

void GraphicsPDE13_v300_::updateMarkedSelections(qint32 itemType)
{
    for (const BoundOption &bound : kBoundOptions) {
        if ((itemType & bound.itemType) == 0 || !(this->*bound.option)) {
            continue;
        }
        const ChoiceList *choices = (this->*bound.choices).get();
        const qint64 index = indexOfMarkedOrDefault(choices, bound.keyword);
        if (choices && index >= 0 && index < qint64(choices->size())) {
            this->*bound.selection = (*choices)[size_t(index)].get();
        }
    }
}

void GraphicsPDE13_v300_::updateUIItem(qint32 itemType)
{
    for (const BoundOption &bound : kBoundOptions) {
        if ((itemType & bound.itemType) != 0 && this->*bound.selection && this->*bound.choices) {
            (this->*bound.show)();
        }
    }
}

void GraphicsPDE13_v300_::PPDOptionKeyValueDidChange(const std::optional<QString> &option,
                                                     const std::optional<QString> &ppdChoice)
{
    if (!option || !ppdChoice) {
        return;
    }
    for (const BoundOption &bound : kBoundOptions) {
        if (*option == QLatin1String(bound.keyword)) {
            const ChoiceList *choices = (this->*bound.choices).get();
            // The list keeps the choice alive.
            this->*bound.selection =
                PDEUtilsMethod13::findChoiceForString(ppdChoice, choices).get();
            return;
        }
    }
}

void GraphicsPDE13_v300_::showHalftone()
{
    const qint64 index = indexOfObjectIdenticalTo(*mHalftone_Choices, mHalftone_Selection);
    if (index != kNotFound) {
        platform::selectCellAtRow(mHalftoneRadio, index);
    }
    redrawHalftoneView();
}

void GraphicsPDE13_v300_::showBrightness()
{
    showLevel(*mBrightness_Choices, mBrightness_Selection, mBrightnessSlider, mBrightnessText);
    redrawBriConView();
}

void GraphicsPDE13_v300_::showContrast()
{
    showLevel(*mContrast_Choices, mContrast_Selection, mContrustSlider, mContrustText);
    redrawBriConView();
}

void GraphicsPDE13_v300_::showBiDiPrint()
{
    if (!platform::isEnabled(mBiDiPrintChkBx)) {
        return;
    }
    const qint64 index = indexOfObjectIdenticalTo(*mBiDiPrint_Choices, mBiDiPrint_Selection);
    if (index != kNotFound) {
        platform::setState(mBiDiPrintChkBx, index);
    }
}

void GraphicsPDE13_v300_::showColor()
{
    const qint64 index = indexOfObjectIdenticalTo(*mColor_Choices, mColor_Selection);
    if (index != kNotFound) {
        platform::selectItemAtIndex(mColorPUBtn, index);
        applyColorMode(index != 0);
    }
}

void GraphicsPDE13_v300_::showRedLevel()
{
    showLevel(*mRedLevel_Choices, mRedLevel_Selection, mRedLevelSlider, mRedLevelText);
}

void GraphicsPDE13_v300_::applyColorMode(bool blackRed)
{
    setBlackRedMode(false);
    platform::setEnabled(mRedLevelSlider, blackRed);
    setBlackRedMode(blackRed);
    announceColorMode((imageModeFlag() & kBlackRedMode) != 0);
}

void GraphicsPDE13_v300_::setBlackRedMode(bool blackRed)
{
    const int others = mImageModeFlag & ~int(kBlackRedMode);
    mImageModeFlag = qint16(blackRed ? others | kBlackRedMode : others);
}

void GraphicsPDE13_v300_::announceColorMode(bool blackRed)
{
    const void *host = pdePluginCallbackObject.get();
    platform::NotificationCenter::defaultCenter().post(
        kColorNotification, host, QVariantMap{{QLatin1String(kColorOption), blackRed}});
}
