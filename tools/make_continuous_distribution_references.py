#!/usr/bin/env python3
"""Reference values of the incomplete gamma function and of the chi-square, Student t,
F and beta distributions (both tails, densities and inverses), with mpmath at 200 bits.
Arguments are rounded to 64-bit significands first, so that the table holds the exact
values at the Floats the tests pass.

Usage: /usr/bin/python3 tools/make_continuous_distribution_references.py > tests/data/distributions_continuous.tsv
Columns: kind, then the arguments in the routine's order, then the value.
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
    return mp.nstr(x, 30, min_fixed=-5, max_fixed=5) if x != 0 else "0"


def chi_less(x, k):
    return mp.gammainc(mpf(k) / 2, 0, x / 2, regularized=True)


def chi_greater(x, k):
    return mp.gammainc(mpf(k) / 2, x / 2, mp.inf, regularized=True)


def t_greater(t, n):  # P(T > t)
    tail = mp.betainc(mpf(n) / 2, mpf(1) / 2, 0, n / (n + t * t), regularized=True) / 2
    return tail if t > 0 else 1 - tail


def f_less(x, n1, n2):
    return mp.betainc(mpf(n1) / 2, mpf(n2) / 2, 0, n1 * x / (n1 * x + n2), regularized=True)


def f_greater(x, n1, n2):
    return mp.betainc(mpf(n2) / 2, mpf(n1) / 2, 0, n2 / (n2 + n1 * x), regularized=True)


def inverse(cdf, p, lo, hi, negative=False):
    """The x with cdf(x) = p, by bisection to 200 bits on s = ln |x| over [lo, hi] (bounds of
    |x|), x = exp(s) or, for negative, -exp(s); cdf increasing in x."""
    s_lo, s_hi = mp.log(lo), mp.log(hi)
    for _ in range(700):
        mid = (s_lo + s_hi) / 2
        x = -mp.exp(mid) if negative else mp.exp(mid)
        if (cdf(x) < p) != negative:
            s_lo = mid
        else:
            s_hi = mid
    mid = (s_lo + s_hi) / 2
    return -mp.exp(mid) if negative else mp.exp(mid)


rows = []
r = random.Random(13)
for _ in range(150):  # incomplete gamma, A and X from 1e-3 to 1e4, often near each other
    a = exact(mpf(10) ** r.uniform(-3, 4))
    x = exact(a * mpf(r.uniform(0.5, 1.5)) if r.random() < 0.4 else mpf(10) ** r.uniform(-3, 4))
    rows.append(("igamma", [a, x], mp.gammainc(a, 0, x, regularized=True)))
for k in (1, 2, 3, 5, 10, 30, 41, 79, 80, 81, 100, 1000):
    for x in (0.01, 0.5, 1, k * 0.7, k, k * 1.5, k + 10 * k ** 0.5, 30 * k + 100, 1000 + 20 * k):
        x = exact(x)
        rows.append(("chisq_less", [x, k], chi_less(x, k)))
        rows.append(("chisq_greater", [x, k], chi_greater(x, k)))
        rows.append(("chisq_pdf", [x, k], (x / 2) ** (mpf(k) / 2 - 1) * mp.exp(-x / 2) / (2 * mp.gamma(mpf(k) / 2))))
    for p in ("1e-300", "1e-20", "0.001", "0.3", "0.5", "0.9", "0.999999"):
        p = exact(p)
        rows.append(("chisq_inv", [p, k], inverse(lambda x: chi_less(x, k), p, mpf("1e-700"), 10 ** 5)))
for n in (1, 2, 3, 7, 30, 100):
    for t in (-1e6, -30, -3, -0.4, 0.01, 0.5, 2, 12, 1e10):
        t = exact(t)
        rows.append(("t_less", [t, n], t_greater(-t, n)))  # by symmetry, no 1 - x
        rows.append(("t_greater", [t, n], t_greater(t, n)))
        rows.append(("t_pdf", [t, n], mp.gamma((n + 1) / mpf(2)) / (mp.sqrt(n * mp.pi) * mp.gamma(mpf(n) / 2)) *
                     (1 + t * t / n) ** (-(n + 1) / mpf(2))))
    for p in ("1e-250", "1e-10", "0.01", "0.3", "0.49", "0.75", "0.999"):
        p = exact(p)
        rows.append(("t_inv", [p, n], inverse(lambda t: 1 - t_greater(t, n) if t > 0 else t_greater(-t, n), p,
                                              mpf("1e-40"), mpf(10) ** 260, negative=p < 0.5)))
# Whole degrees of freedom have two closed forms split at t^2 = n / 3, a limit at 60, and an
# inverse that changes its equation at a tail of 1/4.
for n in (4, 5, 16, 20, 59, 60, 61):
    for f in (0.25, 0.99, 1.01, 1.5, 3, 40):
        t = exact(f * mp.sqrt(mpf(n) / 3))
        rows.append(("t_less", [t, n], 1 - t_greater(t, n)))
        rows.append(("t_greater", [t, n], t_greater(t, n)))
    for p in ("1e-250", "1e-7", "0.2499", "0.25", "0.4999999"):
        p = exact(p)
        rows.append(("t_inv", [p, n], inverse(lambda t: 1 - t_greater(t, n) if t > 0 else t_greater(-t, n), p,
                                              mpf("1e-40"), mpf(10) ** 260, negative=p < 0.5)))
# Many degrees of freedom: x = n / (n + t^2) is raised to the power n / 2.
for n in (1000, 100000):
    for t in (0.7, 0.85, 1.28, 3.1, 6):
        t = exact(t)
        rows.append(("t_less", [t, n], 1 - t_greater(t, n)))
        rows.append(("t_greater", [t, n], t_greater(t, n)))
for p in ("1e-8", "0.1", "0.2499"):
    p = exact(p)
    rows.append(("t_inv", [p, 10000], inverse(lambda t: 1 - t_greater(t, 10000) if t > 0 else t_greater(-t, 10000), p,
                                              mpf("1e-40"), mpf(10) ** 260, negative=True)))
# Skewed F and beta distributions whose small tail lies beyond the argument 1/2.
for n1, n2, x in ((1000, 3, 0.01), (1000, 3, 0.5), (3, 1000, 10), (3, 1000, 3), (2000, 5000, 0.5), (2000, 5000, 2)):
    x = exact(x)
    rows.append(("f_less", [x, n1, n2], f_less(x, n1, n2)))
    rows.append(("f_greater", [x, n1, n2], f_greater(x, n1, n2)))
# An even second degree of freedom (a whole first beta shape) with the upper tail below
# three quarters of the lower: the continued fraction with the prefix of whole shapes.
for n1, n2 in ((5, 12), (1, 80), (3, 4), (7, 40), (11, 78)):
    for x in (1.5, 2, 6, 40, 1e4):
        x = exact(x)
        rows.append(("f_greater", [x, n1, n2], f_greater(x, n1, n2)))
def ibeta(a, b, x):
    """I_x(a, b), through its mirror where mpmath's series for x itself does not converge."""
    try:
        return mp.betainc(a, b, 0, x, regularized=True)
    except ValueError:
        return 1 - mp.betainc(b, a, 0, 1 - x, regularized=True)


for a, b, x in ((500, 1.5, 0.77), (500, 1.5, 0.9), (1.5, 500, 0.1), (2000, 3000, 0.2), (2000, 3000, 0.6)):
    a, b, x = exact(a), exact(b), exact(x)
    rows.append(("beta_less", [x, a, b], ibeta(a, b, x)))
    rows.append(("beta_greater", [x, a, b], ibeta(b, a, 1 - x)))
for n1, n2 in ((1, 1), (2, 7), (5, 3), (10, 40), (60, 60)):
    for x in (1e-6, 0.2, 1, 3.5, 40, 1e8):
        x = exact(x)
        rows.append(("f_less", [x, n1, n2], f_less(x, n1, n2)))
        rows.append(("f_greater", [x, n1, n2], f_greater(x, n1, n2)))
        rows.append(("f_pdf", [x, n1, n2], mp.sqrt((n1 * x) ** n1 * mpf(n2) ** n2 / (n1 * x + n2) ** (n1 + n2)) /
                     (x * mp.beta(mpf(n1) / 2, mpf(n2) / 2))))
    for p in ("1e-30", "0.05", "0.5", "0.95", "0.999999"):
        p = exact(p)
        rows.append(("f_inv", [p, n1, n2], inverse(lambda x: f_less(x, n1, n2), p, mpf("1e-700"), mpf(10) ** 40)))
for a, b in ((0.5, 0.5), (2, 5), (5, 2), (0.3, 3), (20, 30), (200, 150)):
    a, b = exact(a), exact(b)
    for x in (1e-5, 0.1, 0.4, 0.5, 0.75, 0.99):
        x = exact(x)
        rows.append(("beta_less", [x, a, b], mp.betainc(a, b, 0, x, regularized=True)))
        # the lower integral of the mirrored distribution: betainc(a, b, x, 1) would be 1 - I_x
        rows.append(("beta_greater", [x, a, b], mp.betainc(b, a, 0, 1 - x, regularized=True)))
        rows.append(("beta_pdf", [x, a, b], x ** (a - 1) * (1 - x) ** (b - 1) / mp.beta(a, b)))
    for p in ("1e-12", "0.1", "0.5", "0.9"):
        p = exact(p)
        rows.append(("beta_inv", [p, a, b], inverse(lambda x: mp.betainc(a, b, 0, x, regularized=True), p,
                                                 mpf("1e-700"), 1)))

for lam in (0.001, 1.5, 7):
    for x in (1e-20, 1e-6, 0.003, 0.2, 0.33, 0.5, 1, 2.75, 10, 44.4, 700, 1500):
        x, l = exact(x), exact(lam)
        if l * x > 11000:
            continue
        rows.append(("exp_less", [x, l], -mp.expm1(-l * x)))
        rows.append(("exp_greater", [x, l], mp.exp(-l * x)))
        rows.append(("exp_pdf", [x, l], l * mp.exp(-l * x)))

print("# kind\targuments...\tvalue (mpmath, 200 bits, at the Float arguments)")
for kind, arguments, value in rows:
    print("\t".join([kind] + [text(v) if not isinstance(v, int) else str(v) for v in arguments] + [text(value)]))
