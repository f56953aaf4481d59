#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""pillow_peer.py PAGE METHOD OUT: does PAGE once by Pillow and writes the dots to OUT (PPM).

Prints the milliseconds of processor time from pixels in memory to dots in Pillow's own form (a byte
each) and to packed bits. METHOD is threshold, diffusion, threshold3 or diffusion3.
"""
import sys
import time

from PIL import Image

page, method, out = sys.argv[1:]
image = Image.open(page)
image.load()
palette = Image.new("P", (1, 1))
palette.putpalette([255, 255, 255, 0, 0, 0, 255, 0, 0] + [255, 255, 255] * 253)

start = time.process_time()
if method == "threshold":
    dots = image.convert("1", dither=Image.Dither.NONE)
elif method == "diffusion":
    dots = image.convert("1")
elif method == "threshold3":
    dots = image.quantize(palette=palette, dither=Image.Dither.NONE)
else:
    dots = image.quantize(palette=palette, dither=Image.Dither.FLOYDSTEINBERG)
done = time.process_time()
if method.endswith("3"):
    print((done - start) * 1e3)
else:
    dots.tobytes()
    print((done - start) * 1e3, (time.process_time() - start) * 1e3)
dots.convert("RGB").save(out, "PPM")
