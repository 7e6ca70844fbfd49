# SPDX-License-Identifier: MIT
"""What thermaphoto does with a folder of photographs, as an engineer would script it.

export_with_numpy.py JOB FOLDER OUTPUT_FOLDER prints the seconds of processor time that all the
photographs took; starting Python and importing NumPy are left out. The jobs are read (the files
alone), measure, npy, tiff, csv and png. The script reads a photograph as plainly as the format
allows: offsets, numpy.frombuffer, one expression. It takes layout 0 without a raw image only, does
not check machine IDs, and overwrites what is there.
"""
import pathlib
import sys
import time

import numpy
import PIL.Image


def matrix(path):
    data = path.read_bytes()
    gray = numpy.frombuffer(data, numpy.uint8, 76800, 230454).reshape(320, 240)
    hottest, coldest = numpy.frombuffer(data, "<i2", 2, 307766 + 1) / 10
    gray_hottest, gray_coldest = data[307766 + 5], data[307766 + 6]
    ratio = (numpy.float32(gray_hottest) - gray) / numpy.float32(gray_hottest - gray_coldest)
    return (hottest - ratio.astype(float) * (hottest - coldest)).astype(numpy.float32)


def picture(path):
    data = path.read_bytes()
    gray = numpy.frombuffer(data, numpy.uint8, 76800, 230454).reshape(320, 240)
    entries = numpy.frombuffer(data, "<u2", 256, 307254)
    palette = numpy.stack([entries >> 8 & 0xF8, entries >> 3 & 0xFC, entries << 3 & 0xF8], axis=1)
    return palette.astype(numpy.uint8)[gray]


def measured(path, disc, band):
    t = matrix(path)
    areas = [t[160:161, 120], t[20:21, 10], t[band], t[60:101, 30:101], t[disc]]
    return ["%.1f %.1f %.1f" % (area.max(), area.min(), area.mean()) for area in areas]


def run(job, photographs, output):
    y, x = numpy.mgrid[0:320, 0:240]
    disc = numpy.hypot(x - 150, y - 200) <= 40
    band = abs((x - 10) * -280 - (y - 300) * 190) / numpy.hypot(280, 190) < 1
    for path in photographs:
        target = output / path.stem
        if job == "read":
            path.read_bytes()
        elif job == "measure":
            measured(path, disc, band)
        elif job == "npy":
            numpy.save(target, matrix(path))
        elif job == "csv":
            numpy.savetxt(target.with_suffix(".csv"), matrix(path), fmt="%.9g", delimiter=",")
        elif job == "tiff":
            PIL.Image.fromarray(matrix(path)).save(target.with_suffix(".tiff"))
        elif job == "png":
            PIL.Image.fromarray(picture(path)).save(target.with_suffix(".png"))
        else:
            raise SystemExit(__doc__)


job, folder, output = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
photographs = sorted(folder.glob("*.bmp"))
start = time.process_time()
run(job, photographs, output)
print(time.process_time() - start)
