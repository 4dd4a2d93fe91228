#!/usr/bin/env python3
"""Adds the exact log-likelihood and its AICc to the models that auto.arima chose.

    Rscript auto_arima.R > auto_r.csv
    python3 auto_arima.py auto_r.csv > auto_arima.csv
"""
import csv
import sys

import numpy as np

import arima_data
import exact_arma as exact


def log_likelihood(row):
    """Density of the differenced series at R's coefficients; None where differencing meets gaps."""
    p, d, q, P, D, Q, season = (int(row[key]) for key in ("p", "d", "q", "P", "D", "Q", "season"))
    y = arima_data.read(row["series"], row["column"])
    if np.isnan(y).any() and d + D:
        return None
    z = arima_data.difference(y, d, D, season)
    if row["constant"] != "NA":
        z = z - float(row["constant"])
    v = [float(c) for c in row["coefficients"].split()]
    lags = [range(1, p + 1), range(season, P * season + 1, season), range(1, q + 1), range(season, Q * season + 1, season)]
    factors = []
    for powers in lags:
        factors.append(exact.factor(list(powers), v[:len(powers)]))
        v = v[len(powers):]
    cases = np.flatnonzero(~np.isnan(z))
    return exact.evaluate(exact.product(*factors[:2]), exact.product(*factors[2:]), z[cases].astype(exact.LONG), cases)[2]


def main():
    rows = list(csv.DictReader(open(sys.argv[1])))
    print(",".join(rows[0]) + ",log_likelihood,aicc")
    for row in rows:
        ll = log_likelihood(row)
        n, count = int(row["n"]), int(row["k"]) + 1
        told = ["NA", "NA"]
        if ll is not None:
            told = [f"{ll:.15g}", f"{-2 * ll + 2 * count * n / (n - count - 1):.15g}"]
        print(",".join(list(row.values()) + told), flush=True)


if __name__ == "__main__":
    main()
