// SPDX-License-Identifier: Apache-2.0
// How the program ends: failures of what is around it, cancelled jobs, and long labels.
#include "filter/FilterProcess.h"
#include "filter/GraphicsPpd.h"
#include "filter/SmallPpd.h"
#include "filter/TestRaster.h"

#include <array>
#include <csignal>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

constexpr long kMostKiB = 64L * 1024;

std::string blackPpd()
{
    return std::get<std::string>(filter::withGraphicsOptions(smallPpd(), filter::Colours::Black));
}

struct Pipe
{
    Pipe()
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("there is no pipe");
        }
        out = ends[0];
        in = ends[1];
    }
    ~Pipe()
    {
        closeEnd(in);
        closeEnd(out);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    static void closeEnd(int &end)
    {
        if (end >= 0) {
            close(end);
        }
        end = -1;
    }

    int waiting() const
    {
        int bytes = 0;
        ioctl(out, FIONREAD, &bytes);
        return bytes;
    }

    int in;
    int out;
};

/// Whether it comes true before long.
bool comesTrue(const std::function<bool()> &condition)
{
    for (int i = 0; i < 3000 && !condition(); ++i) {
        std::this_thread::sleep_for(10ms);
    }
    return condition();
}

class LabelGraphicsEnd : public testing::Test
{
protected:
    LabelGraphicsEnd() { mFolder.write("log", ""); }

    std::string log() const { return contentsOf(mFolder.path("log")); }

    FilterProcess mProcess{LABELGRAPHICS, blackPpd()};
    TestFolder mFolder;
};

TEST_F(LabelGraphicsEnd, SaysWhatItLacks)
{
    const std::string raster = rasterOf({greyPage(9, 9)});
    const auto errorOf = [&raster](const FilterProcess &process) {
        const FilterResult result = process.run(raster);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        return result.log;
    };
    FilterProcess without(LABELGRAPHICS, blackPpd());
    without.isWithoutPpd = true;
    EXPECT_EQ(errorOf(without),
              "ERROR: labelgraphics: the environment variable PPD names no file; the filter works "
              "in a queue of CUPS that has a PPD.\n");
    const FilterProcess noPpd(LABELGRAPHICS, "%PDF-1.7\n");
    EXPECT_EQ(errorOf(noPpd),
              "ERROR: labelgraphics: the printer's PPD " + noPpd.ppdPath()
                  + ": this is not a PPD, which would begin with *PPD-Adobe:.\n");
    const FilterProcess deep(
        LABELGRAPHICS, with(blackPpd(), "203]/cupsBitsPerColor 1", "203]/cupsBitsPerColor 16"));
    EXPECT_THAT(errorOf(deep),
                HasSubstr("ERROR: labelgraphics: the printer's PPD asks for raster of 16 bits"));
    mProcess.file = mFolder.path("none.ras");
    EXPECT_EQ(errorOf(mProcess),
              "ERROR: labelgraphics: the file " + mProcess.file
                  + " cannot be read: No such file or directory.\n");
    mProcess.file = mFolder.path("");
    EXPECT_EQ(errorOf(mProcess),
              "ERROR: labelgraphics: the raster cannot be read: Is a directory.\n");
}

TEST_F(LabelGraphicsEnd, FailsWhenTheDotsCannotBeWritten)
{
    mProcess.outputPath = "/dev/full";
    const FilterResult result = mProcess.run(rasterOf({greyPage(9, 9)}));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.log,
                HasSubstr("ERROR: labelgraphics: the page cannot be passed on to the printer's "
                          "filter: No space left on device.\n"));
}

TEST_F(LabelGraphicsEnd, FailsWhenThePrintersFilterHasEnded)
{
    const int input = open(mFolder.write("in", rasterOf({greyPage(9, 9)})).c_str(), O_RDONLY);
    Pipe output;
    Pipe::closeEnd(output.out);
    const int process = mProcess.start(input, output.in, mFolder.path("log"));
    EXPECT_EQ(FilterProcess::wait(process).status, 1);
    EXPECT_THAT(log(),
                HasSubstr("ERROR: labelgraphics: the printer's filter ended before it had all "
                          "pages; its own messages say why.\n"));
    close(input);
}

TEST_F(LabelGraphicsEnd, ACancelEndsTheWaitForRows)
{
    const Pipe input;
    const Pipe output;
    const int process = mProcess.start(input.out, output.in, mFolder.path("log"));
    const std::string raster = rasterOf({greyPage(9, 9), greyPage(9, 9)});
    const auto half = static_cast<ssize_t>(raster.size() - 20);
    ASSERT_EQ(write(input.in, raster.data(), std::size_t(half)), half);
    ASSERT_TRUE(comesTrue([&] { return log().find("Preparing page 2") != std::string::npos; }));
    kill(process, SIGTERM);
    EXPECT_EQ(FilterProcess::wait(process).status, 0);
    EXPECT_THAT(log(), Not(HasSubstr("ERROR")));
    // The first page was whole; of the second one nothing had to be written.
    EXPECT_EQ(output.waiting(), static_cast<int>(sizeof(cups_page_header2_t)) + 4 + 2 * 9);
}

TEST_F(LabelGraphicsEnd, ACancelEndsTheWaitForThePrintersFilter)
{
    const int input = open(mFolder.write("in", rasterOf({greyPage(4000, 2000)})).c_str(), O_RDONLY);
    const Pipe output;
    const int process = mProcess.start(input, output.in, mFolder.path("log"));
    const int size = fcntl(output.in, F_GETPIPE_SZ);
    ASSERT_TRUE(comesTrue([&] { return output.waiting() > size - 4096; }));
    kill(process, SIGTERM);
    EXPECT_EQ(FilterProcess::wait(process).status, 0);
    EXPECT_THAT(log(), Not(HasSubstr("ERROR")));
    close(input);
}

class LongLabel : public LabelGraphicsEnd, public testing::WithParamInterface<const char *>
{ };

TEST_P(LongLabel, Of100MetresTakesNoMoreMemoryThanAShortOne)
{
    // 203 dots an inch.
    constexpr unsigned kRows = 799213;
    mProcess.options = GetParam();
    std::signal(SIGPIPE, SIG_IGN);
    Pipe input;
    const int output = open("/dev/null", O_WRONLY | O_CLOEXEC);
    const int process = mProcess.start(input.out, output, mFolder.path("log"));
    // The filter alone holds the pipe's other end: should it fail, writing ends.
    Pipe::closeEnd(input.out);
    writeLongPage(input.in, greyPage(48, 1), kRows);
    const long peak = FilterProcess::peakKiB(process);
    Pipe::closeEnd(input.in);
    EXPECT_EQ(FilterProcess::wait(process).status, 0) << log();
    EXPECT_LT(peak, kMostKiB);
    RecordProperty("peakKiB", std::to_string(peak));
    close(output);
}

INSTANTIATE_TEST_SUITE_P(All, LongLabel,
                         testing::Values("CvHalftonePattern=Dither",
                                         "CvHalftonePattern=ErrorDiffusion"));

TEST_F(LabelGraphicsEnd, TheLargestPageTakesLittleMemoryWhateverItsHeightIsSaidToBe)
{
    TestPage page = greyPage(1 << 20, 1);
    page.header.cupsHeight = 0xffffffff;
    const std::string raster = rasterOf({page});
    Pipe input;
    const Pipe output;
    const int process = mProcess.start(input.out, output.in, mFolder.path("log"));
    Pipe::closeEnd(input.out);
    ASSERT_EQ(write(input.in, raster.data(), raster.size()), static_cast<ssize_t>(raster.size()));
    ASSERT_TRUE(comesTrue([&] { return output.waiting() > 10000; }));
    const long peak = FilterProcess::peakKiB(process);
    EXPECT_LT(peak, kMostKiB);
    RecordProperty("peakKiB", std::to_string(peak));
    kill(process, SIGTERM);
    EXPECT_EQ(FilterProcess::wait(process).status, 0);
}

} // namespace
