// SPDX-License-Identifier: Apache-2.0
// imaging_bench [ROUNDS [MILLIMETRES]]: prepares a page of 62 x 1000 mm at 300 dots an inch by this
// library and by the peers that are installed, in turns, and prints medians, what a plain copy of
// the page takes, how much memory each needs, the error after a blur, and how time and memory grow
// with the page.
#include "imaging/Comparison.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

constexpr std::size_t kWidth = 732;

/// How busy the machine is with other things.
void printLoad(const char *when)
{
    double loads[3] = {};
    if (getloadavg(loads, 3) == 3) {
        std::printf("load %s: %.2f %.2f %.2f\n", when, loads[0], loads[1], loads[2]);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    const int millimetres = argc > 2 ? std::max(1, std::atoi(argv[2])) : 1000;
    std::string folder = (std::filesystem::temp_directory_path() / "imaging-bench-XXXXXX").string();
    if (!mkdtemp(folder.data())) {
        std::fprintf(stderr, "imaging_bench: cannot make a folder in %s\n", folder.c_str());
        return 1;
    }
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    printLoad("at the start");
    {
        const TestPage page = drawPage(Subject::PhotoAndText, kWidth, rowsOf(millimetres));
        std::printf("\n%zu x %zu pixels, %d rounds, medians of processor time\n", page.width,
                    page.height, rounds);
        printComparison(page, false, false, rounds, folder);
        printComparison(page, true, false, rounds, folder);
        printComparison(page, true, true, rounds, folder);
        printPaths(page, rounds, folder);
    }
    printGrowth(kWidth, {10, 100, 1000, 3000}, std::min(rounds, 3), folder);
    printLoad("at the end");
    std::filesystem::remove_all(folder);
    return 0;
}
