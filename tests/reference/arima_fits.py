#!/usr/bin/env python3
"""ARIMA fits by the exact normal density, beside those of R and statsmodels.

    Rscript arima_fits.R > arima_fits_r.csv
    python3 arima_fits.py arima_fits_r.csv arima_fits.csv arima_forecasts.csv

"dense": the likelihood of exact_arma.py, its maximum found from R's and statsmodels' estimates and
from others, then by Newton's steps; standard errors from the Hessian of minus the log-likelihood
(innovation variance concentrated out) in all coefficients jointly, by central differences and
Richardson's extrapolation. For cls the sum of squares is minimised in the same way, standard errors
are those of s^2 (J'J)^-1.
"""
import csv
import sys
import warnings

import numpy as np
from scipy.optimize import minimize
from statsmodels.tsa.statespace.sarimax import SARIMAX

import arima_data
import exact_arma as exact
from exact_arma import LONG

warnings.simplefilter("ignore")
np.seterr(all="ignore")


class Fit:
    """One model by one method. The coefficients are in the order of `parameters`; those that the
    model is not linear in (AR, MA, denominators) are searched, the others follow."""

    def __init__(self, model, method):
        self.model, self.method = model, method
        m = model
        self.counts = [len(m.ar), len(m.sar), len(m.ma), len(m.sma)]
        self.denominators = sum(len(p.denominator) for p in m.predictors)
        self.nonlinear = sum(self.counts) + self.denominators
        self.first = m.first
        if method == "cls":
            self.first += max(m.ar, default=0) + max(m.sar, default=0)
        self.cases = np.array([t for t in range(m.first, len(m.z)) if not np.isnan(m.z[t])])
        self.n = len(self.cases) if method == "ml" else len(m.z) - self.first
        self.k = len(m.parameters)

    # x: AR, seasonal AR, MA, seasonal MA, denominators; b: coefficients of the regressors.
    def polynomials(self, x, dtype):
        m, parts, at = self.model, [], 0
        for lags in (m.ar, m.sar, m.ma, m.sma):
            parts.append(exact.factor(lags, x[at:at + len(lags)], dtype))
            at += len(lags)
        return exact.product(parts[0], parts[1]), exact.product(parts[2], parts[3])

    def deltas(self, x):
        return x[sum(self.counts):]

    def admissible(self, x):
        m, at = self.model, 0
        for lags in (m.ar, m.sar, m.ma, m.sma):
            if not exact.is_stationary(exact.factor(lags, x[at:at + len(lags)])):
                return False
            at += len(lags)
        return all(abs(d) < 1 for d in self.deltas(x))

    def join(self, x, b):
        """The coefficients in the order of `parameters`."""
        m = self.model
        c, arma = int(m.constant), sum(self.counts)
        b, d = list(b), list(self.deltas(x))
        out = b[:c] + list(x[:arma])
        b = b[c:]
        for p in m.predictors:
            count = 1 + len(p.numerator)
            out += b[:count] + d[:len(p.denominator)]
            b, d = b[count:], d[len(p.denominator):]
        return np.array(out + b)

    def split(self, coefficients):
        m = self.model
        v = list(coefficients)
        c, arma = int(m.constant), sum(self.counts)
        b, x, v = v[:c], v[c:c + arma], v[c + arma:]
        for p in m.predictors:
            count = 1 + len(p.numerator)
            b, v = b + v[:count], v[count:]
            x, v = x + v[:len(p.denominator)], v[len(p.denominator):]
        return np.array(x), np.array(b + v)

    def residual_columns(self, x, columns):
        """Conditional residuals of each column: zero before the window."""
        ar, ma = self.polynomials(x, float)
        e = np.zeros_like(columns)
        for t in range(self.first, len(columns)):
            e[t] = sum(ar[i] * columns[t - i] for i in np.flatnonzero(ar))
            for j in np.flatnonzero(ma[1:]) + 1:
                if t - j >= self.first:
                    e[t] -= ma[j] * e[t - j]
        return e[self.first:]

    def whitened(self, x, columns, dtype):
        """The columns with unit-variance independent errors, and the log determinant."""
        if self.method == "cls":
            return self.residual_columns(x, columns[:len(self.model.z)].astype(float)), 0.0
        ar, ma = self.polynomials(x, dtype)
        l = exact.cholesky(exact.covariance(ar, ma, self.cases))
        return exact.forward(l, columns[self.cases].astype(dtype)), 2 * np.log(np.diag(l)).sum()

    def table(self, x):
        X = arima_data.regressors(self.model, self.deltas(x))
        z = np.append(self.model.z, np.full(arima_data.FORECASTS, np.nan))
        return np.column_stack([z, X])

    def value(self, s, log_det):
        """What is minimised: minus the log-likelihood; for cls it rises with the sum of squares."""
        return -exact.concentrated(s, log_det, self.n)

    def profile(self, x, dtype=float):
        """Objective and best regression coefficients at x; large where x is not admissible."""
        if not self.admissible(x):
            return 1e10, None
        try:
            return self.profile_anywhere(x, dtype)
        except np.linalg.LinAlgError:
            return 1e10, None

    def profile_anywhere(self, x, dtype=LONG):
        """The same for any stationary x: an MA root may lie on or inside the unit circle."""
        u, log_det = self.whitened(x, self.table(x), dtype)
        v, W = u[:, 0], u[:, 1:]
        b = np.zeros(0, dtype)
        if W.shape[1]:
            b = exact.solve(W.T @ W, W.T @ v)
            b += exact.solve(W.T @ W, W.T @ (v - W @ b))
            v = v - W @ b
        return self.value(v @ v, log_det), b

    def sums(self, coefficients, dtype=LONG):
        """Sum of squares and log determinant at all coefficients."""
        x, b = self.split(coefficients)
        u, log_det = self.whitened(x, self.table(x), dtype)
        v = u[:, 0] - (u[:, 1:] @ b if len(b) else 0)
        return v @ v, log_det

    def objective(self, coefficients, dtype=LONG):
        return self.value(*self.sums(coefficients, dtype))

    def residuals(self, coefficients):
        x, b = self.split(coefficients)
        u, _ = self.whitened(x, self.table(x), float)
        return u[:, 0] - (u[:, 1:] @ b if len(b) else 0)

    def climb(self, starts):
        """The best end of simplex searches from the starts: AR, MA and denominators."""
        f = lambda x: float(self.profile(x)[0])
        best = np.zeros(0)
        for x in starts if self.nonlinear else []:
            for _ in range(2):
                x = minimize(f, x, method="Nelder-Mead", options=dict(xatol=1e-9, fatol=1e-11, maxiter=4000)).x
            if not len(best) or f(x) < f(best):
                best = x
        return best

    def search(self, starts):
        x = self.climb(starts)
        return self.newton(self.join(x, self.profile(x)[1]))

    def newton(self, at):
        """Newton's steps in all coefficients, to the rounding of the objective."""
        for _ in range(4):
            g, H = derivatives(self.objective, at, self.scale(at))
            step = np.linalg.solve(H, g)
            at = at - step
        return at

    def scale(self, at):
        """Steps about a tenth of a standard error."""
        h = 1e-3 * np.maximum(abs(at), 1e-2)
        for _ in range(3):
            f0 = self.objective(at)
            for i in range(len(at)):
                e = np.zeros(len(at)); e[i] = h[i]
                bend = float(self.objective(at + e) - 2 * f0 + self.objective(at - e)) / h[i] ** 2
                if bend > 0:
                    h[i] = 0.1 / np.sqrt(bend)
        return h


def richardson(rows):
    """Limit of central differences at steps h, h/2, h/4."""
    while len(rows) > 1:
        order = 4 if len(rows) == 3 else 16
        rows = [(order * b - a) / (order - 1) for a, b in zip(rows, rows[1:])]
    return rows[0]


def derivatives(f, at, h):
    """Gradient and Hessian by central differences, extrapolated."""
    k = len(at)
    gs, Hs = [], []
    f0 = f(at)
    for shrink in (1, 2, 4):
        s = h / shrink
        unit = np.diag(s)
        up = [f(at + unit[i]) for i in range(k)]
        down = [f(at - unit[i]) for i in range(k)]
        g = np.array([float(up[i] - down[i]) / (2 * s[i]) for i in range(k)])
        H = np.zeros((k, k))
        for i in range(k):
            H[i, i] = float(up[i] - 2 * f0 + down[i]) / s[i] ** 2
            for j in range(i):
                both = f(at + unit[i] + unit[j]) + f(at - unit[i] - unit[j])
                H[i, j] = H[j, i] = float(both - up[i] - down[i] - up[j] - down[j] + 2 * f0) / (2 * s[i] * s[j])
        gs.append(g)
        Hs.append(H)
    return richardson(gs), richardson(Hs)


def jacobian(fit, at, h):
    columns = []
    for i in range(len(at)):
        rows = []
        for shrink in (1, 2, 4):
            e = np.zeros(len(at)); e[i] = h[i] / shrink
            rows.append((fit.residuals(at + e) - fit.residuals(at - e)) / (2 * e[i]))
        columns.append(richardson(rows))
    return np.array(columns).T


def std_errors(fit, at):
    h = fit.scale(at)
    if fit.method == "ml":
        return np.sqrt(np.diag(np.linalg.inv(derivatives(fit.objective, at, h)[1])))
    J = jacobian(fit, at, h)
    s2 = float(fit.sums(at)[0]) / (fit.n - fit.k)
    return np.sqrt(np.diag(s2 * np.linalg.inv(J.T @ J)))


def integration(model, horizon):
    """Matrix that sums differences up again: weights of 1 / ((1 - B)^d (1 - B^s)^D)."""
    poly = np.ones(1, LONG)
    for _ in range(model.d):
        poly = exact.product(poly, exact.factor([1], [1]))
    for _ in range(model.D):
        poly = exact.product(poly, exact.factor([model.season], [1]))
    xi = exact.psi_weights(poly, np.ones(1, LONG), horizon)
    A = np.zeros((horizon, horizon), LONG)
    for i in range(horizon):
        A[i, :i + 1] = xi[i::-1]
    return A, poly


def undifferenced(model, z_future, poly):
    y = list(model.y.astype(LONG))
    for z in z_future:
        y.append(z - sum(poly[i] * y[len(y) - i] for i in np.flatnonzero(poly[1:]) + 1))
    return np.array(y[len(model.y):])


def forecasts(fit, at):
    """Forecasts of the transformed series, their standard errors for innovation variance 1 given
    the data of the fit, and those of a complete past, sqrt(sum of psi^2)."""
    m, H = fit.model, arima_data.FORECASTS
    x, b = fit.split(at)
    ar, ma = fit.polynomials(x, LONG)
    table = fit.table(x).astype(LONG)
    mean = table[:, 1:] @ b if len(b) else np.zeros(len(table), LONG)
    N = table[:, 0] - mean
    A, poly = integration(m, H)
    psi = exact.psi_weights(exact.product(ar, poly), ma, H)
    se_psi = np.sqrt(np.cumsum(psi ** 2))
    if fit.method == "cls":
        e = list(np.zeros(fit.first)) + list(fit.residuals(at))
        noise = list(N[:len(m.z)])
        for _ in range(H):
            t = len(noise)
            value = -sum(ar[i] * noise[t - i] for i in np.flatnonzero(ar[1:]) + 1)
            value += sum(ma[j] * e[t - j] for j in np.flatnonzero(ma[1:]) + 1 if t >= j)
            noise.append(value)
            e.append(0.0)
        return undifferenced(m, np.array(noise[-H:]) + mean[-H:], poly), se_psi, se_psi
    cases = np.append(fit.cases, np.arange(len(m.z), len(m.z) + H))
    G = exact.covariance(ar, ma, cases)
    n = len(fit.cases)
    l = exact.cholesky(G[:n, :n])
    u, W = exact.forward(l, N[fit.cases]), exact.forward(l, G[:n, n:])
    spread = G[n:, n:] - W.T @ W
    z = W.T @ u + mean[len(m.z):]
    return undifferenced(m, z, poly), np.sqrt(np.diag(A @ spread @ A.T)), se_psi


def statsmodels_fit(model, starts, deltas):
    """Best log-likelihood and AR and MA estimates of SARIMAX on the differenced series."""
    X = arima_data.regressors(model, deltas)[model.first:len(model.z)]
    seasonal = (len(model.sar), 0, len(model.sma), model.season if model.season > 1 else 0)
    if not (model.sar or model.sma):
        seasonal = (0, 0, 0, 0)
    sm = SARIMAX(model.z[model.first:], exog=X if X.shape[1] else None, order=(len(model.ar), 0, len(model.ma)),
                 seasonal_order=seasonal, trend="n")
    best = None
    for start in [None] + starts:
        for method in ("lbfgs", "bfgs"):  # its simplex lets the variance go to 0, where it sees no errors
            try:
                r = sm.fit(start_params=start, method=method, disp=False, maxiter=2000)
            except Exception as error:  # a start that statsmodels refuses
                print(model.name, error, file=sys.stderr)
                continue
            if np.isfinite(r.llf) and (best is None or r.llf > best.llf):
                best = r
    return best


def main():
    given = {}
    for row in csv.DictReader(open(sys.argv[1])):
        given.setdefault((row["model"], row["method"]), {}).setdefault(row["quantity"], []).append(float(row["value"]))
    rng = np.random.default_rng(7)
    fits, ahead = open(sys.argv[2], "w"), open(sys.argv[3], "w")
    print("model,method,by,quantity,index,value", file=fits)
    print("model,method,h,forecast,se_unit,se_psi,sigma2_ml,n,k", file=ahead)

    def say(model, method, by, quantity, values):
        for i, v in enumerate(np.atleast_1d(values)):
            print(f"{model},{method},{by},{quantity},{i},{float(v):.15g}", file=fits)
        fits.flush()

    for model in arima_data.load():
        for method in ("ml", "cls"):
            if (model.name, method) not in given:
                continue
            r = given[model.name, method]
            fit = Fit(model, method)
            x = fit.split(r["coefficient"])[0]
            at = fit.search([x, 0.5 * x, 0 * x + 0.1] + [x * rng.uniform(0.3, 1, len(x)) for _ in range(2)])
            s, log_det = fit.sums(at)
            say(model.name, method, "dense", "n", fit.n)
            say(model.name, method, "dense", "k", fit.k)
            say(model.name, method, "dense", "first", fit.first)
            say(model.name, method, "dense", "coefficient", at)
            say(model.name, method, "dense", "std_error", std_errors(fit, at))
            say(model.name, method, "dense", "sum_of_squares", s)
            if method == "ml":
                say(model.name, method, "dense", "log_det", log_det)
                say(model.name, method, "dense", "log_likelihood", exact.concentrated(s, log_det, fit.n))
                xs, b = fit.split(at)
                arma = xs[:sum(fit.counts)].copy()
                p, P, q, Q = fit.counts
                order = np.concatenate([b, arma[:p], -arma[p + P:p + P + q], arma[p:p + P], -arma[p + P + q:]])
                start = np.append(order, float(s) / fit.n)
                sm = statsmodels_fit(model, [start], fit.deltas(xs))
                say(model.name, method, "statsmodels", "log_likelihood", sm.llf)
            for quantity, values in r.items():
                say(model.name, method, "r", quantity, values)
            f, se, se_psi = forecasts(fit, at)
            for h in range(arima_data.FORECASTS):
                print(f"{model.name},{method},{h + 1},{float(f[h]):.15g},{float(se[h]):.15g},{float(se_psi[h]):.15g},"
                      f"{float(s) / fit.n:.15g},{fit.n},{fit.k}", file=ahead)
            ahead.flush()


if __name__ == "__main__":
    main()
