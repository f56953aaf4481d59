// SPDX-License-Identifier: Apache-2.0
#include "dialog/PpdRaster.h"

#include "imaging/SettingTexts.h"

#include <cstdio>
#include <string_view>

namespace dialog {

namespace {

/// What libcups takes for a PPD whose choices say nothing of the resolution.
constexpr QSize kUnstatedResolution(100, 100);

/// More than any label has; keeps arithmetic on dots away from the ends of the numbers.
constexpr unsigned kMostDots = 10'000'000;

constexpr double kPointsPerInch = 72;

std::string_view marked(ppd_file_t *ppd, const char *option)
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option);
    return choice == nullptr ? std::string_view() : std::string_view(choice->choice);
}

imaging::PageSettings settingsOf(ppd_file_t *ppd)
{
    const imaging::PageSettings defaults;
    imaging::PageSettings settings;
    settings.method =
        imaging::halftoneMethodOf(marked(ppd, "CvHalftonePattern")).value_or(defaults.method);
    settings.brightness = imaging::levelOf(marked(ppd, "CvBrightness")).value_or(0);
    settings.contrast = imaging::levelOf(marked(ppd, "CvContrast")).value_or(0);
    settings.colorMode =
        imaging::colorModeOf(marked(ppd, "CvMultiColor")).value_or(defaults.colorMode);
    settings.redLevel = imaging::levelOf(marked(ppd, "CvRedLevel")).value_or(0);
    return settings;
}

/// "300dpi" or "300x600dpi", of the marked choice of Resolution or of *DefaultResolution.
QSize namedResolution(ppd_file_t *ppd)
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, "Resolution");
    const ppd_attr_t *attribute = ppdFindAttr(ppd, "DefaultResolution", nullptr);
    const char *text = choice != nullptr ? choice->choice
        : attribute != nullptr           ? attribute->value
                                         : nullptr;
    int across = 0;
    int down = 0;
    switch (text == nullptr ? 0 : std::sscanf(text, "%5dx%5d", &across, &down)) {
    case 1:
        return {across, across};
    case 2:
        return {across, down};
    default:
        return {};
    }
}

/// As libcups rounds them.
QSize dotsOf(const cups_page_header2_t &header, const QSize &resolution)
{
    const float *box = header.cupsImagingBBox;
    const QSizeF inches(double(box[2] - box[0]) / kPointsPerInch,
                        double(box[3] - box[1]) / kPointsPerInch);
    return {int(inches.width() * resolution.width() + 0.5),
            int(inches.height() * resolution.height() + 0.5)};
}

} // namespace

std::optional<cups_page_header2_t> pageHeaderOf(ppd_file_t *ppd)
{
    if (ppd == nullptr || ppdPageSize(ppd, nullptr) == nullptr) {
        return {};
    }
    cups_page_header2_t header{};
    if (cupsRasterInterpretPPD(&header, ppd, 0, nullptr, nullptr) != 0) {
        return {};
    }
    const bool isPage = header.cupsWidth > 0 && header.cupsHeight > 0
        && header.cupsWidth <= kMostDots && header.cupsHeight <= kMostDots;
    return isPage ? std::optional(header) : std::nullopt;
}

std::optional<DotForm> dotFormOf(ppd_file_t *ppd)
{
    if (ppd == nullptr || ppdFindOption(ppd, "CvHalftonePattern") == nullptr) {
        return {};
    }
    const std::optional<cups_page_header2_t> header = pageHeaderOf(ppd);
    if (!header) {
        return {};
    }
    DotForm form;
    form.settings = settingsOf(ppd);
    form.resolution = QSize(int(header->HWResolution[0]), int(header->HWResolution[1]));
    form.dots = QSize(int(header->cupsWidth), int(header->cupsHeight));
    const QSize named = namedResolution(ppd);
    if (form.resolution == kUnstatedResolution && !named.isEmpty()) {
        form.resolution = named;
        form.dots = dotsOf(*header, named);
    }
    // From the bottom left corner: left, bottom, right, top.
    form.origin = QPointF(header->cupsImagingBBox[0],
                          double(header->cupsPageSize[1]) - header->cupsImagingBBox[3]);
    return form;
}

bool hasGraphicsFilter(ppd_file_t *ppd)
{
    const ppd_attr_t *filter =
        ppd == nullptr ? nullptr : ppdFindAttr(ppd, "cupsPreFilter", nullptr);
    for (; filter != nullptr; filter = ppdFindNextAttr(ppd, "cupsPreFilter", nullptr)) {
        // "application/vnd.cups-raster 0 labelgraphics"
        const std::string_view value(filter->value == nullptr ? "" : filter->value);
        const std::size_t space = value.find_last_of(" /");
        if (space != std::string_view::npos && value.substr(space + 1) == "labelgraphics") {
            return true;
        }
    }
    return false;
}

} // namespace dialog
