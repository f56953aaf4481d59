// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// A folder of its own for one test, gone afterwards.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder &) = delete;
    TestFolder &operator=(const TestFolder &) = delete;

    std::string path(const std::string &name) const { return mPath / name; }

    /// Writes a file and gives its path.
    std::string write(const std::string &name, const std::string &bytes) const;

private:
    std::filesystem::path mPath;
};

/// How a filter ended, and what it wrote.
struct FilterResult
{
    int status = -1; ///< the exit status, or minus the number of the signal that ended it
    std::string output;
    std::string log;
};

/// Filters as the scheduler starts them: a PPD in the environment, six or seven arguments.
class FilterProcess
{
public:
    FilterProcess(std::string program, const std::string &ppd);

    /// The job's options, argv[5].
    std::string options;
    std::string copies = "1";
    /// argv[6] when not empty; standard input is empty then.
    std::string file;
    /// Where the output goes, when not into FilterResult::output.
    std::string outputPath;

    /// Runs it to its end with `input` on standard input.
    FilterResult run(const std::string &input) const;

    /// Starts it with the open files as standard input and output, and the log in `logPath`.
    /// Ended with wait().
    int start(int input, int output, const std::string &logPath) const;
    static FilterResult wait(int process);

    /// The most memory that a running process has had so far. Not that of wait4(), to which the
    /// test program adds its own.
    static long peakKiB(int process);

    std::string ppdPath() const { return mFolder.path("printer.ppd"); }

    /// The environment has no PPD.
    bool isWithoutPpd = false;

private:
    std::string mProgram;
    TestFolder mFolder;
};
