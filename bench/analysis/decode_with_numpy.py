# SPDX-License-Identifier: MIT
"""Decodes photographs (model index 0, no raw image) as an engineer would script it.

decode_with_numpy.py FILE ROUNDS prints the seconds one photograph takes, read from disk each time:
gray image, palette, parameters, temperatures, mean, and the statistics of one rectangle. Starting
Python and importing numpy is left out.
"""
import struct
import sys
import time

import numpy as np


def decode(path):
    data = np.fromfile(path, dtype=np.uint8)
    gray = data[230454:307254].reshape(320, 240)
    entries = data[307254:307766].view("<u2")
    palette = np.stack([entries >> 8 & 0xF8, entries >> 3 & 0xFC, entries << 3 & 0xFF], axis=1)
    unit, tmax, tmin, gmax, gmin, centre, emissivity, machine, *markers = struct.unpack_from(
        "<BhhBBhBI6H", data, 307766)
    ratio = (np.float32(gmax) - gray.astype(np.float32)) / np.float32(gmax - gmin)
    span = tmax / 10.0 - tmin / 10.0
    temperatures = (tmax / 10.0 - ratio.astype(np.float64) * span).astype(np.float32).T
    area = temperatures[40:200, 50:250]
    return palette, temperatures, temperatures.mean(dtype=np.float64), area.max(), area.min(), area.mean()


rounds = int(sys.argv[2])
decode(sys.argv[1])
start = time.process_time()
for _ in range(rounds):
    decode(sys.argv[1])
print((time.process_time() - start) / rounds)
