// SPDX-License-Identifier: Apache-2.0
// read-barcodes: pictures come in, the codes in them go out, until there are no more pictures.
//
//     in   <width> <height> <format, or nothing for all>\n and width * height bytes of grey
//     out  <bars or field>\t<format>\t<x y of four corners>\t<text as UTF-8, in hexadecimal>\n ...
//          end\n
//
// The search runs in a child for each picture: the library ends its process over some of them. The
// next child goes on behind the step that did it.
#include "barcodes/CodeFormats.h"
#include "barcodes/CodeSearch.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using barcodes::FoundCode;
using barcodes::SearchStep;

constexpr int kLongestSide = 32'768;
constexpr std::size_t kMostPixels = 64U * 1024 * 1024;
/// A step that takes longer does not end, in seconds.
constexpr unsigned kLongestStep = 20;
/// Pictures that end more searches than this are not worth the time.
constexpr int kMostBadSteps = 20;

struct Request
{
    int width = 0;
    int height = 0;
    std::string format;
    std::vector<std::uint8_t> grey;
};

bool readLine(std::FILE *from, std::string &line)
{
    line.clear();
    for (int c = std::getc(from); c != EOF; c = std::getc(from)) {
        if (c == '\n') {
            return true;
        }
        line.push_back(char(c));
    }
    return false;
}

bool readRequest(Request &request)
{
    std::string line;
    int used = 0;
    if (!readLine(stdin, line)
        || std::sscanf(line.c_str(), "%d %d %n", &request.width, &request.height, &used) != 2
        || request.width < 1 || request.height < 1 || request.width > kLongestSide
        || request.height > kLongestSide) {
        return false;
    }
    request.format = line.substr(std::size_t(used));
    const auto pixels = std::size_t(request.width) * std::size_t(request.height);
    if (pixels > kMostPixels) {
        return false;
    }
    request.grey.resize(pixels);
    return std::fread(request.grey.data(), 1, pixels, stdin) == pixels;
}

std::string hexadecimal(const std::string &text)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string digits;
    for (const char c : text) {
        digits += kDigits[std::uint8_t(c) >> 4];
        digits += kDigits[std::uint8_t(c) & 15];
    }
    return digits;
}

void say(std::FILE *to, const FoundCode &code)
{
    std::fprintf(to, "%s\t%s\t", code.isLinear ? "bars" : "field", code.format.c_str());
    for (const barcodes::Spot &corner : code.corners) {
        std::fprintf(to, "%d %d ", corner.x, corner.y);
    }
    std::fprintf(to, "\t%s\n", hexadecimal(code.text).c_str());
}

/// In the child: does the steps from `first` on. A line with a number says that a step begins.
[[noreturn]] void search(const std::vector<SearchStep> &steps, std::size_t first, int pipe)
{
    // Nobody needs the core or the words of a search that ends badly, nor the search without us.
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDERR_FILENO);
    std::FILE *to = fdopen(pipe, "w");
    for (std::size_t i = first; i < steps.size(); ++i) {
        std::fprintf(to, "%zu\n", i);
        std::fflush(to);
        alarm(kLongestStep);
        try {
            for (const FoundCode &code : steps[i]()) {
                say(to, code);
            }
        } catch (const std::exception &) {
            // What the library stumbles over is nothing that a scanner reads.
        }
    }
    std::fclose(to);
    _exit(0);
}

/// Passes on what a child finds from step `first` on; the step that ended it, or none.
std::optional<std::size_t> passOnFrom(const std::vector<SearchStep> &steps, std::size_t first)
{
    int ends[2];
    if (pipe(ends) != 0) {
        return {};
    }
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        search(steps, first, ends[1]);
    }
    close(ends[1]);
    std::FILE *from = fdopen(ends[0], "r");
    std::size_t step = first;
    std::string line;
    while (readLine(from, line)) {
        if (line[0] >= '0' && line[0] <= '9') {
            step = std::size_t(std::atol(line.c_str()));
        } else {
            std::printf("%s\n", line.c_str());
        }
    }
    std::fclose(from);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) || child < 0 ? std::nullopt : std::optional(step);
}

void answer(const Request &request)
{
    const ZXing::ImageView picture(request.grey.data(), request.width, request.height,
                                   ZXing::ImageFormat::Lum);
    const std::vector<SearchStep> steps =
        barcodes::searchSteps(picture, barcodes::formatCalled(request.format));
    std::size_t next = 0;
    for (int bad = 0; bad <= kMostBadSteps && next < steps.size(); ++bad) {
        const std::optional<std::size_t> badStep = passOnFrom(steps, next);
        next = badStep ? *badStep + 1 : steps.size();
    }
    std::printf("end\n");
    std::fflush(stdout);
}

} // namespace

int main()
{
    Request request;
    while (readRequest(request)) {
        answer(request);
    }
    return 0;
}
