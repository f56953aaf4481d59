// SPDX-License-Identifier: Apache-2.0
#include "filter/JobSettings.h"

#include "filter/GraphicsOptions.h"
#include "filter/OpenPpd.h"
#include "filter/PpdInput.h"
#include "imaging/SettingTexts.h"

#include <cstring>
#include <optional>
#include <string_view>

#include <cups/cups.h>

namespace filter {

namespace {

constexpr std::size_t kLongestValue = 60;

class JobOptions
{
public:
    explicit JobOptions(const char *text)
        : mCount(cupsParseOptions(text, 0, &mOptions))
    { }
    JobOptions(const JobOptions &) = delete;
    JobOptions &operator=(const JobOptions &) = delete;
    ~JobOptions() { cupsFreeOptions(mCount, mOptions); }

    void mark(ppd_file_t *ppd) const { cupsMarkOptions(ppd, mCount, mOptions); }
    const char *value(const std::string &keyword) const
    {
        return cupsGetOption(keyword.c_str(), mCount, mOptions);
    }

private:
    cups_option_t *mOptions = nullptr;
    int mCount = 0;
};

/// The six options of a PPD that is marked, each as a value that can be used.
class MarkedOptions
{
public:
    MarkedOptions(ppd_file_t *ppd, std::vector<std::string> *warnings)
        : mPpd(ppd)
        , mWarnings(warnings)
    { }

    imaging::HalftoneMethod halftone() const
    {
        return known(imaging::halftoneMethodOf, "CvHalftonePattern", "error diffusion")
            .value_or(imaging::HalftoneMethod::ErrorDiffusion);
    }

    int level(const char *keyword) const
    {
        return known(imaging::levelOf, keyword, "0").value_or(0);
    }

    imaging::ColorMode colorMode() const
    {
        return known(imaging::colorModeOf, "CvMultiColor", "monochrome")
            .value_or(imaging::ColorMode::Monochrome);
    }

private:
    /// Empty when the PPD lacks the option, or its default.
    std::string marked(const char *keyword) const
    {
        const ppd_choice_t *choice = ppdFindMarkedChoice(mPpd, keyword);
        return choice ? choice->choice : "";
    }

    /// What the marked choice of `keyword` means to `meaning`; else a warning names what is used
    /// instead.
    template <class Value>
    std::optional<Value> known(std::optional<Value> (*meaning)(std::string_view),
                               const char *keyword, const std::string &instead) const
    {
        const std::string choice = marked(keyword);
        const std::optional<Value> value = meaning(choice);
        // A PPD without the option is none of label-ppd's, and has nothing to warn of.
        if (!value && ppdFindOption(mPpd, keyword)) {
            mWarnings->push_back("The printer's PPD has \"" + choice.substr(0, kLongestValue)
                                 + "\" for " + keyword + ", which means nothing; " + instead
                                 + " is used.");
        }
        return value;
    }

    ppd_file_t *mPpd;
    std::vector<std::string> *mWarnings;
};

std::string defaultOf(ppd_file_t *ppd, const std::string &keyword)
{
    const ppd_option_t *option = ppdFindOption(ppd, keyword.c_str());
    return option ? option->defchoice : "";
}

/// The values that libcups does not mark.
std::vector<std::string> unknownValues(ppd_file_t *ppd, const JobOptions &options)
{
    std::vector<std::string> warnings;
    for (const std::string &keyword : graphicsOptionKeywords()) {
        ppd_option_t *option = ppdFindOption(ppd, keyword.c_str());
        const char *value = options.value(keyword);
        if (option && value && !ppdFindChoice(option, value)) {
            warnings.push_back("The job asks for " + keyword + "="
                               + std::string(value).substr(0, kLongestValue)
                               + ", which is no choice of this printer; its default "
                               + defaultOf(ppd, keyword) + " is used.");
        }
    }
    return warnings;
}

/// The raster that the PPD asks for without the code of the colour mode, which asks for 8 bits.
RasterForm formBehind(ppd_file_t *ppd)
{
    ppd_choice_t *colours = ppdFindMarkedChoice(ppd, "CvMultiColor");
    char *code = colours ? colours->code : nullptr;
    if (colours) {
        colours->code = nullptr;
    }
    cups_page_header2_t header{};
    cupsRasterInterpretPPD(&header, ppd, 0, nullptr, nullptr);
    if (colours) {
        colours->code = code;
    }
    return {header.cupsBitsPerColor, header.cupsColorSpace, header.cupsColorOrder};
}

} // namespace

std::variant<JobSettings, NoSettings> jobSettings(ppd_file_t *ppd, const char *options)
{
    const JobOptions jobOptions(options);
    ppdMarkDefaults(ppd);
    jobOptions.mark(ppd);
    JobSettings settings;
    settings.warnings = unknownValues(ppd, jobOptions);
    const MarkedOptions marked(ppd, &settings.warnings);
    settings.page.method = marked.halftone();
    settings.page.brightness = marked.level("CvBrightness");
    settings.page.contrast = marked.level("CvContrast");
    settings.page.colorMode = marked.colorMode();
    settings.page.redLevel = marked.level("CvRedLevel");
    settings.form = formBehind(ppd);
    if (!settings.form.isWritable()) {
        return NoSettings{"the printer's PPD asks for raster of "
                          + std::to_string(settings.form.bits)
                          + " bits for each colour in colour space "
                          + std::to_string(static_cast<int>(settings.form.space))
                          + ", which labelgraphics does not write; make the PPD with label-ppd"};
    }
    return settings;
}

std::variant<JobSettings, NoSettings> jobSettings(const char *path, const char *options)
{
    if (!path) {
        return NoSettings{"the environment variable PPD names no file; the filter works in a queue "
                          "of CUPS that has a PPD"};
    }
    const auto input = readPpd(path);
    if (const auto *failed = std::get_if<Failure>(&input)) {
        return NoSettings{"the printer's PPD " + failed->what + ": " + failed->why};
    }
    auto opened = openPpd(std::get<PpdInput>(input).text);
    if (const auto *why = std::get_if<std::string>(&opened)) {
        return NoSettings{"the printer's PPD " + std::string(path) + ": " + *why};
    }
    return jobSettings(std::get<OpenPpd>(opened).get(), options);
}

} // namespace filter
