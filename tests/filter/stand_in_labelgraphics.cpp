// SPDX-License-Identifier: Apache-2.0
// A stand-in for the filter labelgraphics: it blackens what is darker than half, and leaves the
// raster that the printer's own filter behind it expects.

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <cups/cups.h>
#include <cups/ppd.h>
#include <cups/raster.h>
#include <unistd.h>

namespace {

constexpr unsigned char kHalf = 128;
constexpr unsigned char kFirstDot = 0x80;

/// The raster that the PPD asks for without the code of the colour mode.
cups_page_header2_t wanted(const char *options)
{
    ppd_file_t *ppd = ppdOpenFile(std::getenv("PPD"));
    ppdMarkDefaults(ppd);
    cups_option_t *list = nullptr;
    const int count = cupsParseOptions(options, 0, &list);
    cupsMarkOptions(ppd, count, list);
    ppd_choice_t *colour = ppdFindMarkedChoice(ppd, "CvMultiColor");
    char *code = std::exchange(colour->code, nullptr);
    cups_page_header2_t header;
    cupsRasterInterpretPPD(&header, ppd, count, list, nullptr);
    colour->code = code;
    cupsFreeOptions(count, list);
    ppdClose(ppd);
    return header;
}

std::vector<unsigned char> dots(const std::vector<unsigned char> &grey)
{
    std::vector<unsigned char> line((grey.size() + 7) / 8);
    for (std::size_t x = 0; x < grey.size(); ++x) {
        if (grey[x] < kHalf) {
            line[x / 8] = static_cast<unsigned char>(line[x / 8] | (kFirstDot >> (x % 8)));
        }
    }
    return line;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 6) {
        return EXIT_FAILURE;
    }
    const cups_page_header2_t target = wanted(argv[5]);
    cups_raster_t *in = cupsRasterOpen(STDIN_FILENO, CUPS_RASTER_READ);
    cups_raster_t *out = cupsRasterOpen(STDOUT_FILENO, CUPS_RASTER_WRITE);
    cups_page_header2_t page;
    while (cupsRasterReadHeader2(in, &page) != 0U) {
        if (page.cupsBitsPerColor != 8 || page.cupsColorSpace != CUPS_CSPACE_SW
            || target.cupsBitsPerColor != 1) {
            return EXIT_FAILURE;
        }
        std::vector<unsigned char> grey(page.cupsBytesPerLine);
        page.cupsBitsPerColor = page.cupsBitsPerPixel = 1;
        page.cupsColorSpace = target.cupsColorSpace;
        page.cupsBytesPerLine = (page.cupsWidth + 7) / 8;
        cupsRasterWriteHeader2(out, &page);
        for (unsigned y = 0; y < page.cupsHeight; ++y) {
            cupsRasterReadPixels(in, grey.data(), static_cast<unsigned>(grey.size()));
            std::vector<unsigned char> line = dots(grey);
            cupsRasterWritePixels(out, line.data(), static_cast<unsigned>(line.size()));
        }
    }
    cupsRasterClose(out);
    cupsRasterClose(in);
    return EXIT_SUCCESS;
}
