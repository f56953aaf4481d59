// SPDX-License-Identifier: Apache-2.0
// Pillow, timed within its own process, netpbm, whose programs count less one that only reads and
// writes the same page, and Ghostscript, which counts from its start to its end.
#include "imaging/Contestant.h"
#include "imaging/Measured.h"

#include <cstdlib>
#include <fstream>

namespace {

Contestant pillow(const std::string &method, const PageFile &page, bool twoColors)
{
    const std::string out = page.folder + "/pillow.out";
    const std::string dotFile = page.folder + "/pillow.ppm";
    const std::string command = "/usr/bin/python3 " PILLOW_PEER " '" + page.path + "' " + method
        + (twoColors ? "3" : "") + " '" + dotFile + "'";
    return {method, "Pillow",
            [=](DotPage *dots) -> std::optional<Run> {
                if (!measured(command, out)) {
                    return {};
                }
                std::ifstream file(out);
                Run run;
                double packed = 0.0;
                if (!(file >> run.dots) || (dots && !readDots(dotFile, dots))) {
                    return {};
                }
                if (file >> packed) {
                    run.packed = packed;
                }
                return run;
            },
            command};
}

Contestant netpbm(const std::string &method, const std::string &program, const PageFile &page)
{
    const std::string out = page.folder + "/netpbm.out";
    const std::string baseline = "pamtopnm '" + page.path + "'";
    const std::string command = program + " '" + page.path + "'";
    return {method, "netpbm",
            [=](DotPage *dots) -> std::optional<Run> {
                const auto copied = measured(baseline, page.folder + "/netpbm.copy");
                const auto took = measured(command, out);
                if (!copied || !took || (dots && !readDots(out, dots))) {
                    return {};
                }
                const double net = took->milliseconds - copied->milliseconds;
                return Run{net, net};
            },
            command};
}

/// A PostScript file that shows the page's pixels as they are, one a dot.
std::string postScriptFile(const PageFile &page, const std::string &screen)
{
    const std::string path = page.folder + "/page" + (screen.empty() ? "" : "-screen") + ".ps";
    const auto width = std::to_string(page.page.width);
    const auto height = std::to_string(page.page.height);
    const std::string points = std::to_string(double(page.page.width) * 72.0 / 300.0) + ' '
        + std::to_string(double(page.page.height) * 72.0 / 300.0);
    std::ofstream file(path, std::ios::binary);
    file << "%!PS\n<</PageSize [" << points << "]>> setpagedevice\n"
         << screen << "/DeviceGray setcolorspace\n"
         << points << " scale\n<</ImageType 1 /Width " << width << " /Height " << height
         << " /BitsPerComponent 8 /Decode [0 1] /ImageMatrix [" << width << " 0 0 -" << height
         << " 0 " << height << "] /DataSource currentfile>> image\n";
    file.write(reinterpret_cast<const char *>(page.page.grey.data()),
               std::streamsize(page.page.grey.size()));
    file << "\nshowpage\n";
    return path;
}

Contestant ghostscript(const std::string &method, const PageFile &page, const std::string &screen)
{
    const std::string out = page.folder + "/gs.pbm";
    const std::string command = "gs -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=pbmraw -r300 "
                                "-sOutputFile='"
        + out + "' '" + postScriptFile(page, screen) + "'";
    return {method, "Ghostscript",
            [=](DotPage *dots) -> std::optional<Run> {
                const auto took = measured(command, page.folder + "/gs.out");
                if (!took || (dots && !readDots(out, dots))) {
                    return {};
                }
                return Run{took->milliseconds, took->milliseconds};
            },
            command};
}

} // namespace

std::vector<Contestant> programContestants(const PageFile &toned, bool twoColors)
{
    std::vector<Contestant> contestants;
    if (std::system("/usr/bin/python3 -c 'import PIL' 2>/dev/null") == 0) {
        contestants.push_back(pillow("threshold", toned, twoColors));
        contestants.push_back(pillow("diffusion", toned, twoColors));
    }
    if (has("pamditherbw") && has("pnmremap") && twoColors) {
        const std::string palette = toned.folder + "/palette.ppm";
        std::ofstream(palette, std::ios::binary) << "P6\n3 1\n255\n"
                                                 << std::string("\xFF\xFF\xFF\0\0\0\xFF\0\0", 9);
        const std::string remap = "pnmremap -mapfile='" + palette + "' ";
        contestants.push_back(netpbm("threshold", remap + "-nofloyd", toned));
        contestants.push_back(netpbm("diffusion", remap + "-floyd", toned));
    } else if (has("pamditherbw")) {
        const std::string toPbm = "pamditherbw ";
        contestants.push_back(netpbm("threshold", toPbm + "-threshold", toned));
        contestants.push_back(netpbm("dither", toPbm + "-dither8", toned));
        contestants.push_back(netpbm("diffusion", toPbm + "-floyd", toned));
    }
    return contestants;
}

std::vector<Contestant> ghostscriptContestants(const PageFile &toned, bool twoColors)
{
    if (twoColors || !has("gs")) {
        return {};
    }
    // A screen of one place is a threshold.
    const std::string threshold =
        "<</HalftoneType 3 /Width 1 /Height 1 /Thresholds <80>>> sethalftone\n";
    return {ghostscript("threshold", toned, threshold), ghostscript("dither", toned, "")};
}
