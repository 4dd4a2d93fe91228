#!/usr/bin/env python3
"""Writes the complete series of ../data as CSV: name,season,values.

    python3 data_series.py > data.csv
"""
import csv
import pathlib

SEASONS = {"airpassengers": 12, "co2": 12, "intermittent_a": 12, "intermittent_b": 12,
           "johnsonjohnson": 4, "ldeaths": 12, "nottem": 12, "seatbelts": 12, "ukgas": 4,
           "usaccdeaths": 12}

print("series,season,values")
for path in sorted((pathlib.Path(__file__).parent.parent / "data").glob("*.csv")):
    rows = list(csv.DictReader(path.open()))
    for column in rows[0]:
        values = [row[column] for row in rows]
        if column in ("date", "index") or "" in values:
            continue
        print(f"{path.stem}:{column},{SEASONS.get(path.stem, 1)},{' '.join(values)}")
