#!/usr/bin/env python3
"""Joins what R and statsmodels reached into smoothing_sse.csv, the bar for the fits.

    python3 data_series.py > data.csv
    python3 make_synthetic.py > synthetic.csv
    for s in data synthetic; do
      Rscript smoothing_sse.R $s.csv > $s-r.csv
      python3 smoothing_sse.py $s.csv > $s-statsmodels.csv
    done
    python3 make_table.py data-*.csv synthetic-*.csv > smoothing_sse.csv

One row per series, kind and first case of the window that is scored (1: all cases; R's HoltWinters
scores a shorter one): the least sum and the program that reached it. Sums of 0 up to rounding set
no bar.
"""
import csv
import sys


def main():
    best = {}
    for path in sys.argv[1:]:
        for series, season, kind, program, first, sse in csv.reader(open(path)):
            if float(sse) < 1e-9:
                continue
            key = (series, kind, int(first))
            if key not in best or float(sse) < best[key][0]:
                best[key] = (float(sse), program)
    print("series,kind,first,program,sse")
    for (series, kind, first), (sse, program) in sorted(best.items()):
        print(f"{series},{kind},{first},{program},{sse:.10g}")


if __name__ == "__main__":
    main()
