// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// A page drawn in code: blocks of a made-up landscape, of lines of type and of a scale of tones,
/// in turns. The same bytes each time.
struct TestPage
{
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<std::uint8_t> rgb;
    std::vector<std::uint8_t> grey; ///< The same page without colour.
};

/// What the page shows.
enum class Subject
{
    Photo,
    Text,
    PhotoAndText
};

TestPage drawPage(Subject subject, std::size_t width, std::size_t height);
