# SPDX-License-Identifier: MIT
"""What thermaphoto measures, once more and otherwise.

measured_with_numpy.py PHOTOGRAPH TOOLS UNIT prints a JSON object: "details" of each tool, "profile"
of the first line, "histogram" of the picture in 40 bins from 10 to 50, "spots" of it. Takes layout 0
of a file in degrees Celsius, or one with a raw image, and knows no rule but those of the manual.
"""
import json
import pathlib
import sys

import numpy

Y, X = numpy.mgrid[0:320, 0:240]


def matrix(data):
    if len(data) == 406096:
        raw = numpy.frombuffer(data, "<u2", 256 * 192, 307792).reshape(256, 192)
        return (raw[4 * Y // 5, 4 * X // 5] * 0.0625 - 273.15).astype(numpy.float32)
    gray = numpy.frombuffer(data, numpy.uint8, 76800, 230454).reshape(320, 240)
    hottest, coldest = numpy.frombuffer(data, "<i2", 2, 307766 + 1) / 10
    gray_hottest, gray_coldest = data[307766 + 5], data[307766 + 6]
    ratio = (numpy.float32(gray_hottest) - gray) / numpy.float32(gray_hottest - gray_coldest)
    return (hottest - ratio.astype(float) * (hottest - coldest)).astype(numpy.float32)


def shown(t, unit):
    scale, offset = (5.556, 32) if unit == "F" else (10, 0)
    ten = numpy.float32(10)
    return (ten * t / numpy.float32(scale) + numpy.float32(offset)).astype(float)


def box(x1, y1, x2, y2):
    return (X >= min(x1, x2)) & (X <= max(x1, x2)) & (Y >= min(y1, y2)) & (Y <= max(y1, y2))


def line(x1, y1, x2, y2):
    way = numpy.array([x2 - x1, y2 - y1])
    along = ((X - x1) * way[0] + (Y - y1) * way[1]) / (way @ way)
    away = numpy.hypot(X - x1 - numpy.trunc(way[0] * along), Y - y1 - numpy.trunc(way[1] * along))
    return box(x1, y1, x2, y2) & (away < 2)


def circle(cx, cy, radius):
    return numpy.hypot(X - cx, Y - cy) < radius + 1


def areas(tools):
    for i, (x, y) in enumerate(tools["points"]):
        yield f"P{i}", (X == min(x, 239)) & (Y == min(y, 319))
    for letter, kind, mask in ("L", "lines", line), ("R", "rectangles", box), ("C", "circles", circle):
        for i, numbers in enumerate(tools[kind]):
            yield f"{letter}{i}", mask(*numbers)


def details(t, mask):
    values = t[mask]  # in the order of a page
    x, y = X[mask], Y[mask]
    high, low = values.argmax(), values.argmin()
    return {"high_x": int(x[high]), "high_y": int(y[high]), "low_x": int(x[low]), "low_y": int(y[low]),
            "deviation": values.std(), "median": numpy.median(values), "pixels": int(mask.sum()),
            "high": values.max(), "low": values.min(), "mean": values.mean()}


def profile(t, x1, y1, x2, y2):
    steps = max(abs(x2 - x1), abs(y2 - y1))
    at = numpy.linspace(0, 1, steps + 1)
    dx = (numpy.sign(x2 - x1) * numpy.floor(at * abs(x2 - x1) + 0.5 + 1e-9)).astype(int)
    dy = (numpy.sign(y2 - y1) * numpy.floor(at * abs(y2 - y1) + 0.5 + 1e-9)).astype(int)
    distance = at * numpy.hypot(x2 - x1, y2 - y1)
    return [{"distance": d, "x": int(x1 + i), "y": int(y1 + j), "temperature": t[y1 + j, x1 + i]}
            for d, i, j in zip(distance, dx, dy)]


def hills(t, count, distance):
    """Single pixels that are hotter than all neighbours, the hottest first."""
    wide = numpy.pad(t, 1, constant_values=-1e9)
    around = [wide[1 + j:321 + j, 1 + i:241 + i] for i in (-1, 0, 1) for j in (-1, 0, 1) if i or j]
    found = numpy.argwhere(t > numpy.max(around, axis=0))  # y, x
    found = sorted(found.tolist(), key=lambda place: (-t[tuple(place)], *place))
    chosen = []
    for y, x in found:
        if all(numpy.hypot(y - j, x - i) > distance for j, i in chosen) and len(chosen) < count:
            chosen.append((y, x))
    return [{"x": x, "y": y, "temperature": t[y, x]} for y, x in chosen]


data = pathlib.Path(sys.argv[1]).read_bytes()
tools = json.loads(pathlib.Path(sys.argv[2]).read_text())
t = shown(matrix(data), sys.argv[3])
json.dump({"details": {name: details(t, mask) for name, mask in areas(tools)},
           "profile": profile(t, *tools["lines"][0]),
           "histogram": numpy.histogram(t, 40, (10, 50))[0].tolist(),
           "hot": hills(t, 4, 25), "hottest": t.max()}, sys.stdout)
