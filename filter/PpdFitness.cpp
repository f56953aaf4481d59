// SPDX-License-Identifier: Apache-2.0
#include "filter/PpdFitness.h"

#include "filter/AskedRaster.h"
#include "filter/FilterRoutes.h"

#include <algorithm>
#include <cctype>

namespace filter {

namespace {

constexpr const char *kRaster = "application/vnd.cups-raster";
constexpr const char *kCommands = "application/vnd.cups-command";

bool same(const std::string &a, const char *b)
{
    const auto lower = [](unsigned char c) { return std::tolower(c); };
    return std::equal(
        a.begin(), a.end(), b, b + std::char_traits<char>::length(b), [&](char x, char y) {
            return lower(static_cast<unsigned char>(x)) == lower(static_cast<unsigned char>(y));
        });
}

bool takesRaster(const FilterRoute &route)
{
    return same(route.type, kRaster);
}

std::optional<std::string> reasonInOptions(ppd_file_t *ppd)
{
    for (const std::string &keyword : graphicsOptionKeywords()) {
        if (ppdFindOption(ppd, keyword.c_str())) {
            return "it has the option " + keyword + " already; take the PPD without it";
        }
    }
    const std::vector<FilterRoute> before = preFilterRoutes(ppd);
    const auto raster = std::find_if(before.begin(), before.end(), takesRaster);
    if (raster != before.end()) {
        return "its pre-filter " + raster->program
            + " takes the place that labelgraphics needs, and CUPS runs only one; remove the "
              "line *cupsPreFilter that names it";
    }
    return {};
}

std::optional<std::string> reasonInFilters(ppd_file_t *ppd)
{
    const std::vector<FilterRoute> routes = filterRoutes(ppd);
    if (routes.empty()) {
        return "the printer gets PostScript, without a filter; labelgraphics prepares raster only";
    }
    if (std::none_of(routes.begin(), routes.end(), takesRaster)) {
        return "none of its filters takes CUPS raster (" + routes.front().program + " takes "
            + routes.front().type + "); labelgraphics prepares raster only";
    }
    for (const FilterRoute &route : routes) {
        if (takesRaster(route) && route.program == "-") {
            return "its raster goes to the printer without a filter, and CUPS then runs no "
                   "labelgraphics before it";
        }
        if (!takesRaster(route) && !same(route.type, kCommands)) {
            return "documents can go round labelgraphics, as the filter " + route.program
                + " takes " + route.type
                + "; remove the line that names it, so that all comes as "
                  "raster";
        }
    }
    return {};
}

bool isBlack(const AskedRaster &raster)
{
    return raster.colorSpace == CUPS_CSPACE_W || raster.colorSpace == CUPS_CSPACE_K
        || raster.colorSpace == CUPS_CSPACE_SW;
}

/// The colour spaces that have a place for red.
bool isColour(const AskedRaster &raster)
{
    return raster.colorSpace == CUPS_CSPACE_RGB || raster.colorSpace == CUPS_CSPACE_SRGB
        || raster.colorSpace == CUPS_CSPACE_CMY || raster.colorSpace == CUPS_CSPACE_CMYK
        || raster.colorSpace == CUPS_CSPACE_KCMY;
}

std::optional<std::string> reasonInRaster(ppd_file_t *ppd, Colours colours)
{
    const std::vector<AskedRaster> rasters = askedRasters(ppd);
    for (const AskedRaster &raster : rasters) {
        if (raster.bitsPerColor != 1 && raster.bitsPerColor != 8) {
            return raster.name() + " asks for raster of " + std::to_string(raster.bitsPerColor)
                + " bits for each colour; labelgraphics writes 1 or 8";
        }
        if (!isBlack(raster) && !isColour(raster)) {
            return raster.name() + " asks for raster of the colour space "
                + std::to_string(static_cast<int>(raster.colorSpace))
                + ", which labelgraphics does not write";
        }
    }
    const auto colour = std::find_if(rasters.begin(), rasters.end(), isColour);
    if (colours == Colours::Black && colour != rasters.end()) {
        return colour->name()
            + " prints in colour, of which labelgraphics would leave black only; if the printer "
              "prints black and red, say --two-colour";
    }
    if (colours == Colours::BlackAndRed && colour == rasters.end()) {
        return "no choice of it asks for raster in colour, so that red would come out black; "
               "leave --two-colour out";
    }
    return {};
}

} // namespace

std::optional<std::string> reasonAgainst(ppd_file_t *ppd, Colours colours)
{
    if (auto reason = reasonInOptions(ppd)) {
        return reason;
    }
    if (auto reason = reasonInFilters(ppd)) {
        return reason;
    }
    return reasonInRaster(ppd, colours);
}

std::optional<std::string> faultOf(ppd_file_t *ppd)
{
    for (const std::string &keyword : graphicsOptionKeywords()) {
        if (!ppdFindMarkedChoice(ppd, keyword.c_str())) {
            return "the options cannot be added at its end, where libcups does not find " + keyword
                + "; look for a quotation mark or an *End that is missing before";
        }
    }
    for (const AskedRaster &raster : askedRasters(ppd)) {
        const bool isRed = raster.choice == "CvMultiColorBlackRed";
        if (raster.bitsPerColor != 8
            || raster.colorSpace != (isRed ? CUPS_CSPACE_SRGB : CUPS_CSPACE_SW)) {
            return raster.name()
                + " keeps the page from being asked for in 8 bits; mend the PostScript code of "
                  "that choice";
        }
    }
    return {};
}

} // namespace filter
