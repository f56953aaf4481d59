// SPDX-License-Identifier: Apache-2.0
// read-barcodes: pictures come in, the codes in them go out, until there are no more pictures.
//
//     in   <width> <height> <format, or nothing for all>\n and width * height bytes of grey
//     out  <bars or field>\t<format>\t<x y of four corners>\t<text as UTF-8, in hexadecimal>\n ...
//          end\n
//
// A picture that could not be searched to its end has no "end": the program ends, with 1.
#include "barcodes/CodeFormats.h"
#include "barcodes/CodeSearch.h"
#include "barcodes/ReadLine.h"
#include "barcodes/SearchRun.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kLongestSide = 32'768;
constexpr std::size_t kMostPixels = 64U * 1024 * 1024;

struct Request
{
    int width = 0;
    int height = 0;
    std::string format;
    std::vector<std::uint8_t> grey;
};

bool readRequest(Request &request)
{
    std::string line;
    int used = 0;
    if (!barcodes::readLine(stdin, line)
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

/// False when not everything was searched.
bool answer(const Request &request)
{
    const ZXing::ImageView picture(request.grey.data(), request.width, request.height,
                                   ZXing::ImageFormat::Lum);
    const bool isDone = barcodes::runSearch(
        barcodes::searchSteps(picture, barcodes::formatCalled(request.format)), stdout);
    if (isDone) {
        std::printf("end\n");
        std::fflush(stdout);
    }
    return isDone;
}

} // namespace

int main()
{
    Request request;
    while (readRequest(request)) {
        if (!answer(request)) {
            return 1;
        }
    }
    return 0;
}
