// SPDX-License-Identifier: Apache-2.0
// make_blue_noise FILE: writes the source of the dither matrix, imaging::kBlueNoise.
#include "imaging/BlueNoise.h"
#include "imaging/blue_noise/VoidAndCluster.h"

#include <cstdio>
#include <fstream>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("make_blue_noise: say which file to write\n", stderr);
        return 2;
    }
    std::ofstream file(argv[1]);
    file << "// SPDX-License-Identifier: Apache-2.0\n#include \"imaging/BlueNoise.h\"\n\n"
            "const std::uint8_t imaging::kBlueNoise[kBlueNoiseSide][kBlueNoiseSide] = {";
    const auto ranks = imaging::voidAndClusterRanks(imaging::kBlueNoiseSide);
    for (std::size_t place = 0; place < ranks.size(); ++place) {
        file << (place % imaging::kBlueNoiseSide == 0 ? (place == 0 ? "\n{" : "},\n{") : ",")
             << int(imaging::thresholdOfRank(ranks[place], ranks.size()));
    }
    file << "}};\n";
    file.close();
    if (!file) {
        std::fprintf(stderr,
                     "make_blue_noise: cannot write %s: see that the folder is there and has "
                     "room\n",
                     argv[1]);
        return 1;
    }
    return 0;
}
