// SPDX-License-Identifier: Apache-2.0
#include "filter/Cancel.h"
#include "filter/GraphicsJob.h"
#include "filter/JobSettings.h"
#include "filter/Printable.h"
#include "filter/WriteAll.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace filter;

constexpr int kWithoutFile = 6;
constexpr int kWithFile = 7;

/// In one piece, as the printer's filter writes to the same log.
void log(const std::string &line)
{
    writeAll(STDERR_FILENO, printable(line) + '\n');
}

int fail(const std::string &why)
{
    log("ERROR: labelgraphics: " + why + ".");
    return EXIT_FAILURE;
}

int prepare(const char *options, int input)
{
    const auto settings = jobSettings(std::getenv("PPD"), options);
    if (const auto *none = std::get_if<NoSettings>(&settings)) {
        return fail(none->why);
    }
    GraphicsJob job(std::get<JobSettings>(settings), input, STDOUT_FILENO, log);
    return job.run() == GraphicsJob::Outcome::Failed ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != kWithoutFile && argc != kWithFile) {
        return fail("the filter is run by CUPS as: labelgraphics job user title copies options "
                    "[file]");
    }
    // A printer's filter that has ended is noticed when writing to it.
    std::signal(SIGPIPE, SIG_IGN);
    if (!listenForCancel()) {
        return fail(std::string("no room to listen for a cancel: ") + std::strerror(errno));
    }
    const int input =
        argc == kWithFile ? open(argv[kWithFile - 1], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    if (input < 0) {
        return fail(std::string("the file ") + argv[kWithFile - 1]
                    + " cannot be read: " + std::strerror(errno));
    }
    return prepare(argv[kWithoutFile - 1], input);
}
