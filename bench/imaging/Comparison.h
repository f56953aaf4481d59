// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "imaging/Contestant.h"

#include <string>
#include <vector>

double median(std::vector<double> values);

/// Compares all contestants on a page: times, memory and quality.
/// `rgb` takes the page's colours. Peers take part where they do the same: grey for black, colours
/// for black and red.
void printComparison(const TestPage &page, bool rgb, bool twoColors, int rounds,
                     const std::string &folder);

/// This library's times on each of processorPaths(); all give the same dots.
void printPaths(const TestPage &page, int rounds, const std::string &folder);

/// Time for a pixel and memory of all contestants by the length of the page.
void printGrowth(std::size_t width, const std::vector<int> &millimetres, int rounds,
                 const std::string &folder);

/// How many rows a page of that length has.
std::size_t rowsOf(int millimetres);
