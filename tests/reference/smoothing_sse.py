#!/usr/bin/env python3
"""Least sums of squared one-step errors that statsmodels reaches for each smoothing kind.

    python3 smoothing_sse.py series.csv > statsmodels.csv

Reads series,season,values; writes series,season,kind,program,first,sse as smoothing_sse.R does.
"""
import csv
import sys
import warnings

import numpy as np
from statsmodels.tsa.holtwinters import ExponentialSmoothing

warnings.simplefilter("ignore")
np.seterr(all="ignore")

KINDS = {
    "simple": dict(trend=None, seasonal=None),
    "holt": dict(trend="add", seasonal=None),
    "damped-trend": dict(trend="add", damped_trend=True, seasonal=None),
    "simple-seasonal": dict(trend=None, seasonal="add"),
    "winters-additive": dict(trend="add", seasonal="add"),
    "winters-multiplicative": dict(trend="add", seasonal="mul"),
}


def best(y, m, arguments):
    sums = []
    for options in ({}, dict(method="SLSQP"), dict(method="L-BFGS-B")):
        try:
            model = ExponentialSmoothing(
                y,
                seasonal_periods=m if arguments["seasonal"] else None,
                initialization_method="estimated",
                **arguments,
            )
            fit = model.fit(optimized=True, **options)
            # Seasonal factors below 0 are no multiplicative season and set no bar.
            if arguments["seasonal"] == "mul" and min(fit.season.min(), fit.params["initial_seasons"].min()) <= 0:
                continue
            sums.append(float(np.sum((y - fit.fittedvalues) ** 2)))
        except Exception as error:  # a fit that statsmodels refuses is no bar
            print(error, file=sys.stderr)
    return min((s for s in sums if np.isfinite(s)), default=None)


def main():
    for row in csv.DictReader(open(sys.argv[1])):
        y = np.array([float(v) for v in row["values"].split()])
        m = int(row["season"])
        for kind, arguments in KINDS.items():
            if arguments["seasonal"] and m < 2:
                continue
            if kind == "winters-multiplicative" and y.min() <= 0:
                continue
            sse = best(y, m, arguments)
            if sse is not None:
                print(f"{row['series']},{m},{kind},statsmodels,1,{sse:.10g}", flush=True)


if __name__ == "__main__":
    main()
