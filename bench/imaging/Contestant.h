// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/TestPage.h"

#include "imaging/PagePreparation.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A page of dots, one byte each: 0 paper, 1 black, 2 red.
using DotPage = std::vector<std::uint8_t>;

/// What one run took, in milliseconds of processor time; starting a program and decoding files do
/// not count.
struct Run
{
    double dots = 0.0; ///< From pixels in memory to dots as the program keeps them.
    std::optional<double> packed; ///< Until they are bits, where that is a step of its own.
};

/// One program doing one method.
struct Contestant
{
    std::string method;
    std::string program;
    /// Does the page once. Fills `dots` when it is not null. Nothing when the program failed.
    std::function<std::optional<Run>(DotPage *dots)> run;
    /// The same from file to file, for how much memory it takes.
    std::string command;
};

/// Processor time of this process in milliseconds.
double processorTime();

/// A page, and where the contestants find it as a file and may leave files of their own.
struct PageFile
{
    const TestPage &page;
    bool rgb = false;
    std::string path; ///< PGM or PPM.
    std::string folder;
};

/// Writes the page to the folder.
PageFile pageFile(const TestPage &page, bool rgb, const std::string &folder,
                  const std::string &name);

/// This library, by each method and as the settings say, on one of processorPaths().
std::vector<Contestant> ourContestants(const PageFile &page, const imaging::PageSettings &settings,
                                       imaging::ProcessorPath path = imaging::fastestPath());

/// The peers that are installed. They get the page toned already, which saves them a step.
std::vector<Contestant> magickContestants(const PageFile &toned, bool twoColors);
std::vector<Contestant> programContestants(const PageFile &toned, bool twoColors);
std::vector<Contestant> ghostscriptContestants(const PageFile &toned, bool twoColors);

/// Whether a program can be found.
bool has(const std::string &program);

/// Adds the dots of a file that a program wrote: PBM, PPM or PAM. False when it cannot be read.
bool readDots(const std::string &path, DotPage *dots);
