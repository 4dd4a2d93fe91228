"""Series and models of arima_models.csv as the fits see them: transformed and differenced."""
import csv
import pathlib
from dataclasses import dataclass, field

import numpy as np

HERE = pathlib.Path(__file__).parent
FORECASTS = 24


@dataclass
class Predictor:
    name: str
    x: np.ndarray  # transformed and differenced, its future appended, aligned with the dependent one
    before: float  # value before the first case
    delay: int = 0
    numerator: list = field(default_factory=list)
    denominator: list = field(default_factory=list)


@dataclass
class Model:
    name: str
    y: np.ndarray  # transformed, not differenced; nan: missing
    z: np.ndarray  # differenced
    d: int
    D: int
    season: int
    constant: bool
    ar: list
    sar: list
    ma: list
    sma: list
    predictors: list
    outliers: list  # columns over cases and future, differenced
    first: int  # first differenced case that is scored
    parameters: list


def read(series, column):
    rows = csv.DictReader((HERE.parent / "data" / f"{series}.csv").open())
    return np.array([float(r[column]) if r[column] else np.nan for r in rows])


def difference(x, d, D, season):
    for _ in range(d):
        x = x[1:] - x[:-1]
    for _ in range(D):
        x = x[season:] - x[:-season]
    return x


def future(name, x):
    """The last 24 values again for the many predictors, the last value for a single one."""
    return x[-FORECASTS:] if name == "seatbelts" else np.repeat(x[-1], FORECASTS)


def lags(text):
    return [int(v) for v in text.split()]


def predictor(row, text, d, D, season):
    words = text.split()
    p = Predictor(words[0], None, 0.0)
    x = read(row["series"], words[0])
    if "log" in words:
        x = np.log(x)
    value = lambda key: int(words[words.index(key) + 1])
    if "delay" in words:
        p.delay = value("delay")
    if "num" in words:
        p.numerator = [value("num")]
    if "den" in words:
        p.denominator = [value("den")]
    p.x = difference(np.append(x, future(row["model"], x)), d, D, season)
    p.before = 0.0 if d + D else x[0]
    return p


def load():
    models = []
    for row in csv.DictReader((HERE / "arima_models.csv").open()):
        d, D, season = int(row["d"]), int(row["D"]), int(row["season"])
        y = read(row["series"], row["column"])
        if row["log"] == "1":
            y = np.log(y)
        predictors = [predictor(row, t, d, D, season) for t in row["predictors"].split(";") if t.strip()]
        outliers = []
        if row["outlier"]:
            at = int(row["outlier"].split()[1])
            outliers.append(difference((np.arange(len(y) + FORECASTS) >= at).astype(float), d, D, season))
        models.append(Model(
            row["model"], y, difference(y, d, D, season), d, D, season, row["constant"] == "1",
            lags(row["ar"]), lags(row["sar"]), lags(row["ma"]), lags(row["sma"]), predictors, outliers,
            max([p.delay + max(p.numerator, default=0) for p in predictors], default=0),
            row["parameters"].split()))
    return models


def regressors(model, deltas):
    """Columns that the model is linear in, over cases and future, given the denominators:
    the constant, per predictor omega0, omega1 .., then the outliers."""
    count = len(model.z) + FORECASTS
    columns, at = [], 0
    if model.constant:
        columns.append(np.ones(count))
    for p in model.predictors:
        delta = deltas[at:at + len(p.denominator)]
        at += len(p.denominator)
        f = filtered(p, delta)
        columns.append(shifted(p, f, delta, p.delay))
        columns += [-shifted(p, f, delta, p.delay + lag) for lag in p.numerator]
    return np.array(columns + model.outliers).reshape(-1, count).T


def steady(p, delta):
    return p.before / (1 - sum(delta))


def filtered(p, delta):
    """x / (1 - delta B ..), in its steady state before the first case."""
    f = np.empty(len(p.x))
    for t, x in enumerate(p.x):
        f[t] = x + sum(c * (f[t - lag] if t >= lag else steady(p, delta)) for lag, c in zip(p.denominator, delta))
    return f


def shifted(p, f, delta, by):
    return np.append(np.repeat(steady(p, delta), by), f[:len(f) - by])
