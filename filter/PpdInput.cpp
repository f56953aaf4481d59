// SPDX-License-Identifier: Apache-2.0
#include "filter/PpdInput.h"

#include "filter/MemoryFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include <cups/file.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace filter {

namespace {

constexpr std::size_t kLargest = std::size_t(16) * 1024 * 1024;
constexpr std::size_t kBlock = 65536;

Failure failure(const std::string &name, const std::string &why)
{
    return {ExitCode::File, name, why};
}

Failure unreadable(const std::string &name)
{
    return failure(name, std::string("the file cannot be read: ") + std::strerror(errno));
}

/// Everything that `read` gives, which answers as read(2) does.
template <class Read> Result<std::string> readAll(const std::string &name, const Read &read)
{
    std::string text;
    std::array<char, kBlock> block{};
    while (text.size() <= kLargest) {
        const ssize_t count = read(block.data(), block.size());
        if (count < 0) {
            return unreadable(name);
        }
        if (count == 0) {
            return text;
        }
        text.append(block.data(), static_cast<std::size_t>(count));
    }
    return failure(name, "the file is larger than 16 MiB, so that it cannot be a PPD");
}

Result<std::string> readDescriptor(const std::string &name, int file)
{
    return readAll(name, [file](char *block, std::size_t size) {
        ssize_t count = 0;
        do {
            count = read(file, block, size);
        } while (count < 0 && errno == EINTR);
        return count;
    });
}

bool isPacked(std::string_view bytes)
{
    return bytes.substr(0, 2) == "\x1f\x8b";
}

/// The length of the text modulo 2^32: what the last four bytes of a whole gzip file say.
std::uint32_t statedSize(std::string_view bytes)
{
    std::uint32_t size = 0;
    const std::size_t start = bytes.size() - std::min(bytes.size(), sizeof size);
    for (std::size_t i = bytes.size(); i > start; --i) {
        size = (size << 8U) | static_cast<unsigned char>(bytes[i - 1]);
    }
    return size;
}

Result<std::string> unpacked(const std::string &name, const std::string &bytes)
{
    const std::unique_ptr<cups_file_t, int (*)(cups_file_t *)> file(
        cupsFileOpenFd(memoryFile(bytes), "r"), cupsFileClose);
    if (!file) {
        return failure(name, "there is no room to unpack the file in");
    }
    // libcups answers -1 at the end as well, and does not tell a cut file from a whole one.
    auto text = readAll(name, [&file](char *block, std::size_t size) {
        return std::max<ssize_t>(cupsFileRead(file.get(), block, size), 0);
    });
    const auto *whole = std::get_if<std::string>(&text);
    if (whole && whole->size() != statedSize(bytes)) {
        return failure(name, "the file is compressed, but cut off or damaged; get it once more");
    }
    return text;
}

Result<PpdInput> readOpenFile(const std::string &name, int file)
{
    struct stat status
    { };
    if (fstat(file, &status) != 0) {
        return unreadable(name);
    }
    auto bytes = readDescriptor(name, file);
    if (const auto *packed = std::get_if<std::string>(&bytes); packed && isPacked(*packed)) {
        bytes = unpacked(name, *packed);
    }
    if (const auto *failed = std::get_if<Failure>(&bytes)) {
        return *failed;
    }
    return PpdInput{std::get<std::string>(std::move(bytes)), status.st_dev, status.st_ino};
}

} // namespace

bool PpdInput::isFile(int file) const
{
    struct stat status
    { };
    return fstat(file, &status) == 0 && status.st_dev == device && status.st_ino == inode;
}

Result<PpdInput> readPpd(const std::string &path)
{
    if (path == "-") {
        return readOpenFile("standard input", STDIN_FILENO);
    }
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return unreadable(path);
    }
    auto input = readOpenFile(path, file);
    close(file);
    return input;
}

} // namespace filter
