// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsOptions.h"

#include "filter/GraphicsTexts.h"

#include <cups/raster.h>

namespace filter {

namespace {

constexpr int kHighestLevel = 20;
constexpr int kOrderStep = 10;

struct Choice
{
    std::string keyword;
    std::string text;
    std::string code;
};

struct Option
{
    std::string keyword;
    std::string text;
    std::string section;
    std::string defaultChoice;
    std::vector<Choice> choices;
};

/// Whatever the printer's own choices ask for, these are read after them.
std::string rasterCode(cups_cspace_t colorSpace)
{
    return "<</cupsBitsPerColor 8/cupsColorOrder 0/cupsColorSpace "
        + std::to_string(static_cast<int>(colorSpace)) + ">>setpagedevice";
}

std::vector<Choice> levels()
{
    std::vector<Choice> choices;
    for (int level = kHighestLevel; level >= -kHighestLevel; --level) {
        const std::string keyword = std::to_string(level);
        choices.push_back({keyword, level > 0 ? "+" + keyword : keyword, ""});
    }
    return choices;
}

Option colourMode(Colours colours)
{
    Option option{"CvMultiColor", "Colour mode", "PageSetup", "CvMultiColorMonochrome", {}};
    option.choices.push_back({"CvMultiColorMonochrome", "Monochrome", rasterCode(CUPS_CSPACE_SW)});
    if (colours == Colours::BlackAndRed) {
        option.choices.push_back(
            {"CvMultiColorBlackRed", "Black and red", rasterCode(CUPS_CSPACE_SRGB)});
    }
    return option;
}

std::vector<Option> optionsFor(Colours colours)
{
    return {
        {"CvHalftonePattern",
         "Halftone",
         "AnySetup",
         "ErrorDiffusion",
         {{"Binary", "Binary", ""},
          {"Dither", "Dither", ""},
          {"ErrorDiffusion", "Error diffusion", ""}}},
        {"CvBrightness", "Brightness", "AnySetup", "0", levels()},
        {"CvContrast", "Contrast", "AnySetup", "0", levels()},
        {"CvBiDiPrint",
         "Bi-directional printing",
         "AnySetup",
         "ON",
         {{"OFF", "Off", ""}, {"ON", "On", ""}}},
        colourMode(colours),
        {"CvRedLevel", "Red level", "AnySetup", "0", levels()},
    };
}

std::string optionLines(const Option &option, int order)
{
    std::string lines = "\n*OpenUI *" + option.keyword + "/" + option.text + ": PickOne\n";
    lines += "*OrderDependency: " + std::to_string(order) + " " + option.section + " *"
        + option.keyword + "\n";
    lines += "*Default" + option.keyword + ": " + option.defaultChoice + "\n";
    for (const Choice &choice : option.choices) {
        lines += "*" + option.keyword + " " + choice.keyword + "/" + choice.text + ": \""
            + choice.code + "\"\n";
    }
    return lines + "*CloseUI: *" + option.keyword + "\n";
}

std::string translationLines(const std::vector<Option> &options, const std::string &language)
{
    const auto text = [&](const std::string &english) {
        return std::string(translated(english, language)) + ": \"\"\n";
    };
    std::string lines = "\n*" + language + ".Translation Graphics/" + text("Graphics");
    for (const Option &option : options) {
        lines += "*" + language + ".Translation " + option.keyword + "/" + text(option.text);
        for (const Choice &choice : option.choices) {
            lines += "*" + language + "." + option.keyword + " " + choice.keyword + "/"
                + text(choice.text);
        }
    }
    return lines;
}

} // namespace

const std::vector<std::string> &graphicsOptionKeywords()
{
    static const std::vector<std::string> keywords = [] {
        std::vector<std::string> result;
        for (const Option &option : optionsFor(Colours::Black)) {
            result.push_back(option.keyword);
        }
        return result;
    }();
    return keywords;
}

std::string graphicsOptionLines(const OptionSetup &setup)
{
    const std::vector<Option> options = optionsFor(setup.colours);
    std::string lines = "\n*% Added by label-ppd: labelgraphics prepares each page for the "
                        "printer's own filter.\n"
                        "*cupsPreFilter: \"application/vnd.cups-raster 0 labelgraphics\"\n"
                        "*OpenGroup: Graphics/Graphics\n";
    int order = setup.order;
    for (const Option &option : options) {
        lines += optionLines(option, order);
        order += kOrderStep;
    }
    lines += "\n*CloseGroup: Graphics\n";
    for (const std::string &language : setup.languages) {
        lines += translationLines(options, language);
    }
    return lines + "\n";
}

} // namespace filter
