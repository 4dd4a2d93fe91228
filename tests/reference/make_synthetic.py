#!/usr/bin/env python3
"""Writes the simulated series of the smoothing comparison as CSV: name,season,values.

    python3 make_synthetic.py > synthetic.csv

The generator is a 32-bit linear congruential one, so that the series are the same everywhere.
Every combination of season length, length and character appears; see `CHARACTERS`.
"""
import math
import sys


class Random:
    def __init__(self, seed):
        self.state = seed & 0xFFFFFFFF
        for _ in range(8):
            self.uniform()

    def uniform(self):
        self.state = (1664525 * self.state + 1013904223) % 2**32
        return (self.state + 0.5) / 2**32

    def normal(self):
        return sum(self.uniform() for _ in range(12)) - 6


def smooth(r, n, m, a, g, d, phi, noise, slope, swing, multiplicative):
    """A path of the innovations form itself, with weights a, a g and (1 - a) d."""
    level, trend = 100.0, slope
    season = [swing * math.sin(2 * math.pi * j / m) + swing * 0.3 * r.normal() for j in range(m)]
    mean = sum(season) / m
    season = [s - mean for s in season]
    if multiplicative:
        season = [max(1 + s / 100, 0.05) for s in season]
    values = []
    for t in range(n):
        j = t % m
        q = level + phi * trend
        forecast = q * season[j] if multiplicative else q + season[j]
        e = noise * r.normal()
        values.append(forecast + e)
        r1 = e / season[j] if multiplicative else e
        level, trend = q + a * r1, phi * trend + a * g * r1
        season[j] += (1 - a) * d * (e / q if multiplicative else e)
    return values


# name: keyword arguments of smooth(); lengths are in seasons
CHARACTERS = {
    "steady": dict(a=0.1, g=0.05, d=0.1, phi=1, noise=3, slope=0.3, swing=15, multiplicative=False),
    "lively": dict(a=0.6, g=0.2, d=0.4, phi=1, noise=3, slope=0.2, swing=15, multiplicative=False),
    "damped": dict(a=0.4, g=0.5, d=0.2, phi=0.85, noise=4, slope=2, swing=10, multiplicative=False),
    "ratios": dict(a=0.3, g=0.05, d=0.3, phi=1, noise=4, slope=0.5, swing=30, multiplicative=True),
    "growing": dict(a=0.2, g=0.1, d=0.5, phi=1, noise=3, slope=1.5, swing=40, multiplicative=True),
    "noisy": dict(a=0.05, g=0.02, d=0.05, phi=1, noise=25, slope=0.1, swing=5, multiplicative=False),
    "flat": dict(a=0.3, g=0, d=0.02, phi=1, noise=2, slope=0, swing=0.2, multiplicative=False),
    "falling": dict(a=0.3, g=0.1, d=0.2, phi=1, noise=2, slope=-0.3, swing=12, multiplicative=True),
}


def spoil(values, r, how):
    values = list(values)
    n = len(values)
    if how == "outliers":
        for _ in range(max(1, n // 30)):
            values[int(r.uniform() * n)] *= 1.5 + r.uniform()
    elif how == "shift":
        for t in range(n // 2, n):
            values[t] += 30
    elif how == "break":
        for t in range(2 * n // 3, n):
            values[t] += 1.0 * (t - 2 * n // 3)
    return values


def main():
    print("series,season,values")
    seed = 20
    for m, lengths in ((4, (3, 8, 25)), (7, (3, 6, 20)), (12, (3, 6, 12, 25)), (24, (3, 8))):
        for seasons in lengths:
            for character, arguments in CHARACTERS.items():
                for how in ("plain", "outliers", "shift", "break"):
                    if how == "break" and seasons < 6:
                        continue
                    seed += 1
                    r = Random(seed * 7919)
                    n = seasons * m + 2 + int(r.uniform() * (m - 1))
                    values = spoil(smooth(r, n, m, **arguments), r, how)
                    if min(values) <= 1:
                        lift = 2 - min(values)
                        values = [v + lift for v in values]
                    text = " ".join("%.6g" % v for v in values)
                    print(f"{character}-{how}-{m}-{n},{m},{text}")


if __name__ == "__main__":
    sys.exit(main())
