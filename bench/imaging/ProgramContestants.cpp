// SPDX-License-Identifier: Apache-2.0
// Pillow, timed within its own process, and netpbm, whose programs count less one that only reads
// and writes the same page.
#include "imaging/Contestant.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

namespace {

bool has(const std::string &program)
{
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

/// Processor time of `command` in milliseconds, its output going to `out`.
std::optional<double> timed(const std::string &command, const std::string &out)
{
    const pid_t child = fork();
    if (child == 0) {
        const std::string line = "exec " + command + " >'" + out + "' 2>/dev/null";
        execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        return {};
    }
    const auto ms = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

struct DotFile
{
    std::string kind;
    std::size_t width = 0;
    std::size_t height = 0;
};

/// The head of a PPM file or of a PAM file of one byte a pixel.
DotFile readHead(std::istream *file)
{
    DotFile head;
    *file >> head.kind;
    if (head.kind == "P6") {
        int largest = 0;
        *file >> head.width >> head.height >> largest;
        file->get();
        return head;
    }
    std::string word;
    while (*file >> word && word != "ENDHDR") {
        if (word == "WIDTH") {
            *file >> head.width;
        } else if (word == "HEIGHT") {
            *file >> head.height;
        }
    }
    file->get();
    return head;
}

/// The dots that a program wrote.
bool readDots(const std::string &path, DotPage *dots)
{
    std::ifstream file(path, std::ios::binary);
    const DotFile head = readHead(&file);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const std::size_t samples = head.kind == "P6" ? 3 : 1;
    const std::size_t count = head.width * head.height;
    if (count == 0 || bytes.size() < count * samples) {
        return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const char *pixel = &bytes[i * samples];
        if (samples == 1) {
            dots->push_back(pixel[0] == 0 ? 1 : 0);
        } else {
            dots->push_back(pixel[0] == 0 ? 1 : pixel[1] == 0 ? 2 : 0);
        }
    }
    return true;
}

Contestant pillow(const std::string &method, const std::string &page, bool twoColors,
                  const std::string &folder)
{
    const std::string out = folder + "/pillow.out";
    const std::string dotFile = folder + "/pillow.ppm";
    const std::string command = "/usr/bin/python3 " PILLOW_PEER " '" + page + "' " + method
        + (twoColors ? "3" : "") + " '" + dotFile + "'";
    return {method, "Pillow", [=](DotPage *dots) -> std::optional<Run> {
                if (!timed(command, out)) {
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
            }};
}

Contestant netpbm(const std::string &method, const std::string &command, const std::string &page,
                  const std::string &folder)
{
    const std::string out = folder + "/netpbm.out";
    const std::string baseline = "pamtopnm '" + page + "'";
    return {method, "netpbm", [=](DotPage *dots) -> std::optional<Run> {
                const auto copied = timed(baseline, folder + "/netpbm.copy");
                const auto took = timed(command + " '" + page + "'", out);
                if (!copied || !took || (dots && !readDots(out, dots))) {
                    return {};
                }
                const double net = *took - *copied;
                return Run{net, net};
            }};
}

void writePage(const TestPage &page, bool rgb, const std::string &path)
{
    std::ofstream file(path, std::ios::binary);
    file << (rgb ? "P6\n" : "P5\n") << page.width << ' ' << page.height << "\n255\n";
    const auto &bytes = rgb ? page.rgb : page.grey;
    file.write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
}

} // namespace

std::vector<Contestant> programContestants(const TestPage &toned, bool twoColors,
                                           const std::string &folder)
{
    const std::string page = folder + (twoColors ? "/page.ppm" : "/page.pgm");
    writePage(toned, twoColors, page);
    std::vector<Contestant> contestants;
    if (std::system("/usr/bin/python3 -c 'import PIL' 2>/dev/null") == 0) {
        contestants.push_back(pillow("threshold", page, twoColors, folder));
        contestants.push_back(pillow("diffusion", page, twoColors, folder));
    }
    if (has("pamditherbw") && has("pnmremap") && twoColors) {
        const std::string palette = folder + "/palette.ppm";
        std::ofstream(palette, std::ios::binary) << "P6\n3 1\n255\n"
                                                 << std::string("\xFF\xFF\xFF\0\0\0\xFF\0\0", 9);
        const std::string remap = "pnmremap -mapfile='" + palette + "' ";
        contestants.push_back(netpbm("threshold", remap + "-nofloyd", page, folder));
        contestants.push_back(netpbm("diffusion", remap + "-floyd", page, folder));
    } else if (has("pamditherbw")) {
        const std::string toPbm = "pamditherbw ";
        contestants.push_back(netpbm("threshold", toPbm + "-threshold", page, folder));
        contestants.push_back(netpbm("dither", toPbm + "-dither8", page, folder));
        contestants.push_back(netpbm("diffusion", toPbm + "-floyd", page, folder));
    }
    return contestants;
}
