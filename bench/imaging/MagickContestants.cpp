// SPDX-License-Identifier: Apache-2.0
// ImageMagick through its own library, on one thread.
#include "imaging/Contestant.h"

#ifdef HAVE_MAGICK

#include "imaging/MagickWork.h"

#include <memory>

namespace {

struct Destroy
{
    void operator()(MagickWand *wand) const { DestroyMagickWand(wand); }
};
using Wand = std::unique_ptr<MagickWand, Destroy>;

/// Null when the page is longer than ImageMagick's policy lets it be.
Wand wandOf(const TestPage &page, bool rgb)
{
    if (page.height > MagickGetResourceLimit(HeightResource)) {
        return nullptr;
    }
    Wand wand(NewMagickWand());
    MagickConstituteImage(wand.get(), page.width, page.height, rgb ? "RGB" : "I", CharPixel,
                          rgb ? page.rgb.data() : page.grey.data());
    return wand;
}

void readWand(MagickWand *wand, const TestPage &page, DotPage *dots)
{
    std::vector<std::uint8_t> rgb(page.width * page.height * 3);
    MagickExportImagePixels(wand, 0, 0, page.width, page.height, "RGB", CharPixel, rgb.data());
    for (std::size_t i = 0; i < rgb.size(); i += 3) {
        dots->push_back(rgb[i] < 128 ? 1 : rgb[i + 1] < 128 ? 2 : 0);
    }
}

Contestant contestant(const std::string &method, const PageFile &page, bool twoColors)
{
    const std::string work = method + (twoColors ? "3" : "");
    return {method, "ImageMagick",
            [page, twoColors, work](DotPage *dots) -> std::optional<Run> {
                const Wand wand = wandOf(page.page, twoColors);
                const double start = processorTime();
                if (!wand || !doMagickWork(wand.get(), work)) {
                    return {};
                }
                const Run run{processorTime() - start, {}};
                if (dots) {
                    readWand(wand.get(), page.page, dots);
                }
                return run;
            },
            MAGICK_PAGE " " + work + " '" + page.path + "' '" + page.folder + "/magick.pnm'"};
}

} // namespace

std::vector<Contestant> magickContestants(const PageFile &toned, bool twoColors)
{
    MagickWandGenesis();
    MagickSetResourceLimit(ThreadResource, 1);
    std::vector<Contestant> contestants{contestant("threshold", toned, twoColors),
                                        contestant("diffusion", toned, twoColors)};
    if (!twoColors) {
        contestants.push_back(contestant("dither", toned, twoColors));
    }
    return contestants;
}

#else

std::vector<Contestant> magickContestants(const PageFile &, bool)
{
    return {};
}

#endif
