"""Exact Gaussian likelihood of an ARMA model by its definition: the multivariate normal density.

The autocovariances come from a linear system, the density from a Cholesky factor of their matrix;
no state space, no recursion over time. Slow, and with nothing in common with a filter. All in long
double (64-bit mantissa) unless `dtype` says otherwise.

Signs are Box and Jenkins': AR 1 - phi B, MA 1 - theta B. Polynomials are arrays, index = lag.
"""
import numpy as np
from scipy.linalg import solve_triangular

LONG = np.longdouble


def factor(lags, coefficients, dtype=LONG):
    """1 - sum of c_i B^lag_i."""
    p = np.zeros(max(lags, default=0) + 1, dtype)
    p[0] = 1
    for lag, c in zip(lags, coefficients):
        p[lag] -= dtype(c)
    return p


def product(a, b):
    out = np.zeros(len(a) + len(b) - 1, a.dtype)
    for i, c in enumerate(a):
        out[i:i + len(b)] += c * b
    return out


def solve(a, b):
    """Gaussian elimination with pivots; numpy's own solver knows no long double."""
    a, b = a.copy(), b.copy()
    n = len(b)
    for i in range(n):
        j = i + int(np.argmax(abs(a[i:, i])))
        a[[i, j]], b[[i, j]] = a[[j, i]], b[[j, i]]
        for r in range(i + 1, n):
            f = a[r, i] / a[i, i]
            if f != 0:
                a[r, i:] -= f * a[i, i:]
                b[r] -= f * b[i]
    for i in range(n - 1, -1, -1):
        b[i] = (b[i] - a[i, i + 1:] @ b[i + 1:]) / a[i, i]
    return b


def psi_weights(ar, ma, count):
    """First `count` weights of ma(B) / ar(B)."""
    psi = np.zeros(count, ar.dtype)
    for k in range(count):
        psi[k] = ma[k] if k < len(ma) else 0
        m = min(k, len(ar) - 1)
        if m:
            psi[k] -= ar[1:m + 1] @ psi[k - m:k][::-1]
    return psi


def autocovariances(ar, ma, count):
    """Autocovariances of lags 0 .. count - 1 for innovations of variance 1."""
    p, q = len(ar) - 1, len(ma) - 1
    psi = psi_weights(ar, ma, q + 1)
    count_all = max(count, p + 1)
    right = np.zeros(max(count_all, q + 1), ar.dtype)
    for k in range(q + 1):
        right[k] = ma[k:] @ psi[:q + 1 - k]
    system = np.zeros((p + 1, p + 1), ar.dtype)
    for k in range(p + 1):
        for i in range(p + 1):
            system[k, abs(k - i)] += ar[i]
    gamma = np.zeros(count_all, ar.dtype)
    gamma[:p + 1] = solve(system, right[:p + 1]) if ar.dtype == LONG else np.linalg.solve(system, right[:p + 1])
    for k in range(p + 1, count_all):
        gamma[k] = right[k] - (ar[1:] @ gamma[k - p:k][::-1] if p else 0)
    return gamma[:count]


def covariance(ar, ma, cases):
    """Covariance matrix of the given cases (integers)."""
    cases = np.asarray(cases)
    gamma = autocovariances(ar, ma, int(cases.max() - cases.min()) + 1)
    return gamma[abs(cases[:, None] - cases[None, :])]


def cholesky(a):
    if a.dtype != LONG:
        return np.linalg.cholesky(a)
    a = a.copy()
    n = len(a)
    for j in range(n):
        if not a[j, j] > 0:
            raise np.linalg.LinAlgError("not positive definite")
        a[j, j] = np.sqrt(a[j, j])
        a[j + 1:, j] /= a[j, j]
        a[j + 1:, j + 1:] -= np.outer(a[j + 1:, j], a[j + 1:, j])
    return np.tril(a)


def forward(l, b):
    """Solves l x = b for lower triangular l; b may have columns."""
    if l.dtype != LONG:
        return solve_triangular(l, b, lower=True)
    x = np.array(b, LONG)
    for i in range(len(l)):
        x[i] = (x[i] - l[i, :i] @ x[:i]) / l[i, i]
    return x


def backward(l, b):
    """Solves l' x = b."""
    x = np.array(b, l.dtype)
    for i in range(len(l) - 1, -1, -1):
        x[i] = (x[i] - l[i + 1:, i] @ x[i + 1:]) / l[i, i]
    return x


def is_stationary(poly):
    """No root of the polynomial on or inside the unit circle, by the step-down recursion."""
    a = np.array(poly[1:], float)
    while len(a):
        r = a[-1]
        if abs(r) >= 1:
            return False
        a = (a[:-1] - r * a[-2::-1]) / (1 - r * r)
    return True


def concentrated(s, log_det, n):
    """Log-likelihood with the innovation variance at its best value s / n."""
    return -0.5 * n * (np.log(2 * LONG(np.pi) * s / n) + 1) - 0.5 * log_det


def evaluate(ar, ma, z, cases):
    """Sum of squares, log determinant and concentrated log-likelihood of the observed values z."""
    l = cholesky(covariance(ar, ma, cases))
    u = forward(l, z)
    s, log_det = u @ u, 2 * np.log(np.diag(l)).sum()
    return s, log_det, concentrated(s, log_det, len(z))
