// SPDX-License-Identifier: Apache-2.0
// magick_page METHOD PAGE OUT: does a page by ImageMagick's library, on one thread.
#include "imaging/MagickWork.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "magick_page: say METHOD PAGE OUT\n");
        return 2;
    }
    MagickWandGenesis();
    MagickSetResourceLimit(ThreadResource, 1);
    MagickWand *wand = NewMagickWand();
    const bool done = MagickReadImage(wand, argv[2]) != 0 && doMagickWork(wand, argv[1])
        && MagickWriteImage(wand, argv[3]) != 0;
    DestroyMagickWand(wand);
    MagickWandTerminus();
    return done ? 0 : 1;
}
