// SPDX-License-Identifier: Apache-2.0
#include "imaging/Comparison.h"

#include <cstdio>

namespace {

void printLine(const std::vector<Contestant> &contestants, int rounds)
{
    for (const Contestant &contestant : contestants) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            if (const auto run = contestant.run(nullptr)) {
                times.push_back(run->dots);
            }
        }
        std::printf(" %9.2f", median(times));
    }
}

} // namespace

void printPaths(const TestPage &page, int rounds, const std::string &folder)
{
    std::printf("\nlabel-print by the processor's abilities, ms\n  %-22s", "");
    for (const char *method : {"threshold", "dither", "diffusion"}) {
        std::printf(" %9s", method);
    }
    constexpr const char *kPaths[] = {"plain", "SSE2", "AVX2"};
    for (const bool twoColors : {false, true}) {
        const PageFile file = pageFile(page, twoColors, folder, "path");
        imaging::PageSettings settings;
        settings.colorMode =
            twoColors ? imaging::ColorMode::BlackRed : imaging::ColorMode::Monochrome;
        for (const imaging::ProcessorPath path : imaging::processorPaths()) {
            std::printf("\n  %-16s %-5s", twoColors ? "black and red" : "black", kPaths[int(path)]);
            printLine(ourContestants(file, settings, path), rounds);
        }
    }
    std::printf("\n");
}
