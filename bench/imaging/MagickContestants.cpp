// SPDX-License-Identifier: Apache-2.0
// ImageMagick through its own library, on one thread.
#include "imaging/Contestant.h"

#ifdef HAVE_MAGICK

#include <wand/MagickWand.h>

#include <memory>

namespace {

struct Destroy
{
    void operator()(MagickWand *wand) const { DestroyMagickWand(wand); }
};
using Wand = std::unique_ptr<MagickWand, Destroy>;

Wand wandOf(const TestPage &page, bool rgb)
{
    Wand wand(NewMagickWand());
    MagickConstituteImage(wand.get(), page.width, page.height, rgb ? "RGB" : "I", CharPixel,
                          rgb ? page.rgb.data() : page.grey.data());
    return wand;
}

/// White, black and perhaps red, a pixel each.
Wand palette(std::size_t count)
{
    const std::uint8_t colors[] = {255, 255, 255, 0, 0, 0, 255, 0, 0};
    Wand wand(NewMagickWand());
    MagickConstituteImage(wand.get(), count, 1, "RGB", CharPixel, colors);
    return wand;
}

void readDots(MagickWand *wand, const TestPage &page, DotPage *dots)
{
    std::vector<std::uint8_t> rgb(page.width * page.height * 3);
    MagickExportImagePixels(wand, 0, 0, page.width, page.height, "RGB", CharPixel, rgb.data());
    for (std::size_t i = 0; i < rgb.size(); i += 3) {
        dots->push_back(rgb[i] < 128 ? 1 : rgb[i + 1] < 128 ? 2 : 0);
    }
}

using Work = std::function<void(MagickWand *wand)>;

Contestant contestant(const std::string &method, const TestPage &page, bool rgb, const Work &work)
{
    return {method, "ImageMagick", [&page, rgb, work](DotPage *dots) {
                const Wand wand = wandOf(page, rgb);
                const double start = processorTime();
                work(wand.get());
                const Run run{processorTime() - start, {}};
                if (dots) {
                    readDots(wand.get(), page, dots);
                }
                return std::optional(run);
            }};
}

void remap(MagickWand *wand, std::size_t count, DitherMethod method)
{
    const Wand colors = palette(count);
    MagickRemapImage(wand, colors.get(), method);
}

} // namespace

std::vector<Contestant> magickContestants(const TestPage &toned, bool twoColors)
{
    MagickWandGenesis();
    MagickSetResourceLimit(ThreadResource, 1);
    if (twoColors) {
        return {contestant("threshold", toned, true,
                           [](MagickWand *wand) { remap(wand, 3, NoDitherMethod); }),
                contestant("diffusion", toned, true,
                           [](MagickWand *wand) { remap(wand, 3, FloydSteinbergDitherMethod); })};
    }
    return {contestant("threshold", toned, false,
                       [](MagickWand *wand) { MagickThresholdImage(wand, 32767.5); }),
            contestant("dither", toned, false,
                       [](MagickWand *wand) { MagickOrderedPosterizeImage(wand, "o8x8"); }),
            contestant("diffusion", toned, false,
                       [](MagickWand *wand) { remap(wand, 2, FloydSteinbergDitherMethod); })};
}

#else

std::vector<Contestant> magickContestants(const TestPage &, bool)
{
    return {};
}

#endif
