#!/usr/bin/env python3
"""Simulated series and the best log-likelihoods that R and statsmodels reach on them.

    python3 arima_simulated.py series > arima_simulated_series.csv
    Rscript arima_simulated.R arima_simulated_series.csv > simulated_r.csv
    python3 arima_simulated.py fit simulated_r.csv > arima_simulated.csv

Twelve series of each of five models, every other one with a constant.
"""
import csv
import sys

import numpy as np

import arima_data
import exact_arma as exact
from arima_fits import Fit, statsmodels_fit
from arima_points import simulate

# name, season, d, D, AR, seasonal AR, MA, seasonal MA lags
MODELS = [
    ("arma", 1, 0, 0, [1], [], [1], []),
    ("arima211", 1, 1, 0, [1, 2], [], [1], []),
    ("airline", 12, 1, 1, [], [], [1], [12]),
    ("seasonal", 12, 0, 1, [1], [], [], [12]),
    ("arma22", 1, 0, 0, [1, 2], [], [1, 2], []),
]


def draw(rng, lags, wide):
    """Coefficients of an admissible polynomial, by partial autocorrelations in (-wide, wide)."""
    if not lags:
        return []
    if len(lags) == 1:
        return [rng.uniform(-wide, wide)]
    r1, r2 = rng.uniform(-wide, wide, 2)
    return [r1 * (1 - r2), r2]


def integrate(z, season, d, D, rng):
    y = z
    for _ in range(D):
        y = np.append(rng.normal(50, 3, season), y)
        for t in range(season, len(y)):
            y[t] += y[t - season]
    for _ in range(d):
        y = np.cumsum(np.append(100.0, y))
    return y


def write_series():
    rng = np.random.default_rng(1970)
    print("series,season,d,D,constant,ar,sar,ma,sma,values")
    for name, season, d, D, ar, sar, ma, sma in MODELS:
        for i in range(12):
            n = int(rng.integers(80, 201))
            # The last third lies near the bounds.
            wide = 0.8 if i < 8 else 0.98
            phi = exact.product(exact.factor(ar, draw(rng, ar, wide), float), exact.factor(sar, draw(rng, sar, wide), float))
            theta = exact.product(exact.factor(ma, draw(rng, ma, wide), float), exact.factor(sma, draw(rng, sma, wide), float))
            z = simulate(rng, phi, theta, n - d - D * season)
            if i % 2:
                z = z + rng.normal(0, 1)
            y = integrate(z, season, d, D, rng)
            text = lambda lags: " ".join(map(str, lags))
            print(f"{name}-{i + 1}", season, d, D, i % 2, text(ar), text(sar), text(ma), text(sma),
                  " ".join(f"{v:.7g}" for v in y), sep=",")


def load():
    for row in csv.DictReader((arima_data.HERE / "arima_simulated_series.csv").open()):
        d, D, season = int(row["d"]), int(row["D"]), int(row["season"])
        y = np.array([float(v) for v in row["values"].split()])
        lags = [arima_data.lags(row[key]) for key in ("ar", "sar", "ma", "sma")]
        count = sum(map(len, lags)) + int(row["constant"])
        yield arima_data.Model(row["series"], y, arima_data.difference(y, d, D, season), d, D, season,
                               row["constant"] == "1", *lags, [], [], 0, [""] * count)


def random_starts(m, rng):
    return [np.concatenate([draw(rng, lags, 0.9) for lags in (m.ar, m.sar, m.ma, m.sma)]) for _ in range(4)]


def for_statsmodels(fit, starts):
    """In its order: constant, AR, MA, seasonal AR, seasonal MA with its signs, variance."""
    m, out = fit.model, []
    for x in starts:
        p, P, q, Q = fit.counts
        constant = [np.mean(m.z)] if m.constant else []
        out.append(np.concatenate([constant, x[:p], -x[p + P:p + P + q], x[p:p + P], -x[p + P + q:], [np.var(m.z)]]))
    return out


def from_statsmodels(fit, result):
    v = list(result.params)
    p, P, q, Q = fit.counts
    v = v[int(fit.model.constant):]
    return np.array(v[:p] + v[p + q:p + q + P] + [-c for c in v[p:p + q]] + [-c for c in v[p + q + P:p + q + P + Q]])


def write_fits(path):
    given = {row["series"]: row for row in csv.DictReader(open(path))}
    rng = np.random.default_rng(1971)
    print("series,n,r,statsmodels,r_exact,statsmodels_exact,dense,coefficients")
    for model in load():
        fit = Fit(model, "ml")
        r = given[model.name]
        by_r = fit.split([float(v) for v in r["coefficients"].split()])[0]
        starts = random_starts(model, rng)
        sm = statsmodels_fit(model, for_statsmodels(fit, [by_r] + starts), [])
        by_sm = from_statsmodels(fit, sm)
        exact_at = lambda x: -float(fit.profile_anywhere(x)[0])
        at = fit.climb([by_r, by_sm] + starts[:2])
        print(model.name, fit.n, r["log_likelihood"], f"{sm.llf:.15g}", f"{exact_at(by_r):.15g}",
              f"{exact_at(by_sm):.15g}", f"{exact_at(at):.15g}",
              " ".join(f"{float(v):.12g}" for v in fit.join(at, fit.profile(at)[1])), sep=",", flush=True)


if __name__ == "__main__":
    if sys.argv[1] == "series":
        write_series()
    else:
        write_fits(sys.argv[2])
