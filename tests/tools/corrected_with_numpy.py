# SPDX-License-Identifier: MIT
"""What thermaphoto --emissivity makes of a photograph, once more and otherwise.

corrected_with_numpy.py PHOTOGRAPH STORED EMISSIVITY REFLECTED prints a JSON object: what
the readings along row 160 are with the other emissivity, all in °C. Takes layout 0 of a file in °C.
Radiance is Planck's law over 8 to 14 µm by Gauss and Legendre, and turned back by halving.
"""
import json
import pathlib
import sys

import numpy

POINTS, WEIGHTS = numpy.polynomial.legendre.leggauss(24)
WAVELENGTHS = 11e-6 + 3e-6 * POINTS


def radiance(celsius):
    kelvin = numpy.asarray(celsius, float)[..., None] + 273.15
    spectral = WAVELENGTHS ** -5.0 / numpy.expm1(0.014387768775 / (WAVELENGTHS * kelvin))
    return (spectral * WEIGHTS).sum(-1)  # the factors that are the same everywhere cancel out


def temperature(wanted):
    low, high = numpy.full(wanted.shape, -200.0), numpy.full(wanted.shape, 5000.0)
    for _ in range(60):
        middle = (low + high) / 2
        isLower = radiance(middle) < wanted
        low, high = numpy.where(isLower, middle, low), numpy.where(isLower, high, middle)
    return low


data = pathlib.Path(sys.argv[1]).read_bytes()
stored, emissivity, reflected = map(float, sys.argv[2:5])
gray = numpy.frombuffer(data, numpy.uint8, 76800, 230454).reshape(320, 240)[160].astype(float)
hottest, coldest = numpy.frombuffer(data, "<i2", 2, 307766 + 1) / 10
gray_hottest, gray_coldest = data[307766 + 5], data[307766 + 6]
readings = hottest - (gray_hottest - gray) / (gray_hottest - gray_coldest) * (hottest - coldest)
received = stored * radiance(readings) + (1 - stored) * radiance(reflected)
json.dump(temperature((received - (1 - emissivity) * radiance(reflected)) / emissivity).tolist(),
          sys.stdout)
