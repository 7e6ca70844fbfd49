#!/usr/bin/python3
"""Photographs per second and core: thermaphoto beside the script that an engineer would write with
NumPy, and beside reading the files alone. All in one run, one after another, files in the page
cache, output in the same folder.

    thermaphoto_bench.py BUILD_FOLDER [COUNT] [SCRATCH_FOLDER]

A rate is COUNT divided by the processor time spent, user and system, of one job. The script reads
one photograph as plainly as the format allows: offsets, numpy.frombuffer, one expression. It takes
layout 0 without a raw image only, does not check machine IDs, and overwrites what is there.
"""

import json
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile

import numpy
import PIL.Image

TOOLS = {"points": [[120, 160], [10, 20]], "lines": [[10, 300, 200, 20]],
         "rectangles": [[30, 60, 100, 100]], "circles": [[150, 200, 40]]}


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


def scripted(job, photographs, output):
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


def seconds(work):
    """Processor time of work() in a process of its own."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    work()
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def in_child(work):
    child = os.fork()
    if child == 0:
        work()
        os._exit(0)
    if os.waitpid(child, 0)[1] != 0:
        raise SystemExit("the script failed")


def main():
    if len(sys.argv) < 2:
        raise SystemExit(__doc__)
    build = pathlib.Path(sys.argv[1]).resolve()
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 500
    with tempfile.TemporaryDirectory(dir=sys.argv[3] if len(sys.argv) > 3 else None) as scratch:
        run(build, count, pathlib.Path(scratch))


def run(build, count, scratch):
    folder = scratch / "photographs"
    subprocess.run([build / "bench/make_photographs", folder, str(count), "plain"], check=True)
    photographs = sorted(folder.glob("*.bmp"))
    tool_file = scratch / "tools.json"
    tool_file.write_text(json.dumps(TOOLS))
    program = build / "bin/thermaphoto"

    def command(job):
        if job == "info":
            return ["info", "--json"]
        if job == "measure":
            return ["measure", "--tools", tool_file, "--format", "json"]
        if job == "report":
            return ["report", "--tools", tool_file, "--language", "EN", "-o", scratch / "out"]
        return ["export", "--format", job, "-o", scratch / "out"]

    def rate(work):
        output = scratch / "out"
        shutil.rmtree(output, ignore_errors=True)
        output.mkdir()
        return count / seconds(work)

    def ours(job):
        with open(os.devnull, "wb") as nowhere:
            subprocess.run([program, *command(job), "--jobs", "1", folder], check=True,
                           stdout=nowhere)

    def theirs(job):
        in_child(lambda: scripted(job, photographs, scratch / "out"))

    theirs("read")
    print("%d photographs, rates in photographs per second and core" % count)
    print("%-8s %12s %12s %12s" % ("", "thermaphoto", "numpy", "reading"))
    for job in ("info", "measure", "npy", "tiff", "csv", "png", "report"):
        rates = ["%12.0f" % rate(lambda: ours(job))]
        is_scripted = job not in ("info", "report")
        rates.append("%12.0f" % rate(lambda: theirs(job)) if is_scripted else "%12s" % "-")
        rates.append("%12.0f" % rate(lambda: theirs("read")))
        print("%-8s %s" % (job, " ".join(rates)))


if __name__ == "__main__":
    main()
