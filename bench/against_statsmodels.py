# Exact maximum likelihood fits of the airline model: this core beside statsmodels' SARIMAX with its
# defaults, in turns, processor time of one thread each. Needs python3-statsmodels.
#
#   python3 bench/against_statsmodels.py build/bench/bin/arima_bench
import os

os.environ["OMP_NUM_THREADS"] = os.environ["OPENBLAS_NUM_THREADS"] = "1"  # read on import

import csv
import pathlib
import statistics
import subprocess
import sys
import time

import numpy as np
from statsmodels.tsa.statespace.sarimax import SARIMAX

DATA = pathlib.Path(__file__).parent.parent / "tests" / "data" / "airpassengers.csv"
FITS = 3


def ours(bench):
    out = subprocess.run([bench, "--benchmark_filter=^Fit/ml$", "--benchmark_min_time=0.5",
                          "--benchmark_format=csv"], check=True, capture_output=True, text=True)
    row = next(csv.DictReader(out.stdout[out.stdout.index("name,"):].splitlines()))
    return float(row["cpu_time"]) / 1e6, float(row["loglik"])


def theirs(series):
    start = time.process_time()
    for _ in range(FITS):
        # Differenced by the model itself, so that the likelihood is that of the differences, and with
        # standard errors, which the core's fits have, too.
        fit = SARIMAX(series, order=(0, 1, 1), seasonal_order=(0, 1, 1, 12),
                      simple_differencing=True).fit(disp=0)
        fit.bse
    return (time.process_time() - start) / FITS, fit.llf


series = np.log([float(row["value"]) for row in csv.DictReader(DATA.open())])
theirs(series)
ratios = []
for number in range(1, 6):
    their_time, their_likelihood = theirs(series)
    our_time, our_likelihood = ours(sys.argv[1])
    assert abs(their_likelihood - our_likelihood) < 1e-3
    ratios.append(their_time / our_time)
    print(f"round {number}: SARIMAX {1e3 * their_time:.0f} ms, ours {1e3 * our_time:.3f} ms, "
          f"{ratios[-1]:.0f} fits of ours per fit of SARIMAX")
print(f"median: {statistics.median(ratios):.0f} fits per fit of SARIMAX "
      f"(log-likelihood {their_likelihood:.4f}, ours {our_likelihood:.4f})")
