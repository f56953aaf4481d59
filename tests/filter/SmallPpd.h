// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

/// A small label printer's PPD, written for the tests: one size, two resolutions, a darkness, the
/// filter rastertolabel, 1-bit raster, and a comment at its end. Lines end in "\n".
std::string smallPpd();

/// `text` with the first `from` replaced. A text without `from` fails the test with an exception.
std::string with(std::string text, const std::string &from, const std::string &to);

/// The whole file. One that cannot be read fails the test with an exception.
std::string contentsOf(const std::string &path);
