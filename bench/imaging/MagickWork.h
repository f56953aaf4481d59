// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <wand/MagickWand.h>

#include <string>

/// Makes dots of the wand's picture: METHOD is threshold, dither or diffusion, threshold3 or
/// diffusion3 for white, black and red. False for another.
bool doMagickWork(MagickWand *wand, const std::string &method);
