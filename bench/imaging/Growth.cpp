// SPDX-License-Identifier: Apache-2.0
#include "imaging/Comparison.h"
#include "imaging/Measured.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

struct Figures
{
    std::vector<double> nanoseconds; ///< A pixel.
    std::vector<double> mebibytes;
};

using Name = std::pair<std::string, std::string>;

std::vector<Contestant> contestantsOf(const PageFile &page)
{
    std::vector<Contestant> all = ourContestants(page, {});
    for (auto more : {magickContestants(page, false), programContestants(page, false),
                      ghostscriptContestants(page, false)}) {
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

Figures &figuresOf(std::vector<std::pair<Name, Figures>> *table, const Contestant &contestant)
{
    const Name name{contestant.method, contestant.program};
    const auto known = std::find_if(table->begin(), table->end(),
                                    [&name](const auto &line) { return line.first == name; });
    return known != table->end() ? known->second : table->emplace_back(name, Figures()).second;
}

void measure(const TestPage &page, int rounds, const std::string &folder,
             std::vector<std::pair<Name, Figures>> *table)
{
    const PageFile file = pageFile(page, false, folder, "growth");
    for (const Contestant &contestant : contestantsOf(file)) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            if (const auto run = contestant.run(nullptr)) {
                times.push_back(run->dots);
            }
        }
        const auto needed = measured(contestant.command, folder + "/growth.out");
        Figures &figures = figuresOf(table, contestant);
        figures.nanoseconds.push_back(median(times) * 1e6 / double(page.width * page.height));
        figures.mebibytes.push_back(needed ? double(needed->kibibytes) / 1024.0 : 0.0);
    }
}

/// 0 is what could not be measured.
void printFigures(const std::vector<double> &figures, int digits)
{
    for (const double figure : figures) {
        figure > 0.0 ? std::printf(" %8.*f", digits, figure) : std::printf(" %8s", "-");
    }
}

} // namespace

void printGrowth(std::size_t width, const std::vector<int> &millimetres, int rounds,
                 const std::string &folder)
{
    std::vector<std::pair<Name, Figures>> table;
    for (const int length : millimetres) {
        measure(drawPage(Subject::PhotoAndText, width, rowsOf(length)), rounds, folder, &table);
    }
    std::printf("\nnanoseconds a pixel and largest resident set in MiB by length of the page, from "
                "grey\n  %-23s",
                "mm");
    for (int column = 0; column < 2; ++column) {
        for (const int length : millimetres) {
            std::printf(" %8d", length);
        }
    }
    for (const auto &[name, figures] : table) {
        std::printf("\n  %-10s %-12s", name.first.c_str(), name.second.c_str());
        printFigures(figures.nanoseconds, 3);
        printFigures(figures.mebibytes, 1);
    }
    std::printf("\n");
}
