// SPDX-License-Identifier: Apache-2.0
#include "barcodes/SearchRun.h"

#include "barcodes/ReadLine.h"

#include <cstdint>
#include <cstdlib>
#include <exception>
#include <optional>
#include <string>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace barcodes {

namespace {

/// Pictures that end more searches than this are not worth the time.
constexpr int kMostBadSteps = 20;

std::string hexadecimal(const std::string &text)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string digits;
    for (const char c : text) {
        digits += kDigits[std::uint8_t(c) >> 4];
        digits += kDigits[std::uint8_t(c) & 15];
    }
    return digits;
}

void say(std::FILE *to, const FoundCode &code)
{
    std::fprintf(to, "%s\t%s\t", code.isLinear ? "bars" : "field", code.format.c_str());
    for (const Spot &corner : code.corners) {
        std::fprintf(to, "%d %d ", corner.x, corner.y);
    }
    std::fprintf(to, "\t%s\n", hexadecimal(code.text).c_str());
}

/// Both signals end the process.
void limitStep(const StepLimits &limits)
{
    const itimerval computing{{0, 0}, {time_t(limits.computing), 0}};
    setitimer(ITIMER_PROF, &computing, nullptr);
    alarm(limits.onTheClock);
}

/// In the child: does the steps from `first` on. A line with a number says that a step begins.
[[noreturn]] void search(const std::vector<SearchStep> &steps, std::size_t first, int pipe,
                         const StepLimits &limits)
{
    // Nobody needs the core or the words of a search that ends badly, nor the search without us.
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::signal(SIGPROF, SIG_DFL);
    std::signal(SIGALRM, SIG_DFL);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDERR_FILENO);
    std::FILE *to = fdopen(pipe, "w");
    if (!to) {
        _exit(1);
    }
    for (std::size_t i = first; i < steps.size(); ++i) {
        std::fprintf(to, "%zu\n", i);
        std::fflush(to);
        limitStep(limits);
        try {
            for (const FoundCode &code : steps[i]()) {
                say(to, code);
            }
        } catch (const std::exception &) {
            // What the library stumbles over is nothing that a scanner reads.
        }
    }
    _exit(std::fclose(to) == 0 ? 0 : 1);
}

/// Writes what the child says to `to`; the number of the step that it began last, or none.
std::optional<std::size_t> passOn(int pipe, std::FILE *to)
{
    std::FILE *from = fdopen(pipe, "r");
    if (!from) {
        close(pipe);
        return {};
    }
    std::optional<std::size_t> step;
    std::string line;
    while (readLine(from, line)) {
        if (line[0] >= '0' && line[0] <= '9') {
            step = std::size_t(std::atol(line.c_str()));
        } else {
            std::fprintf(to, "%s\n", line.c_str());
        }
    }
    std::fclose(from);
    return step;
}

/// Does the steps from `first` on in a child; the step that is to be done next, nothing when not
/// one was begun.
std::optional<std::size_t> runChild(const std::vector<SearchStep> &steps, std::size_t first,
                                    std::FILE *to, const StepLimits &limits)
{
    int ends[2];
    if (pipe(ends) != 0) {
        return {};
    }
    // What waits to be written must not be written twice.
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        search(steps, first, ends[1], limits);
    }
    close(ends[1]);
    if (child < 0) {
        close(ends[0]);
        return {};
    }
    const std::optional<std::size_t> last = passOn(ends[0], to);
    int status = 0;
    const bool isKnown = waitpid(child, &status, 0) == child;
    if (isKnown && WIFEXITED(status) && WEXITSTATUS(status) == 0) {
        return steps.size();
    }
    return last ? std::optional(*last + 1) : std::nullopt;
}

} // namespace

bool runSearch(const std::vector<SearchStep> &steps, std::FILE *to, const StepLimits &limits)
{
    std::size_t next = 0;
    for (int bad = 0; bad <= kMostBadSteps && next < steps.size(); ++bad) {
        const std::optional<std::size_t> after = runChild(steps, next, to, limits);
        if (!after) {
            return false;
        }
        next = *after;
    }
    return next >= steps.size();
}

} // namespace barcodes
