// SPDX-License-Identifier: Apache-2.0
#include "filter/AskedRaster.h"

#include <cstring>

namespace filter {

namespace {

AskedRaster asked(ppd_file_t *ppd, const std::string &option, const std::string &choice)
{
    cups_page_header2_t header;
    // The status is left aside, as the raster filters do: what counts is the header they get.
    cupsRasterInterpretPPD(&header, ppd, 0, nullptr, nullptr);
    return {option, choice, header.cupsBitsPerColor, header.cupsColorSpace};
}

/// The code of a size of one's own asks for numbers that nobody has given.
bool hasCode(const ppd_choice_t &choice)
{
    return choice.code && *choice.code && std::strcmp(choice.choice, "Custom") != 0;
}

void collect(ppd_file_t *ppd, const ppd_group_t &group, std::vector<AskedRaster> &rasters)
{
    for (int i = 0; i < group.num_options; ++i) {
        const ppd_option_t &option = group.options[i];
        for (int j = 0; j < option.num_choices; ++j) {
            const ppd_choice_t &choice = option.choices[j];
            if (hasCode(choice)) {
                ppdMarkOption(ppd, option.keyword, choice.choice);
                rasters.push_back(asked(ppd, option.keyword, choice.choice));
                ppdMarkDefaults(ppd);
            }
        }
    }
    for (int i = 0; i < group.num_subgroups; ++i) {
        collect(ppd, group.subgroups[i], rasters);
    }
}

} // namespace

std::string AskedRaster::name() const
{
    return option.empty() ? "the default" : option + "=" + choice;
}

std::vector<AskedRaster> askedRasters(ppd_file_t *ppd)
{
    ppdMarkDefaults(ppd);
    std::vector<AskedRaster> rasters{asked(ppd, {}, {})};
    for (int i = 0; i < ppd->num_groups; ++i) {
        collect(ppd, ppd->groups[i], rasters);
    }
    return rasters;
}

} // namespace filter
