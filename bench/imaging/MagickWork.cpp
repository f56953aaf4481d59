// SPDX-License-Identifier: Apache-2.0
#include "imaging/MagickWork.h"

namespace {

/// To the first colours of white, black and red.
bool remap(MagickWand *wand, std::size_t count, DitherMethod method)
{
    const unsigned char colors[] = {255, 255, 255, 0, 0, 0, 255, 0, 0};
    MagickWand *palette = NewMagickWand();
    const bool done = MagickConstituteImage(palette, count, 1, "RGB", CharPixel, colors) != 0
        && MagickRemapImage(wand, palette, method) != 0;
    DestroyMagickWand(palette);
    return done;
}

} // namespace

bool doMagickWork(MagickWand *wand, const std::string &method)
{
    if (method == "threshold") {
        return MagickThresholdImage(wand, 32767.5) != 0;
    }
    if (method == "dither") {
        return MagickOrderedPosterizeImage(wand, "o8x8") != 0;
    }
    if (method == "threshold3") {
        return remap(wand, 3, NoDitherMethod);
    }
    return (method == "diffusion" || method == "diffusion3")
        && remap(wand, method == "diffusion" ? 2 : 3, FloydSteinbergDitherMethod);
}
