// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "graphics_panel/GraphicsKeys.h"
#include "platform/Controls.h"
#include "platform/IntegerValue.h"
#include "platform/TextEncodings.h"
#include "ppd/PDEUtilsMethod.h"

#include <cstring>

using namespace graphics;

namespace {

/// The place of the first choice that is the option's default, or -1.
int indexOfFirstDefault(const ChoiceList *choices)
{
    const int count = choices ? int(choices->size()) : 0;
    for (int i = 0; i < count; ++i) {
        if ((*choices)[size_t(i)]->isDefaultChoice()) {
            return i;
        }
    }
    return -1;
}

} // namespace

void GraphicsPDE13_v300_::initializeUI_Halftone()
{
    platform::setStringValue(mHalftoneTitle, labelTitle(kHalftoneOption, kHalftoneKey));
    platform::setTitleOfRow(mHalftoneRadio, 0, localized(kBinaryKey));
    platform::setTitleOfRow(mHalftoneRadio, 1, localized(kDitherKey));
    platform::setTitleOfRow(mHalftoneRadio, 2, localized(kErrorDiffusionKey));
    platform::selectCellAtRow(mHalftoneRadio, indexOfFirstDefault(mHalftone_Choices.get()));
}

void GraphicsPDE13_v300_::initializeUI_Brightness()
{
    initializeLevel(brightnessLevel());
}

void GraphicsPDE13_v300_::initializeUI_Contrast()
{
    initializeLevel(contrastLevel());
}

void GraphicsPDE13_v300_::initializeUI_OtherStr()
{ }

void GraphicsPDE13_v300_::initializeUI_BidiPrint()
{
    platform::setEnabled(mBiDiPrintChkBx, mBiDiPrint_Option != nullptr);
    if (!mBiDiPrint_Choices) {
        return;
    }
    const QString key = titleInPPD(kBiDiPrintOption).value_or(kBiDiPrintKey);
    platform::setButtonTitle(mBiDiPrintChkBx, localized(key));
    if (!mBiDiPrint_Choices->empty()) {
        const ppd_option_t *option = mBiDiPrint_Choices->front()->choice()->option;
        // Meant: the keyword decides here, the place in the list when it is saved.
        const bool on = std::strncmp(option->defchoice, kBiDiPrintOnChoice, PPD_MAX_NAME) == 0;
        platform::setState(mBiDiPrintChkBx, on ? 1 : 0);
    }
}

void GraphicsPDE13_v300_::initializeUI_Color()
{
    if (!mColor_Choices) {
        return;
    }
    const bool enabled = mColor_Option != nullptr;
    PDEUtilsMethod13::setEnabledForText(enabled ? 1 : 0, mColorTitle);
    platform::setStringValue(mColorTitle, labelTitle(kColorOption, kColorKey));
    platform::setEnabled(mColorPUBtn, enabled);
    for (int i = 0; i < int(mColor_Choices->size()); ++i) {
        insertColorItem(i);
    }
    const qint32 mode = ticketColorMode();
    const qint64 index =
        mode != kTicketSaysNothing ? mode : indexOfFirstDefault(mColor_Choices.get());
    if (index >= 0) {
        platform::selectItemAtIndex(mColorPUBtn, index);
    }
}

void GraphicsPDE13_v300_::insertColorItem(int index)
{
    const ppd_option_t *option = ppdFindOption(ppd, kColorOption);
    const bool known = option && index < option->num_choices;
    const auto title = PDEUtilsMethod13::newChoiceTitle(known ? &option->choices[index] : nullptr);
    if (title) {
        platform::removeItemAtIndex(mColorPUBtn, index);
        platform::insertItem(mColorPUBtn, localized(title), index);
    } else {
        // Meant: both items come in front for every choice without a title, and none is removed.
        platform::insertItem(mColorPUBtn, localized(kMonochromeKey), 0);
        platform::insertItem(mColorPUBtn, localized(kBlackRedKey), 1);
    }
}

void GraphicsPDE13_v300_::initializeUI_RedLevel()
{
    initializeLevel(redLevel());
    platform::setEnabled(mRedLevelSlider, platform::indexOfSelectedItem(mColorPUBtn) != 0);
}

void GraphicsPDE13_v300_::initializeLevel(const Level &level)
{
    platform::setStringValue(level.minimum, localized(kMinValueKey));
    platform::setStringValue(level.middle, localized(kMidValueKey));
    platform::setStringValue(level.maximum, localized(kMaxValueKey));
    platform::setStringValue(level.title, labelTitle(level.keyword, level.titleKey));
    if (level.option) {
        const auto keyword = platform::decodeSystem(level.option->defchoice);
        platform::setStringValue(level.text, keyword);
        platform::setAltIncrementValue(level.slider, 1.0);
        platform::setIntValue(level.slider, platform::integerValue(keyword.value_or(QString())));
    }
}

QString GraphicsPDE13_v300_::localized(const std::optional<QString> &key) const
{
    return nsPDEBundle ? nsPDEBundle->localizedString(key) : key.value_or(QString());
}

std::optional<QString> GraphicsPDE13_v300_::titleInPPD(const char *option) const
{
    return PDEUtilsMethod13::newOptionTitle(ppdFindOption(ppd, option));
}

QString GraphicsPDE13_v300_::labelTitle(const char *option, QLatin1String fallbackKey) const
{
    const std::optional<QString> title = titleInPPD(option);
    return localized(title ? *title + kLabelSuffix : QString(fallbackKey));
}
