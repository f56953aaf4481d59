// SPDX-License-Identifier: Apache-2.0
#include "imaging/Contestant.h"

#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

constexpr const char *kMethods[] = {"threshold", "dither", "diffusion"};

/// The page in one go, the object made anew as for each page that is printed.
std::optional<Run> prepare(const TestPage &page, const imaging::PageSettings &settings, bool rgb,
                           imaging::ProcessorPath path, DotPage *dots)
{
    const std::size_t rowBytes = (page.width + 7) / 8;
    std::vector<std::uint8_t> black(rowBytes * page.height);
    std::vector<std::uint8_t> red(black.size());
    const bool twoColors = settings.colorMode == imaging::ColorMode::BlackRed;
    const double start = processorTime();
    imaging::PagePreparation preparation(
        settings, page.width, rgb ? imaging::InputFormat::Rgb24 : imaging::InputFormat::Gray8,
        path);
    const bool done = preparation.rows(rgb ? page.rgb : page.grey, black,
                                       twoColors ? std::span(red) : std::span<std::uint8_t>());
    const double took = processorTime() - start;
    if (!done) {
        return {};
    }
    for (std::size_t i = 0; dots && i < page.width * page.height; ++i) {
        const std::size_t at = i / page.width * rowBytes + i % page.width / 8;
        const auto bit = 7 - i % page.width % 8;
        const int color = ((black[at] >> bit) & 1) + 2 * ((red[at] >> bit) & 1);
        dots->push_back(std::uint8_t(color));
    }
    return Run{took, took};
}

} // namespace

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

std::vector<Contestant> ourContestants(const PageFile &page, const imaging::PageSettings &settings,
                                       imaging::ProcessorPath path)
{
    const bool twoColors = settings.colorMode == imaging::ColorMode::BlackRed;
    std::vector<Contestant> contestants;
    for (int method = 0; method < 3; ++method) {
        imaging::PageSettings one = settings;
        one.method = imaging::HalftoneMethod(method);
        const std::string name = kMethods[method];
        contestants.push_back({name, "label-print",
                               [page, one, path](DotPage *dots) {
                                   return prepare(page.page, one, page.rgb, path, dots);
                               },
                               PREPARE_PAGE " " + name + (twoColors ? "3" : "") + " '" + page.path
                                   + "' '" + page.folder + "/ours.pbm'"});
    }
    return contestants;
}
