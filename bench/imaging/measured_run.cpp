// SPDX-License-Identifier: Apache-2.0
// measured_run REPORT PROGRAM [ARGUMENT...]: runs PROGRAM and writes its milliseconds of processor
// time and its largest resident set in KiB to REPORT. A process begins with the memory of the one
// that starts it; this one is linked statically and small, so that what it reports is PROGRAM's.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace {

double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        return 2;
    }
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[2], argv + 2);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        return 1;
    }
    std::FILE *report = std::fopen(argv[1], "w");
    if (!report) {
        return 1;
    }
    std::fprintf(report, "%f %ld\n", milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
                 usage.ru_maxrss);
    return std::fclose(report) == 0 ? 0 : 1;
}
