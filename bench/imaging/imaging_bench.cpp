// SPDX-License-Identifier: Apache-2.0
// imaging_bench [ROUNDS [MILLIMETRES]]: prepares a page of 62 x 1000 mm at 300 dots an inch by this
// library and by the peers that are installed, in turns, and prints medians, what a plain copy of
// the page takes, the error after a blur, how time grows with the page and how much memory it
// needs.
#include "imaging/Blur.h"
#include "imaging/Contestant.h"

#include "imaging/Grey.h"
#include "imaging/Tone.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace {

constexpr std::size_t kWidth = 732;
constexpr int kBrightness = 2;
constexpr int kContrast = 3;
constexpr double kEyeWidths[] = {24.0, 2.0};

std::size_t rowsOf(int millimetres)
{
    return std::size_t(double(millimetres) / 25.4 * 300.0);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

TestPage tonedPage(const TestPage &page)
{
    const imaging::ToneTable tones = imaging::toneFilter(kBrightness, kContrast).table();
    TestPage toned = page;
    for (std::uint8_t &byte : toned.rgb) {
        byte = tones[byte];
    }
    for (std::uint8_t &byte : toned.grey) {
        byte = tones[byte];
    }
    return toned;
}

struct Result
{
    const Contestant *contestant = nullptr;
    std::vector<double> dots;
    std::vector<double> packed;
    double errors[2] = {};
};

/// The first rows only: enough to tell, and a blur takes its time.
void judge(Result *result, const TestPage &toned, bool rgbPage)
{
    DotPage dots;
    if (!result->contestant->run(&dots)) {
        return;
    }
    const std::size_t rows = std::min<std::size_t>(toned.height, 3600);
    std::vector<float> original(toned.width * rows);
    std::vector<float> printed(original.size());
    constexpr float kGreys[] = {255.0F, 0.0F, 77.0F * 255.0F / 256.0F};
    for (std::size_t i = 0; i < original.size(); ++i) {
        const std::uint8_t *rgb = &toned.rgb[i * 3];
        original[i] = float(rgbPage ? imaging::greyOf(rgb[0], rgb[1], rgb[2]) : toned.grey[i]);
        printed[i] = kGreys[dots[i]];
    }
    for (std::size_t i = 0; i < 2; ++i) {
        result->errors[i] = blurredDifference(original, printed, toned.width, rows, kEyeWidths[i]);
    }
}

double secondsOfCopy(const TestPage &page, bool rgb)
{
    const auto &bytes = rgb ? page.rgb : page.grey;
    std::vector<std::uint8_t> copy(bytes.size());
    const std::size_t row = bytes.size() / page.height;
    const double start = processorTime();
    for (std::size_t at = 0; at < bytes.size(); at += row) {
        std::memcpy(&copy[at], &bytes[at], row);
    }
    return processorTime() - start + (copy[copy.size() / 2] == 1 ? 1e-9 : 0.0);
}

/// Ours by the fastest of the others in the same method.
void printAhead(const std::vector<Result> &results, const std::string &method)
{
    double ours = 0.0;
    double dots = 0.0;
    double packed = 0.0;
    for (const Result &result : results) {
        if (result.contestant->method != method || result.dots.empty()) {
            continue;
        }
        const double time = median(result.dots);
        const double toBits = result.packed.empty() ? time : median(result.packed);
        if (result.contestant->program == "label-print") {
            ours = time;
        } else {
            dots = dots == 0.0 ? time : std::min(dots, time);
            packed = packed == 0.0 ? toBits : std::min(packed, toBits);
        }
    }
    if (ours > 0.0 && dots > 0.0) {
        std::printf("  %s: %.1f times the fastest peer, %.1f times the fastest with packed bits\n",
                    method.c_str(), dots / ours, packed / ours);
    }
}

void compare(const TestPage &page, const TestPage &toned, bool rgb, bool twoColors, int rounds,
             const std::string &folder)
{
    imaging::PageSettings settings;
    settings.brightness = kBrightness;
    settings.contrast = kContrast;
    settings.colorMode = twoColors ? imaging::ColorMode::BlackRed : imaging::ColorMode::Monochrome;
    std::vector<Contestant> contestants = ourContestants(page, settings, rgb);
    if (rgb == twoColors) {
        for (auto more :
             {magickContestants(toned, twoColors), programContestants(toned, twoColors, folder)}) {
            contestants.insert(contestants.end(), more.begin(), more.end());
        }
    }
    std::vector<Result> results(contestants.size());
    std::vector<double> copies;
    for (int round = 0; round < rounds; ++round) {
        copies.push_back(secondsOfCopy(page, rgb));
        for (std::size_t i = 0; i < contestants.size(); ++i) {
            results[i].contestant = &contestants[i];
            if (const auto run = contestants[i].run(nullptr)) {
                results[i].dots.push_back(run->dots);
                if (run->packed) {
                    results[i].packed.push_back(*run->packed);
                }
            }
        }
    }
    std::printf("\n%s, %s\n  copy of the page: %.2f ms\n", twoColors ? "black and red" : "black",
                rgb ? "from colours" : "from grey", median(copies));
    std::printf("  %-10s %-12s %9s %9s %8s %9s %9s\n", "method", "program", "dots ms", "bits ms",
                "copies", "error 24", "error 2");
    for (Result &result : results) {
        judge(&result, toned, rgb);
        std::printf("  %-10s %-12s %9.2f ", result.contestant->method.c_str(),
                    result.contestant->program.c_str(), median(result.dots));
        result.packed.empty() ? std::printf("%9s ", "-")
                              : std::printf("%9.2f ", median(result.packed));
        std::printf("%8.1f %9.2f %9.2f\n", median(result.dots) / median(copies), result.errors[0],
                    result.errors[1]);
    }
    for (const char *method : {"threshold", "dither", "diffusion"}) {
        printAhead(results, method);
    }
}

void printGrowth(int rounds)
{
    std::printf("\nnanoseconds a pixel by length of the page, grey\n  %-10s", "mm");
    for (const char *method : {"threshold", "dither", "diffusion"}) {
        std::printf(" %10s", method);
    }
    for (const int millimetres : {10, 100, 1000, 3000}) {
        const TestPage page = drawPage(Subject::PhotoAndText, kWidth, rowsOf(millimetres));
        std::printf("\n  %-10d", millimetres);
        for (const Contestant &contestant : ourContestants(page, {}, false)) {
            std::vector<double> times;
            for (int round = 0; round < rounds * 2 + 1; ++round) {
                times.push_back(contestant.run(nullptr)->dots);
            }
            std::printf(" %10.3f", median(times) * 1e6 / double(page.width * page.height));
        }
    }
    std::printf("\n");
}

/// The largest resident set of a process that prepares so many rows one by one, in KiB.
long memoryOf(imaging::PageSettings settings, std::size_t rows)
{
    const pid_t child = fork();
    if (child == 0) {
        imaging::PagePreparation page(settings, kWidth, imaging::InputFormat::Rgb24);
        std::vector<std::uint8_t> row(page.inputRowBytes());
        std::vector<std::uint8_t> black(page.outputRowBytes());
        std::vector<std::uint8_t> red(page.outputRowBytes());
        for (std::size_t y = 0; y < rows; ++y) {
            row[y * 7 % row.size()] = std::uint8_t(y);
            if (!page.row(row, black, red)) {
                _exit(1);
            }
        }
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    return wait4(child, &status, 0, &usage) == child && status == 0 ? usage.ru_maxrss : -1;
}

void printMemory()
{
    std::printf("\nlargest resident set in KiB, rows one by one\n  %-24s %10s %10s\n", "method",
                "1 row", "118110");
    for (int method = 0; method < 3; ++method) {
        imaging::PageSettings settings;
        settings.method = imaging::HalftoneMethod(method);
        settings.colorMode = imaging::ColorMode::BlackRed;
        constexpr const char *kNames[] = {"threshold", "dither", "diffusion"};
        std::printf("  %-24s %10ld %10ld\n", kNames[method], memoryOf(settings, 1),
                    memoryOf(settings, 118110));
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
    printMemory();
    {
        const TestPage page = drawPage(Subject::PhotoAndText, kWidth, rowsOf(millimetres));
        const TestPage toned = tonedPage(page);
        std::printf("\n%zu x %zu pixels, %d rounds, medians of processor time\n", page.width,
                    page.height, rounds);
        compare(page, toned, false, false, rounds, folder);
        compare(page, toned, true, false, rounds, folder);
        compare(page, toned, true, true, rounds, folder);
    }
    printGrowth(rounds);
    std::filesystem::remove_all(folder);
    return 0;
}
