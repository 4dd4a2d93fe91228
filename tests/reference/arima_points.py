#!/usr/bin/env python3
"""Exact log-likelihoods at given coefficients, many of them hard for a filter.

    python3 arima_points.py arima_points_series.csv points.csv
    Rscript arima_points.R points.csv > arima_points.csv

The truth is the normal density of exact_arma.py in long double. What statsmodels' SARIMAX says at
the same coefficients stands beside it, and what R says is added by arima_points.R.
"""
import sys
import warnings

import numpy as np
from statsmodels.tsa.statespace.sarimax import SARIMAX

import exact_arma as exact
from exact_arma import LONG

warnings.simplefilter("ignore")
np.seterr(all="ignore")


def simulate(rng, ar, ma, n):
    a = rng.standard_normal(n + 400)
    y = np.zeros(n + 400)
    for t in range(n + 400):
        y[t] = sum(ma[j] * a[t - j] for j in range(min(len(ma), t + 1)))
        y[t] -= sum(ar[i] * y[t - i] for i in range(1, min(len(ar), t + 1)))
    return y[400:].round(6)


def without(y, cases):
    y = y.copy()
    y[list(cases)] = np.nan
    return y


def make_series():
    rng = np.random.default_rng(1905)
    f = lambda lags, c: exact.factor(lags, c, float)
    seasonal = simulate(rng, exact.product(f([1], [0.6]), f([12], [0.7])), f([1], [-0.4]), 120)
    short = simulate(rng, f([1, 2], [1.2, -0.5]), f([1], [0.3]), 40)
    inside = [17, 18, 30, 44, 45, 46, 71] + list(range(80, 94)) + [101]
    ends = [0, 1, 2, 3, 117, 118, 119]
    return {
        "seasonal": seasonal,
        "inside": without(seasonal, inside),
        "ends": without(seasonal, ends),
        "both": without(seasonal, inside + ends),
        "alternate": without(seasonal, range(1, 120, 2)),
        "short": short,
    }


# Roots of modulus 0.99 and angle 0.3.
CIRCLE = [1.891566, -0.9801]

# name, series, AR, seasonal AR, MA, seasonal MA (lag: coefficient, signs of Box and Jenkins), constant
POINTS = [
    ("white-noise", "seasonal", {}, {}, {}, {}, 0),
    ("ar-near-unit", "seasonal", {1: 0.999}, {}, {}, {}, 0),
    ("ar-very-near-unit", "seasonal", {1: 0.99999}, {}, {}, {}, 0),
    ("ar-near-minus-unit", "seasonal", {1: -0.999}, {}, {}, {}, 0.3),
    ("seasonal-ar-near-unit", "seasonal", {}, {12: 0.99}, {}, {}, 0),
    ("small-ar-and-seasonal-ar-near-unit", "seasonal", {1: 0.0001}, {12: 0.99}, {1: 0.7}, {}, 0),
    ("small-ar-opposite-ma-and-seasonal-ar-near-unit", "seasonal", {1: 0.0001}, {12: 0.99}, {1: -0.7}, {}, 0),
    ("both-ar-near-unit", "seasonal", {1: 0.99}, {12: 0.99}, {1: 0.5}, {12: 0.5}, 0),
    ("ma-near-unit", "seasonal", {}, {}, {1: 0.999}, {}, 0),
    ("ma-at-unit", "seasonal", {}, {}, {1: 1}, {}, 0),
    ("ma-at-minus-unit", "seasonal", {}, {}, {1: -1}, {}, 0),
    ("seasonal-ma-at-unit", "seasonal", {}, {}, {}, {12: 1}, 0),
    ("common-factors", "seasonal", {1: 0.8}, {}, {1: 0.799}, {}, 0),
    ("equal-factors", "seasonal", {1: 0.8}, {}, {1: 0.8}, {}, 0),
    ("ar2-near-circle", "seasonal", {1: CIRCLE[0], 2: CIRCLE[1]}, {}, {}, {}, 0),
    ("ar2-near-circle-ma2", "short", {1: CIRCLE[0], 2: CIRCLE[1]}, {}, {1: 0.4, 2: -0.2}, {}, 0.5),
    ("airline-near-unit", "seasonal", {}, {}, {1: 0.95}, {12: 0.98}, 0),
    ("airline-at-unit", "seasonal", {}, {}, {1: 1}, {12: 1}, 0),
    ("airline", "seasonal", {}, {}, {1: 0.4}, {12: 0.6}, 0.1),
    ("gaps-in-ar", "seasonal", {1: 0.5, 3: 0.2, 9: 0.25}, {}, {}, {}, 0),
    ("gaps-in-ma", "seasonal", {}, {}, {2: 0.5, 5: -0.4}, {}, 0),
    ("gaps-in-both", "seasonal", {1: 0.5, 3: 0.2, 9: 0.25}, {}, {2: 0.5, 5: -0.4}, {}, -0.2),
    ("gaps-and-season", "seasonal", {1: 0.5, 3: 0.2}, {12: 0.4, 24: 0.3}, {2: 0.5}, {12: 0.3}, 0),
    ("more-ar-than-cases", "short", {1: 0.3}, {24: 0.4, 48: 0.2}, {}, {}, 0),
    ("more-ma-than-cases", "short", {}, {}, {1: 0.4}, {12: 0.5, 48: 0.3}, 0),
    ("arma-2-2", "short", {1: 1.2, 2: -0.5}, {}, {1: 0.3, 2: 0.2}, {}, 0.4),
    ("white-noise-missing-inside", "inside", {}, {}, {}, {}, 0),
    ("ar-near-unit-missing-inside", "inside", {1: 0.999}, {}, {}, {}, 0),
    ("ar-missing-at-both-ends", "ends", {1: 0.7}, {}, {}, {}, 0.2),
    ("ma-at-unit-missing-inside", "inside", {}, {}, {1: 1}, {}, 0),
    ("airline-missing-inside", "inside", {}, {}, {1: 0.4}, {12: 0.6}, 0),
    ("airline-missing-everywhere", "both", {}, {}, {1: 0.95}, {12: 0.98}, 0),
    ("seasonal-ar-missing-at-both-ends", "ends", {1: 0.6}, {12: 0.7}, {1: -0.4}, {}, 0),
    ("small-ar-and-seasonal-ar-near-unit-missing", "both", {1: 0.0001}, {12: 0.99}, {1: 0.7}, {}, 0),
    ("gaps-missing-everywhere", "both", {1: 0.5, 3: 0.2, 9: 0.25}, {}, {2: 0.5, 5: -0.4}, {}, 0),
    ("ar2-near-circle-every-other-missing", "alternate", {1: CIRCLE[0], 2: CIRCLE[1]}, {}, {}, {}, 0),
    ("seasonal-arma-every-other-missing", "alternate", {1: -0.5}, {12: 0.7}, {1: 0.4}, {12: 0.2}, 0.1),
]


def in_gaps(c, unit=1):
    """An order as statsmodels has it: a list of ones and zeros by lag, or the number 0."""
    return [int(i * unit in c) for i in range(1, max(c, default=0) // unit + 1)] or 0


def by_statsmodels(y, ar, sar, ma, sma, s, n):
    order = (in_gaps(ar), 0, in_gaps(ma))
    seasonal = (in_gaps(sar, 12), 0, in_gaps(sma, 12), 12 if sar or sma else 0)
    model = SARIMAX(y, order=order, seasonal_order=seasonal, enforce_stationarity=True, enforce_invertibility=False)
    values = [*ar.values(), *(-v for v in ma.values()), *sar.values(), *(-v for v in sma.values()), s / n]
    try:
        return model.loglike(np.array(values, float))
    except Exception as error:
        print(error, file=sys.stderr)
        return np.nan


def text(c):
    return " ".join(f"{lag}:{v}" for lag, v in c.items())


def main():
    series = make_series()
    with open(sys.argv[1], "w") as out:
        print("series,values", file=out)
        for name, y in series.items():
            print(name, " ".join("NA" if np.isnan(v) else f"{v:.15g}" for v in y), sep=",", file=out)
    with open(sys.argv[2], "w") as out:
        print("point,series,ar,sar,ma,sma,constant,n,sum_of_squares,log_det,log_likelihood,statsmodels", file=out)
        for name, key, ar, sar, ma, sma, constant in POINTS:
            y = series[key]
            cases = np.flatnonzero(~np.isnan(y))
            f = lambda c: exact.factor(list(c), list(map(str, c.values())))
            z = y[cases].astype(LONG) - LONG(str(constant))
            s, log_det, ll = exact.evaluate(exact.product(f(ar), f(sar)), exact.product(f(ma), f(sma)), z, cases)
            sm = by_statsmodels(y - constant, ar, sar, ma, sma, float(s), len(cases))
            print(name, key, text(ar), text(sar), text(ma), text(sma), constant, len(cases),
                  f"{float(s):.16g}", f"{float(log_det):.16g}", f"{float(ll):.16g}", f"{sm:.12g}", sep=",", file=out)


if __name__ == "__main__":
    main()
