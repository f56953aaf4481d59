// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A label as it stands in the bytes that a printer got.
struct PrintedLabel
{
    std::size_t rowBytes = 0;
    /// Rows of dots, one bit each, the first in the highest bit, 1 for ink. Languages that do not
    /// tell how high the label is end with the last row that has dots.
    std::vector<std::uint8_t> dots;

    /// With paper down to `rows` rows, which must be at least those that there are.
    std::vector<std::uint8_t> dotsOf(std::size_t rows) const;
};

/// A job taken apart again.
struct PrintedJob
{
    std::vector<PrintedLabel> labels;
    /// All bytes but those that say which dots are black.
    std::string commands;
};

/// Takes the bytes apart that CUPS' rastertolabel made for one of the printers of its sample.drv:
/// "dymo", "intelbar", "zebra", "zebracpl", "zebraep1" or "zebraep2". Bytes that make no sense
/// fail the test with an exception.
PrintedJob printedJob(const std::string &printer, const std::string &bytes);
