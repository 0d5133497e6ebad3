#!/usr/bin/env python3
"""Reference values for the chi-square and exponential quantiles (from either tail) and for
the incomplete gamma function at large shapes, with mpmath at 200 bits. Arguments are
rounded to 64-bit significands first, so that the table holds the exact values at the
Floats the tests pass.

Usage: /usr/bin/python3 tools/make_gamma_inverse_references.py > tests/data/distributions_gamma_inverse.tsv
Columns:
  igamma             A  X   P(A, X)
  chisq_inv_less     P  DF  quantile  density at the quantile
  chisq_inv_greater  Q  DF  quantile  density at the quantile
  exp_inv_less       P  Lambda  quantile  density at the quantile
  exp_inv_greater    Q  Lambda  quantile  density at the quantile
The density lets a test allow for the error that the rounding of P or Q itself causes.
"""
import random

from mpmath import mp, mpf

mp.prec = 200


def exact(x):
    """x rounded to a 64-bit significand (a Float), as an mpf at full precision."""
    old = mp.prec
    mp.prec = 64
    y = +mpf(x)
    mp.prec = old
    return y


def text(x):
    if isinstance(x, int):
        return str(x)
    return mp.nstr(x, 30, min_fixed=-5, max_fixed=5) if x != 0 else "0"


# mpmath's series for one integral stops converging far on the other side of A; there that
# tail is the larger one, and 1 minus the other loses nothing at this precision.
def lower(a, y):
    return 1 - mp.gammainc(a, y, mp.inf, regularized=True) if y > a else mp.gammainc(a, 0, y, regularized=True)


def upper(a, y):
    return 1 - mp.gammainc(a, 0, y, regularized=True) if y < a else mp.gammainc(a, y, mp.inf, regularized=True)


def gamma_density(a, y):
    return mp.exp((a - 1) * mp.log(y) - y - mp.loggamma(a))


def gamma_quantile(a, t, from_upper):
    """The y with lower(a, y) = t (or upper(a, y) = t): Newton on s = ln y for
    h(s) = ln tail(e^s) - ln t, kept inside a bracket that bisection falls back to."""
    log_t = mp.log(t)
    sign = -1 if from_upper else 1

    def h(s):
        y = mp.exp(s)
        tail = upper(a, y) if from_upper else lower(a, y)
        return sign * (mp.log(tail) - log_t), y * gamma_density(a, y) / tail

    lo, hi = mpf(-20000), mp.log(mpf(4) * a + 40000)  # h(lo) < 0 < h(hi) on this grid
    assert h(lo)[0] < 0 < h(hi)[0]
    s = mp.log(a)
    for _ in range(2000):
        value, slope = h(s)
        if value < 0:
            lo = s
        else:
            hi = s
        step = value / slope
        new = s - step
        if not lo < new < hi:
            new = (lo + hi) / 2
        if abs(new - s) < mpf(2) ** -185 * max(1, abs(s)):
            return mp.exp(new)
        s = new
    raise RuntimeError("no convergence")


rows = []

# The incomplete gamma where its series and continued fraction converge slowly: X near A,
# and near the split at A + 1, for shapes up to 10^6.
r = random.Random(19)
points = []
for a in (0.5, 3.5, 30, 1000, 10000, 100000, 1000000):
    a = mpf(a)
    for x in (a - mpf(1) / 3, a + 1, a + 1 - mpf(2) ** -20, a + mpf(11) / 10, a / 2, 2 * a):
        points.append((a, x))
    for c in (0.3, 1, 3, 10):
        points.append((a, a - c * mp.sqrt(a)))
        points.append((a, a + c * mp.sqrt(a)))
for _ in range(120):
    a = mpf(10) ** r.uniform(0, 6)
    points.append((a, a + r.gauss(0, 3) * mp.sqrt(a)))
for a, x in points:
    a, x = exact(a), exact(x)
    if x <= 0:
        continue
    value = lower(a, x)
    if value >= mpf("1e-300"):
        rows.append(("igamma", [a, x], [value]))

# Chi-square quantiles from each tail, and the exponential's.
probabilities = ["1e-300", "1e-100", "1e-20", "1e-10", "1e-5", "0.01", "0.3", "0.5", "0.9",
                 mpf(1) - mpf("1e-5"), 1 - mpf(2) ** -52, 1 - mpf(2) ** -64]
deep = ["1e-1000", "1e-4900"]  # only an upper tail can hold these
for df in (1, 2, 3, 5, 7, 10, 30, 100, 500, 1000, 10000, 100000, 1000000):
    a = mpf(df) / 2
    for kind, grid in (("chisq_inv_less", probabilities), ("chisq_inv_greater", probabilities + deep)):
        for p in grid:
            p = exact(p)
            from_upper = (kind == "chisq_inv_greater") == (p <= mpf(1) / 2)
            y = gamma_quantile(a, p if p <= mpf(1) / 2 else 1 - p, from_upper)
            rows.append((kind, [p, df], [2 * y, gamma_density(a, y) / 2]))
for lam in (2 ** -10, 0.5, 1.5, 7, 1e5):
    lam = exact(lam)
    for p in probabilities:
        p = exact(p)
        x = -mp.log1p(-p) / lam
        rows.append(("exp_inv_less", [p, lam], [x, lam * (1 - p)]))
    for q in probabilities + deep:
        q = exact(q)
        x = -mp.log(q) / lam
        rows.append(("exp_inv_greater", [q, lam], [x, lam * q]))

print("# kind\targuments...\tvalue (and for a quantile the density there); mpmath, 200 bits, at the Float arguments")
for kind, arguments, values in rows:
    print("\t".join([kind] + [text(v) for v in arguments] + [text(v) for v in values]))
