// SPDX-License-Identifier: Apache-2.0
#include "filter/FilterProcess.h"

#include "filter/SmallPpd.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned kPatience = 100; // seconds

} // namespace

TestFolder::TestFolder()
{
    std::string name = std::filesystem::temp_directory_path() / "filter-test-XXXXXX";
    if (!mkdtemp(name.data())) {
        throw std::runtime_error("there is no temporary folder");
    }
    mPath = name;
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
}

std::string TestFolder::write(const std::string &name, const std::string &bytes) const
{
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
}

FilterProcess::FilterProcess(std::string program, const std::string &ppd)
    : mProgram(std::move(program))
{
    mFolder.write("printer.ppd", ppd);
}

int FilterProcess::start(int input, int output, const std::string &logPath) const
{
    const int process = fork();
    if (process != 0) {
        return process;
    }
    const int log = open(logPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(log, STDERR_FILENO);
    for (int other = STDERR_FILENO + 1; other < 100; ++other) {
        close(other);
    }
    setenv("PPD", ppdPath().c_str(), 1);
    if (isWithoutPpd) {
        unsetenv("PPD");
    }
    std::signal(SIGPIPE, SIG_DFL);
    alarm(kPatience);
    execl(mProgram.c_str(), "Labels", "7", "somebody", "a title", copies.c_str(), options.c_str(),
          file.empty() ? nullptr : file.c_str(), nullptr);
    _exit(127);
}

FilterResult FilterProcess::wait(int process)
{
    int status = 0;
    waitpid(process, &status, 0);
    FilterResult result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return result;
}

long FilterProcess::peakKiB(int process)
{
    const std::string status = contentsOf("/proc/" + std::to_string(process) + "/status");
    const std::string keyword = "VmHWM:";
    return std::stol(status.substr(status.find(keyword) + keyword.size()));
}

FilterResult FilterProcess::run(const std::string &input) const
{
    const TestFolder folder;
    const int in = open(folder.write("in", input).c_str(), O_RDONLY | O_CLOEXEC);
    const std::string outputFile = outputPath.empty() ? folder.path("out") : outputPath;
    const int out = open(outputFile.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    FilterResult result = wait(start(in, out, folder.path("log")));
    close(in);
    close(out);
    result.log = contentsOf(folder.path("log"));
    if (outputPath.empty()) {
        result.output = contentsOf(outputFile);
    }
    return result;
}
