// SPDX-License-Identifier: Apache-2.0
// prepare_page METHOD PAGE OUT: prepares a PGM or PPM file by this library, row by row, and writes
// its dots as PBM, the red ones to OUT.red. METHOD is threshold, dither or diffusion, with a 3 for
// black and red.
#include "imaging/PagePreparation.h"

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

imaging::PageSettings settingsFor(const std::string &method)
{
    imaging::PageSettings settings;
    settings.method = method.starts_with("threshold") ? imaging::HalftoneMethod::Binary
        : method.starts_with("dither")                ? imaging::HalftoneMethod::Dither
                                                      : imaging::HalftoneMethod::ErrorDiffusion;
    settings.colorMode =
        method.ends_with('3') ? imaging::ColorMode::BlackRed : imaging::ColorMode::Monochrome;
    return settings;
}

void write(std::ofstream *file, const Bytes &bytes)
{
    file->write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
}

bool prepare(const std::string &method, std::ifstream *page, const std::string &out)
{
    std::string kind;
    std::size_t width = 0;
    std::size_t height = 0;
    int most = 0;
    *page >> kind >> width >> height >> most;
    page->get();
    imaging::PagePreparation preparation(settingsFor(method), width,
                                         kind == "P6" ? imaging::InputFormat::Rgb24
                                                      : imaging::InputFormat::Gray8);
    std::ofstream blackFile(out, std::ios::binary);
    std::ofstream redFile(out + ".red", std::ios::binary);
    for (std::ofstream *file : {&blackFile, &redFile}) {
        *file << "P4\n" << width << ' ' << height << '\n';
    }
    Bytes row(preparation.inputRowBytes());
    Bytes black(preparation.outputRowBytes());
    Bytes red(black.size());
    for (std::size_t y = 0; y < height; ++y) {
        page->read(reinterpret_cast<char *>(row.data()), std::streamsize(row.size()));
        if (!*page || !preparation.row(row, black, red)) {
            return false;
        }
        write(&blackFile, black);
        write(&redFile, red);
    }
    return bool(blackFile.flush()) && bool(redFile.flush());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "prepare_page: say METHOD PAGE OUT\n");
        return 2;
    }
    std::ifstream page(argv[2], std::ios::binary);
    return prepare(argv[1], &page, argv[3]) ? 0 : 1;
}
