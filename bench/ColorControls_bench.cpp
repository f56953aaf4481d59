// SPDX-License-Identifier: Apache-2.0
// The colour-controls filter next to a plain copy of the same bytes. The column `copies` tells how
// many copies could be made in the time, measured in the same run.
#include "imaging/ColorControls.h"

#include <benchmark/benchmark.h>

#ifdef HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

#include <algorithm>
#include <cstring>
#include <ctime>
#include <vector>

namespace {

// Brightness and contrast of levels 7 and -3.
constexpr float kBrightness = 0.175F;
constexpr float kContrast = 0.925F;

/// A square picture of tones that repeat only after a long while, and room for the result.
class Pictures
{
public:
    explicit Pictures(const benchmark::State &state)
        : mSide(std::size_t(state.range(0)))
        , mFrom(mSide * mSide * 4)
        , mTo(mSide * mSide * 4)
    {
        std::uint32_t bits = 1;
        for (std::uint8_t &byte : mFrom) {
            bits = bits * 1664525U + 1013904223U;
            byte = std::uint8_t(bits >> 24);
        }
    }

    imaging::PixelRows<const std::uint8_t> from() const
    {
        return {mFrom.data(), mSide, mSide, mSide * 4};
    }

    imaging::PixelRows<std::uint8_t> to() { return {mTo.data(), mSide, mSide, mSide * 4}; }

    void copy()
    {
        std::memcpy(mTo.data(), mFrom.data(), mFrom.size());
        benchmark::ClobberMemory();
    }

    std::size_t size() const { return mFrom.size(); }

private:
    std::size_t mSide;
    std::vector<std::uint8_t> mFrom;
    std::vector<std::uint8_t> mTo;
};

/// Processor time, so that other work on the machine does not count.
double secondsSince(std::clock_t start)
{
    return double(std::clock() - start) / double(CLOCKS_PER_SEC);
}

/// The usual time of one copy: the median of several rounds.
double secondsOfCopy(Pictures &pictures)
{
    const std::size_t copies = std::max<std::size_t>(1, (std::size_t(1) << 26) / pictures.size());
    std::vector<double> rounds;
    for (int round = 0; round < 15; ++round) {
        const std::clock_t start = std::clock();
        for (std::size_t i = 0; i < copies; ++i) {
            pictures.copy();
        }
        rounds.push_back(secondsSince(start) / double(copies));
    }
    std::nth_element(rounds.begin(), rounds.begin() + 7, rounds.end());
    return rounds[7];
}

template <typename Work> void measure(benchmark::State &state, Pictures &pictures, Work work)
{
    const double copySeconds = secondsOfCopy(pictures);
    const std::clock_t start = std::clock();
    for (auto _ : state) {
        work();
        benchmark::ClobberMemory();
    }
    const double seconds = secondsSince(start) / double(state.iterations());
    state.SetBytesProcessed(state.iterations() * std::int64_t(pictures.size()));
    state.counters["copies"] = seconds / copySeconds;
}

void plainCopy(benchmark::State &state)
{
    Pictures pictures(state);
    measure(state, pictures, [&pictures] { pictures.copy(); });
}

/// What one drawing does: the filter is made for the two levels, then goes over the picture.
void filterPicture(benchmark::State &state)
{
    Pictures pictures(state);
    measure(state, pictures, [&pictures] {
        const imaging::ColorControls filter({kBrightness, 1.0F}, {0.0F, kContrast});
        filter.apply(pictures.from(), pictures.to());
    });
}

void filterInPlace(benchmark::State &state)
{
    Pictures pictures(state);
    const imaging::PixelRows<std::uint8_t> to = pictures.to();
    measure(state, pictures, [to] {
        const imaging::ColorControls filter({kBrightness, 1.0F}, {0.0F, kContrast});
        filter.apply({to.bytes, to.width, to.height, to.bytesPerRow}, to);
    });
}

void filterByPath(benchmark::State &state, imaging::ProcessorPath path)
{
    Pictures pictures(state);
    const imaging::ColorControls filter({kBrightness, 1.0F}, {0.0F, kContrast});
    measure(state, pictures, [&] { filter.apply(pictures.from(), pictures.to(), path); });
}

#ifdef HAVE_OPENCV
void openCvConvertTo(benchmark::State &state)
{
    cv::setNumThreads(1);
    Pictures pictures(state);
    const int side = int(state.range(0));
    const cv::Mat from(side, side, CV_8UC4, const_cast<std::uint8_t *>(pictures.from().bytes));
    cv::Mat to(side, side, CV_8UC4, pictures.to().bytes);
    const double offset = (255.0 * double(kBrightness) - 127.5) * double(kContrast) + 127.5;
    measure(state, pictures, [&] { from.convertTo(to, -1, double(kContrast), offset); });
}
#endif

template <typename Function, typename... Arguments>
void add(const char *name, Function function, Arguments... arguments)
{
    for (const int side : {128, 512, 4096}) {
        benchmark::RegisterBenchmark(name, function, arguments...)
            ->Arg(side)
            ->Unit(benchmark::kMicrosecond);
    }
}

} // namespace

int main(int argc, char **argv)
{
    add("memcpy", plainCopy);
    add("filter", filterPicture);
    add("filter in place", filterInPlace);
    constexpr const char *kPathNames[] = {"filter, plain", "filter, SSE2", "filter, AVX2"};
    for (const imaging::ProcessorPath path : imaging::processorPaths()) {
        add(kPathNames[int(path)], filterByPath, path);
    }
#ifdef HAVE_OPENCV
    add("OpenCV convertTo", openCvConvertTo);
#endif
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
