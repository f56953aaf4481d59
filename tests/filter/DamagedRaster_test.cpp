// SPDX-License-Identifier: Apache-2.0
#include "filter/GraphicsJob.h"
#include "filter/MemoryFile.h"
#include "filter/TestRaster.h"

#include <cstring>
#include <random>

#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using filter::GraphicsJob;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Outcome = GraphicsJob::Outcome;

/// A job inside this program: black labels, 1 bit.
struct Printed
{
    explicit Printed(const std::string &raster)
    {
        const int input = filter::memoryFile(raster);
        const int output = filter::memoryFile("");
        GraphicsJob job({}, input, output, [this](const std::string &line) {
            if (line.rfind("ERROR: labelgraphics: ", 0) == 0) {
                errors.push_back(line);
            }
        });
        outcome = job.run();
        written = lseek(output, 0, SEEK_END);
        close(input);
        close(output);
    }

    Outcome outcome;
    std::vector<std::string> errors;
    off_t written = 0;
};

std::string errorOf(const std::string &raster)
{
    const Printed run(raster);
    EXPECT_EQ(run.outcome, Outcome::Failed);
    EXPECT_EQ(run.errors.size(), 1U);
    return run.errors.empty() ? "" : run.errors.front();
}

std::string twoPages(cups_mode_t mode)
{
    return rasterOf({greyPage(90, 33), rgbPage(50, 20)}, mode);
}

constexpr std::size_t kSync = 4;
constexpr std::size_t kHeader = sizeof(cups_page_header2_t);

TEST(DamagedRaster, SaysWhatIsWrongWithTheWholeInput)
{
    EXPECT_EQ(errorOf(""), "ERROR: labelgraphics: there are no pages: the input is empty.");
    const std::string noRaster = "ERROR: labelgraphics: the input is not CUPS raster, which would "
                                 "begin with RaSt, RaS2 or RaS3.";
    EXPECT_EQ(errorOf("%PDF-1.7"), noRaster);
    EXPECT_EQ(errorOf("RaS"), noRaster);
    EXPECT_EQ(errorOf(std::string("RaS3")),
              "ERROR: labelgraphics: there are no pages: the input ends at once.");
}

TEST(DamagedRaster, SaysInWhichRowUncompressedRasterIsCutOff)
{
    const std::string raster = twoPages(CUPS_RASTER_WRITE);
    const std::size_t firstEnd = kSync + kHeader + std::size_t(90 * 33);
    for (std::size_t size = kSync + 1; size < raster.size(); size += 97) {
        std::string expected = "the raster is cut off in the header of page 1.";
        if (size >= firstEnd + kHeader) {
            expected = "the raster is cut off in row "
                + std::to_string((size - firstEnd - kHeader) / 150 + 1) + " of 20 of page 2.";
        } else if (size > firstEnd) {
            expected = "the raster is cut off in the header of page 2.";
        } else if (size >= kSync + kHeader) {
            expected = "the raster is cut off in row "
                + std::to_string((size - kSync - kHeader) / 90 + 1) + " of 33 of page 1.";
        }
        ASSERT_EQ(errorOf(raster.substr(0, size)), "ERROR: labelgraphics: " + expected) << size;
    }
}

TEST(DamagedRaster, TellsACutFromTheEndInCompressedRaster)
{
    const std::string raster = twoPages(CUPS_RASTER_WRITE_COMPRESSED);
    const std::size_t firstEnd = rasterOf({greyPage(90, 33)}, CUPS_RASTER_WRITE_COMPRESSED).size();
    const auto isWhole = [&](std::size_t size) {
        return size == firstEnd || size == raster.size();
    };
    for (std::size_t size = kSync + 1; size <= raster.size(); ++size) {
        // Every place around the end of the page, every 97th otherwise.
        if (size % 97 != 0 && (size < firstEnd - 5 || size > firstEnd + 5)
            && size < raster.size() - 5) {
            continue;
        }
        const Printed run(raster.substr(0, size));
        ASSERT_EQ(run.outcome, isWhole(size) ? Outcome::Done : Outcome::Failed) << size;
        ASSERT_EQ(run.errors.size(), isWhole(size) ? 0U : 1U) << size;
        if (!isWhole(size)) {
            EXPECT_THAT(run.errors.front(), HasSubstr("cut off in")) << size;
        }
    }
}

TEST(DamagedRaster, RefusesRowsThatNobodyPrints)
{
    for (const unsigned row : {(1U << 20) + 1, 0x7fffffffU, 0xffffffffU}) {
        std::string raster = twoPages(CUPS_RASTER_WRITE_COMPRESSED);
        std::memcpy(raster.data() + kSync + offsetof(cups_page_header2_t, cupsBytesPerLine), &row,
                    sizeof(row));
        EXPECT_EQ(errorOf(raster),
                  "ERROR: labelgraphics: page 1 has rows of " + std::to_string(row)
                      + " bytes; 1048576 is the most that can be printed.");
    }
}

TEST(DamagedRaster, RefusesHeadersThatMakeNoPage)
{
    const auto errorWith = [](auto change) {
        TestPage page = greyPage(40, 4);
        std::string raster = rasterOf({page});
        change(page.header);
        std::memcpy(raster.data() + kSync, &page.header, sizeof(page.header));
        return errorOf(raster);
    };
    const std::string damaged = "the header of page 1 is damaged";
    EXPECT_THAT(errorWith([](auto &header) { header.cupsWidth = 0; }), HasSubstr(damaged));
    EXPECT_THAT(errorWith([](auto &header) { header.cupsHeight = 0; }), HasSubstr(damaged));
    EXPECT_THAT(errorWith([](auto &header) { header.cupsBitsPerPixel = 0; }), HasSubstr(damaged));
    EXPECT_THAT(errorWith([](auto &header) { header.cupsBytesPerLine = 0; }), HasSubstr(damaged));
    EXPECT_EQ(
        errorWith([](auto &header) { header.cupsWidth = 41; }),
        "ERROR: labelgraphics: the header of page 1 is damaged: its rows are shorter than its "
        "pixels.");
    EXPECT_THAT(errorWith([](auto &header) { header.cupsWidth = 0xffffffff; }),
                HasSubstr("its rows are shorter"));
    EXPECT_THAT(errorWith([](auto &header) { header.cupsHeight = 0xffffffff; }),
                HasSubstr("cut off in row 5 of 4294967295 of page 1"));
}

TEST(DamagedRaster, RefusesPixelsThatCannotBePrepared)
{
    EXPECT_EQ(errorOf(rasterOf({pageOf(8, CUPS_CSPACE_CMYK, 4, CUPS_ORDER_CHUNKED, 9, 3)})),
              "ERROR: labelgraphics: page 1 has pixels that labelgraphics cannot prepare (8 bits "
              "for each colour, 32 for each pixel, colour space 6, colour order 0); send 8 bits of "
              "grey or of red, green and blue together, or 1 bit.");
    for (const TestPage &page : {pageOf(16, CUPS_CSPACE_SW, 1, CUPS_ORDER_CHUNKED, 9, 3),
                                 pageOf(8, CUPS_CSPACE_SRGB, 3, CUPS_ORDER_BANDED, 9, 3),
                                 pageOf(8, CUPS_CSPACE_SRGB, 3, CUPS_ORDER_PLANAR, 9, 3),
                                 pageOf(8, CUPS_CSPACE_RGBA, 4, CUPS_ORDER_CHUNKED, 9, 3),
                                 pageOf(8, CUPS_CSPACE_W, 3, CUPS_ORDER_PLANAR, 9, 3),
                                 pageOf(2, CUPS_CSPACE_W, 1, CUPS_ORDER_CHUNKED, 9, 3)}) {
        const Printed run(rasterOf({greyPage(5, 5), page}));
        EXPECT_EQ(run.outcome, Outcome::Failed);
        ASSERT_EQ(run.errors.size(), 1U);
        EXPECT_THAT(run.errors.front(), HasSubstr("page 2 has pixels"));
    }
}

/// As a machine of the other byte order writes it.
std::string mirrored(std::string raster, std::size_t words)
{
    std::swap(raster[0], raster[3]);
    std::swap(raster[1], raster[2]);
    for (std::size_t i = 0; i < words; ++i) {
        char *word = raster.data() + kSync + offsetof(cups_page_header_t, AdvanceDistance) + 4 * i;
        std::swap(word[0], word[3]);
        std::swap(word[1], word[2]);
    }
    return raster;
}

TEST(OldRaster, IsReadInAnyVersionAndByteOrder)
{
    constexpr std::size_t kWords = 81;
    const TestPage page = greyPage(40, 11);
    const std::string newest = rasterOf({page});
    const off_t size = Printed(newest).written;
    EXPECT_EQ(size, off_t(kSync + kHeader + std::size_t(5 * 11)));
    EXPECT_EQ(Printed(mirrored(newest, kWords)).written, size);
    const std::string compressed = rasterOf({page}, CUPS_RASTER_WRITE_COMPRESSED);
    EXPECT_EQ(Printed(mirrored(compressed, kWords)).written, size);

    // The first version has a shorter header.
    std::string first = newest;
    first[first[0] == '3' ? 0 : 3] = 't';
    first.erase(kSync + sizeof(cups_page_header_t), kHeader - sizeof(cups_page_header_t));
    constexpr std::size_t kFirstWords =
        (sizeof(cups_page_header_t) - offsetof(cups_page_header_t, AdvanceDistance)) / 4;
    for (const std::string &raster : {first, mirrored(first, kFirstWords)}) {
        EXPECT_EQ(Printed(raster).written, size);
        EXPECT_THAT(errorOf(raster.substr(0, kSync + 419)), HasSubstr("the header of page 1"));
        EXPECT_THAT(errorOf(raster + "x"), HasSubstr("the header of page 2"));
    }
}

TEST(DamagedRaster, EndsInOrderWhateverTheHeaderSays)
{
    std::mt19937 random(20240607);
    const std::string originals[] = {
        twoPages(CUPS_RASTER_WRITE), twoPages(CUPS_RASTER_WRITE_COMPRESSED),
        rasterOf({pageOf(1, CUPS_CSPACE_CMY, 3, CUPS_ORDER_PLANAR, 43, 12)})};
    const std::size_t fields = kSync + offsetof(cups_page_header2_t, cupsWidth);
    int failures = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string raster = originals[std::size_t(i) % 3];
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
            // Half of them where the size, bits and colours stand.
            const std::size_t place =
                random() % 2 == 0 ? fields + random() % 60 : random() % raster.size();
            raster[place] = char(random() % 3 == 0 ? random() : random() % 9);
        }
        const Printed run(raster);
        ASSERT_EQ(run.errors.size(), run.outcome == Outcome::Failed ? 1U : 0U) << i;
        failures += run.outcome == Outcome::Failed ? 1 : 0;
    }
    EXPECT_GT(failures, 500);
    EXPECT_LT(failures, 2900);
}

} // namespace
