// SPDX-License-Identifier: Apache-2.0
#include "imaging/Contestant.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

struct Head
{
    std::string kind;
    std::size_t width = 0;
    std::size_t height = 0;
};

/// Leaves out comments, which begin with #.
std::string nextWord(std::istream *file)
{
    std::string word;
    while (*file >> word && word.starts_with('#')) {
        std::getline(*file, word);
    }
    return word;
}

Head readPamHead(std::istream *file)
{
    Head head{"P7"};
    std::string word;
    while (*file >> word && word != "ENDHDR") {
        if (word == "WIDTH") {
            *file >> head.width;
        } else if (word == "HEIGHT") {
            *file >> head.height;
        }
    }
    file->get();
    return head;
}

/// The head of a PBM or PPM file or of a PAM file of one byte a pixel.
Head readHead(std::istream *file)
{
    const std::string kind = nextWord(file);
    if (kind == "P7") {
        return readPamHead(file);
    }
    Head head{kind};
    head.width = std::strtoul(nextWord(file).c_str(), nullptr, 10);
    head.height = std::strtoul(nextWord(file).c_str(), nullptr, 10);
    if (kind != "P4") {
        nextWord(file);
    }
    file->get();
    return head;
}

std::size_t rowBytes(const Head &head)
{
    return head.kind == "P4" ? (head.width + 7) / 8 : head.width * (head.kind == "P6" ? 3 : 1);
}

std::uint8_t dotAt(const Head &head, const char *row, std::size_t x)
{
    if (head.kind == "P4") {
        return std::uint8_t((std::uint8_t(row[x / 8]) >> (7 - x % 8)) & 1);
    }
    if (head.kind == "P7") {
        return row[x] == 0 ? 1 : 0;
    }
    return row[x * 3] == 0 ? 1 : row[x * 3 + 1] == 0 ? 2 : 0;
}

} // namespace

bool has(const std::string &program)
{
    return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

PageFile pageFile(const TestPage &page, bool rgb, const std::string &folder,
                  const std::string &name)
{
    const std::string path = folder + '/' + name + (rgb ? ".ppm" : ".pgm");
    std::ofstream file(path, std::ios::binary);
    file << (rgb ? "P6\n" : "P5\n") << page.width << ' ' << page.height << "\n255\n";
    const auto &bytes = rgb ? page.rgb : page.grey;
    file.write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
    return {page, rgb, path, folder};
}

bool readDots(const std::string &path, DotPage *dots)
{
    std::ifstream file(path, std::ios::binary);
    const Head head = readHead(&file);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (head.width == 0 || bytes.size() < rowBytes(head) * head.height) {
        return false;
    }
    for (std::size_t y = 0; y < head.height; ++y) {
        for (std::size_t x = 0; x < head.width; ++x) {
            dots->push_back(dotAt(head, &bytes[y * rowBytes(head)], x));
        }
    }
    return true;
}
