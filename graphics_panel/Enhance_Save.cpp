// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/GraphicsPDE.h"

#include "graphics_panel/GraphicsKeys.h"
#include "platform/Controls.h"
#include "platform/TextEncodings.h"
#include "ppd/TapeInfo.h"

#include <algorithm>

using namespace graphics;

void GraphicsPDE13_v300_::saveSetting_Halftone()
{
    if (printSettings) {
        const qint64 index = mHalftoneRadio
            ? platform::selectedRow(mHalftoneRadio)
            : indexOfMarkedOrDefault(mHalftone_Choices.get(), kHalftoneOption);
        commit(mHalftone_Option, mHalftone_Choices.get(), index);
    }
}

void GraphicsPDE13_v300_::saveSetting_Brightness()
{
    saveLevel(brightnessLevel());
}

void GraphicsPDE13_v300_::saveSetting_Contrast()
{
    saveLevel(contrastLevel());
}

void GraphicsPDE13_v300_::saveSetting_BidiPrint()
{
    if (mBiDiPrint_Choices && printSettings) {
        // Meant: the state of the box is the place in the list, whatever the keywords there are.
        const qint64 index = mBiDiPrintChkBx
            ? platform::state(mBiDiPrintChkBx)
            : indexOfMarkedOrDefault(mBiDiPrint_Choices.get(), kBiDiPrintOption);
        commit(mBiDiPrint_Option, mBiDiPrint_Choices.get(), index);
    }
}

void GraphicsPDE13_v300_::saveSetting_Color()
{
    if (mColor_Choices && printSettings) {
        const qint64 index =
            mColorPUBtn ? platform::indexOfSelectedItem(mColorPUBtn) : indexOfColorWithoutPopUp();
        commit(mColor_Option, mColor_Choices.get(), index);
    }
}

void GraphicsPDE13_v300_::saveSetting_RedLevel()
{
    saveLevel(redLevel());
}

void GraphicsPDE13_v300_::saveLevel(const Level &level)
{
    if (printSettings) {
        const qint32 raw = level.text
            ? rawIndexOfLevel(platform::intValue(level.text))
            : qint32(indexOfMarkedOrDefault(level.choices, level.keyword));
        // Meant: the sign goes on both ways, so that neither a mark nor a default (-1) means 1.
        commit(level.option, level.choices, absoluteValue(raw));
    }
}

qint64 GraphicsPDE13_v300_::indexOfColorWithoutPopUp()
{
    const ChoiceList *choices = mColor_Choices.get();
    const qint32 mode = ticketColorMode();
    if (mode == kTicketSaysNothing) {
        return indexOfMarkedOrDefault(choices, kColorOption);
    }
    const bool blackRed = mode == kTicketSaysBlackRed;
    setBlackRedMode(blackRed);
    if (blackRed) {
        // Meant: monochrome is not announced here.
        announceColorMode(true);
    }
    const qint64 index = indexOfChoices(choices, blackRed ? kBlackRedChoice : kMonochromeChoice);
    return index == -1 ? indexOfDefaultOption(choices) : index;
}

qint32 GraphicsPDE13_v300_::ticketColorMode() const
{
    PMPrintSettings *settings = pdePluginCallbackObject->printSettings();
    PMPageFormat *format = pdePluginCallbackObject->pageFormat();
    TapeInfo info;
    // A paper that cannot be read leaves the mode monochrome, whatever the ticket says.
    GetTapeInfo(printSession, settings, format, ppd, &info);
    return info.colorSetting;
}

qint64 GraphicsPDE13_v300_::indexOfMarkedOrDefault(const ChoiceList *choices, const char *keyword)
{
    const qint64 marked = indexOfMarkedOption(choices, QLatin1String(keyword));
    return marked == -1 ? indexOfDefaultOption(choices) : marked;
}

void GraphicsPDE13_v300_::commit(const ppd_option_t *option, const ChoiceList *choices,
                                 qint64 index)
{
    if (!option || !choices || choices->empty()) {
        return;
    }
    const qint64 last = qint64(choices->size()) - 1;
    const qint64 used = std::clamp<qint64>(index, 0, last);
    const auto keyword = platform::decodeUtf8(option->keyword);
    const auto choice = platform::decodeUtf8((*choices)[size_t(used)]->choice()->choice);
    if (keyword && choice) {
        pdePluginCallbackObject->willChangePPDOptionKeyValue(*keyword, *choice);
    }
}
