// SPDX-License-Identifier: Apache-2.0
#include "imaging/Comparison.h"

#include "imaging/Blur.h"
#include "imaging/Measured.h"

#include "imaging/Grey.h"
#include "imaging/Tone.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr int kBrightness = 2;
constexpr int kContrast = 3;
constexpr double kEyeWidths[] = {24.0, 2.0};

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
    std::optional<Needed> needed;
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

double timeOfCopy(const TestPage &page, bool rgb)
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

/// Everybody in turns, so that a slow moment of the machine hits all of them.
std::vector<Result> resultsOf(const std::vector<Contestant> &contestants, int rounds,
                              const std::function<void()> &copy)
{
    std::vector<Result> results(contestants.size());
    for (int round = 0; round < rounds; ++round) {
        copy();
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
    return results;
}

void printResult(const Result &result, double copy)
{
    std::printf("  %-10s %-12s %9.2f ", result.contestant->method.c_str(),
                result.contestant->program.c_str(), median(result.dots));
    result.packed.empty() ? std::printf("%9s ", "-") : std::printf("%9.2f ", median(result.packed));
    std::printf("%8.1f ", median(result.dots) / copy);
    result.needed ? std::printf("%8.1f ", double(result.needed->kibibytes) / 1024.0)
                  : std::printf("%8s ", "-");
    std::printf("%9.2f %9.2f\n", result.errors[0], result.errors[1]);
}

/// What Ghostscript's time has in it that is not dots.
void printStart(const std::string &folder)
{
    if (!has("gs")) {
        return;
    }
    const auto empty = measured("gs -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=pbmraw -r300 "
                                "-sOutputFile=/dev/null -c quit",
                                folder + "/empty.out");
    if (empty) {
        std::printf("  starting and ending Ghostscript without a page: %.1f ms, within its times "
                    "above\n",
                    empty->milliseconds);
    }
}

} // namespace

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

std::size_t rowsOf(int millimetres)
{
    return std::size_t(double(millimetres) / 25.4 * 300.0);
}

void printComparison(const TestPage &page, bool rgb, bool twoColors, int rounds,
                     const std::string &folder)
{
    const TestPage toned = tonedPage(page);
    imaging::PageSettings settings;
    settings.brightness = kBrightness;
    settings.contrast = kContrast;
    settings.colorMode = twoColors ? imaging::ColorMode::BlackRed : imaging::ColorMode::Monochrome;
    std::vector<Contestant> contestants =
        ourContestants(pageFile(page, rgb, folder, "page"), settings);
    const PageFile tonedFile = pageFile(toned, rgb, folder, "toned");
    if (rgb == twoColors) {
        for (auto more :
             {magickContestants(tonedFile, twoColors), programContestants(tonedFile, twoColors),
              ghostscriptContestants(tonedFile, twoColors)}) {
            contestants.insert(contestants.end(), more.begin(), more.end());
        }
    }
    std::vector<double> copies;
    std::vector<Result> results =
        resultsOf(contestants, rounds, [&] { copies.push_back(timeOfCopy(page, rgb)); });
    std::printf("\n%s, %s\n  copy of the page: %.2f ms\n", twoColors ? "black and red" : "black",
                rgb ? "from colours" : "from grey", median(copies));
    std::printf("  %-10s %-12s %9s %9s %8s %8s %9s %9s\n", "method", "program", "dots ms",
                "bits ms", "copies", "MiB", "error 24", "error 2");
    for (Result &result : results) {
        judge(&result, toned, rgb);
        result.needed = measured(result.contestant->command, folder + "/needed.out");
        printResult(result, median(copies));
    }
    for (const char *method : {"threshold", "dither", "diffusion"}) {
        printAhead(results, method);
    }
    if (rgb == twoColors && !twoColors) {
        printStart(folder);
    }
}
