// SPDX-License-Identifier: Apache-2.0
// Any bytes as the raster of a job: pages come out, or one line says what is wrong. The first byte
// chooses the settings and the raster that the printer's filter takes.
#include "filter/GraphicsJob.h"
#include "filter/MemoryFile.h"
#include "fuzz/Require.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <sys/resource.h>
#include <unistd.h>

namespace {

using filter::GraphicsJob;

filter::JobSettings settingsOf(std::uint8_t choice)
{
    constexpr std::array kMethods = {imaging::HalftoneMethod::Binary,
                                     imaging::HalftoneMethod::Dither,
                                     imaging::HalftoneMethod::ErrorDiffusion};
    constexpr std::array kSpaces = {CUPS_CSPACE_K, CUPS_CSPACE_W, CUPS_CSPACE_RGB,
                                    CUPS_CSPACE_CMYK};
    constexpr std::array kOrders = {CUPS_ORDER_CHUNKED, CUPS_ORDER_BANDED, CUPS_ORDER_PLANAR};
    filter::JobSettings settings;
    settings.page.method = kMethods[choice % 3];
    settings.page.colorMode =
        choice % 2 == 0 ? imaging::ColorMode::Monochrome : imaging::ColorMode::BlackRed;
    settings.form = {choice % 5 == 0 ? 8U : 1U, kSpaces[choice / 4 % 4], kOrders[choice / 16 % 3]};
    return settings;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    // A few bytes can say that a white label is a kilometre long; that is no fault of theirs.
    constexpr rlimit kMost = {1 << 20, 1 << 20};
    setrlimit(RLIMIT_FSIZE, &kMost);
    std::signal(SIGXFSZ, SIG_IGN);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const int input = filter::memoryFile({reinterpret_cast<const char *>(data + 1), size - 1});
    const int output = filter::memoryFile({});
    int errors = 0;
    GraphicsJob job(settingsOf(data[0]), input, output, [&errors](const std::string &line) {
        require(!line.empty() && line.find('\n') == std::string::npos);
        errors += std::string_view(line).substr(0, 6) == "ERROR:" ? 1 : 0;
    });
    const bool isFailed = job.run() == GraphicsJob::Outcome::Failed;
    require(errors == (isFailed ? 1 : 0));
    close(input);
    close(output);
    return 0;
}
