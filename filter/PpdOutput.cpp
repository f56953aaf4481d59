// SPDX-License-Identifier: Apache-2.0
#include "filter/PpdOutput.h"

#include "filter/WriteAll.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace filter {

namespace {

constexpr mode_t kMode = 0666; // less what the user's umask takes away
constexpr const char *kStandardOutput = "standard output";
constexpr const char *kIsInput =
    "this is the PPD itself, which stays as it is; name another file for the result";

Failure failure(const std::string &name, const std::string &why)
{
    return {ExitCode::File, name, why};
}

Failure unwritable(const std::string &name)
{
    return failure(name, std::string("the file cannot be written: ") + std::strerror(errno));
}

/// The file that a chain of links ends at; `path` itself where there is none yet.
std::string target(const std::string &path)
{
    const std::unique_ptr<char, void (*)(void *)> real(realpath(path.c_str(), nullptr), std::free);
    return real ? real.get() : path;
}

std::optional<Failure> reasonAgainst(const std::string &path, const PpdInput &input, mode_t &mode)
{
    struct stat status
    { };
    if (lstat(path.c_str(), &status) != 0) {
        return errno == ENOENT ? std::nullopt : std::optional(unwritable(path));
    }
    if (status.st_dev == input.device && status.st_ino == input.inode) {
        return failure(path, kIsInput);
    }
    if (!S_ISREG(status.st_mode)) {
        return failure(path,
                       "this is not an ordinary file; name another one, or leave -o out for "
                       "standard output");
    }
    mode = status.st_mode & ALLPERMS;
    return {};
}

bool writeNew(const std::string &path, mode_t mode, std::string_view text)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0) {
        return false;
    }
    const bool isWritten = writeAll(file, text) && fsync(file) == 0;
    const int reason = errno;
    const bool isClosed = close(file) == 0;
    if (!isWritten) {
        errno = reason;
    }
    return isWritten && isClosed;
}

} // namespace

std::optional<Failure> writePpd(const std::string &path, const PpdInput &input,
                                std::string_view text)
{
    const std::string place = target(path);
    mode_t mode = kMode;
    if (auto failed = reasonAgainst(place, input, mode)) {
        failed->what = path;
        return failed;
    }
    // Beside the place, as only a file of the same file system can take it over in one step.
    const std::string fresh = place + "." + std::to_string(getpid()) + ".new";
    if (writeNew(fresh, mode, text) && std::rename(fresh.c_str(), place.c_str()) == 0) {
        return {};
    }
    const Failure failed = unwritable(path);
    unlink(fresh.c_str());
    return failed;
}

std::optional<Failure> printPpd(const PpdInput &input, std::string_view text)
{
    if (input.isFile(STDOUT_FILENO)) {
        return failure(kStandardOutput, kIsInput);
    }
    if (!writeAll(STDOUT_FILENO, text)) {
        return failure(kStandardOutput,
                       std::string("the PPD cannot be written: ") + std::strerror(errno));
    }
    return {};
}

} // namespace filter
