// SPDX-License-Identifier: Apache-2.0
#include "filter/FilterRoutes.h"

#include <sstream>

namespace filter {

namespace {

/// "type cost program"; the program may have "maxsize(...)" before it.
FilterRoute routeOf(const std::string &text)
{
    std::istringstream words(text);
    FilterRoute route;
    words >> route.type;
    while (words >> route.program) { }
    return route;
}

} // namespace

std::vector<FilterRoute> filterRoutes(ppd_file_t *ppd)
{
    std::vector<FilterRoute> routes;
    routes.reserve(static_cast<std::size_t>(ppd->num_filters));
    for (int i = 0; i < ppd->num_filters; ++i) {
        routes.push_back(routeOf(ppd->filters[i]));
    }
    return routes;
}

std::vector<FilterRoute> preFilterRoutes(ppd_file_t *ppd)
{
    constexpr const char *kKeyword = "cupsPreFilter";
    std::vector<FilterRoute> routes;
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd, kKeyword, nullptr); attribute;
         attribute = ppdFindNextAttr(ppd, kKeyword, nullptr)) {
        routes.push_back(routeOf(attribute->value ? attribute->value : ""));
    }
    return routes;
}

} // namespace filter
