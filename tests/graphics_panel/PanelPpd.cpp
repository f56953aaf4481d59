// SPDX-License-Identifier: Apache-2.0
#include "graphics_panel/PanelPpd.h"

QList<QByteArray> levelChoices(int count, int highest)
{
    QList<QByteArray> choices;
    for (int level = highest; level > highest - count; --level) {
        const QByteArray number = QByteArray::number(level);
        choices << number + (level > 0 ? "/+" : "/") + number;
    }
    return choices;
}

std::vector<PpdOption> sixOptions()
{
    return {
        {"CvHalftonePattern",
         "Halftone",
         "ErrorDiffusion",
         {"Binary/Binary", "Dither/Dither", "ErrorDiffusion/Error diffusion"}},
        {"CvBrightness", "Brightness", "0", levelChoices(41)},
        {"CvContrast", "Contrast", "0", levelChoices(41)},
        {"CvBiDiPrint", "Bi-directional printing", "ON", {"OFF/Off", "ON/On"}},
        {"CvMultiColor",
         "Colour mode",
         "CvMultiColorMonochrome",
         {"CvMultiColorMonochrome/Monochrome", "CvMultiColorBlackRed/Black and red"}},
        {"CvRedLevel", "Red level", "0", levelChoices(41)},
    };
}

QByteArray ppdText(const std::vector<PpdOption> &options)
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n";
    for (const PpdOption &option : options) {
        text += "*OpenUI *" + option.keyword + "/" + option.title + ": PickOne\n";
        if (!option.defaultChoice.isEmpty()) {
            text += "*Default" + option.keyword + ": " + option.defaultChoice + "\n";
        }
        for (const QByteArray &choice : option.choices) {
            text += "*" + option.keyword + " " + choice + ": \"\"\n";
        }
        text += "*CloseUI: *" + option.keyword + "\n";
    }
    return text;
}
