#!/usr/bin/env python3
"""Reference values for the distribution tests, computed with mpmath at 60 digits.

Every argument is first rounded to a 64-bit significand (the Float the tests parse
from the same text), and the reference is computed for that exact value, so the
tests measure the routines and not the rounding of their inputs.

Writes tests/data/distributions_{normal_less,inv_normal,binomial,poisson}.tsv.
"""
import os
import statistics

import mpmath as mp

mp.mp.dps = 60
OUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "data")


def as_float(text):
    """The value of `text` rounded to 64 significant bits, as strtold rounds it."""
    with mp.workprec(64):
        return mp.mpf(text)


def show(x):
    """Text that parses back to the same 64-bit value (21 digits are enough)."""
    return mp.nstr(x, 30, strip_zeros=False, min_fixed=-1, max_fixed=-1) if x else "0"


def write(name, header, rows):
    with open(os.path.join(OUT, name), "w") as f:
        f.write("# " + header + "\n")
        for row in rows:
            f.write("\t".join(row) + "\n")


def normal_less():
    # Z = k/64 on [0, 7]: exact binary values.
    rows = []
    for k in range(0, 7 * 64 + 1):
        z = mp.mpf(k) / 64
        rows.append([show(z), show(mp.ncdf(z))])
    write("distributions_normal_less.tsv", "Z\tPhi(Z)", rows)


def quantile(p):
    """The z with Phi(z) = p, by Newton's method on the tail nearer to p."""
    upper = p > mp.mpf("0.5")
    tail = 1 - p if upper else p  # exact at 60 digits for these p
    guess = statistics.NormalDist().inv_cdf(float(tail)) if float(tail) > 0 else -40.0
    z = mp.mpf(guess)
    for _ in range(100):
        step = (mp.ncdf(z) - tail) / mp.npdf(z)
        z -= step
        if abs(step) < mp.mpf(10) ** -45 * max(1, abs(z)):
            break
    return -z if upper else z


def inv_normal():
    texts = []
    for e in range(-300, -15, 7):
        texts += ["1e%d" % e, "3.7e%d" % e]
    texts += ["1e-16", "1e-12", "1e-9", "1e-6", "0.001", "0.01", "0.025", "0.05", "0.0750001",
              "0.1", "0.2", "0.3", "0.4", "0.45", "0.4999", "0.5", "0.5000001", "0.55",
              "0.6", "0.7", "0.8", "0.9", "0.925", "0.95", "0.975", "0.99", "0.999"]
    for e in range(-6, -16, -1):
        texts += ["1-1e%d" % e]
    texts += ["1-1e-16", "1-3e-16"]
    rows = []
    for t in texts:
        if t.startswith("1-"):
            p = as_float(1 - mp.mpf(t[2:]))
        else:
            p = as_float(t)
        rows.append([show(p), show(quantile(p))])
    write("distributions_inv_normal.tsv", "P\tz with Phi(z) = P", rows)


def binomial():
    rows = []
    for ptext in ["0.5", "0.25", "0.1", "0.9", "0.03125", "0.7"]:
        p = as_float(ptext)
        for n in [1, 4, 10, 30, 100, 250]:
            for r in sorted({0, 1, n // 4, n // 2, n - 1, n}):
                eq = mp.binomial(n, r) * p**r * (1 - p) ** (n - r)
                less = mp.fsum(mp.binomial(n, i) * p**i * (1 - p) ** (n - i) for i in range(r))
                rows.append([show(p), str(n), str(r), show(eq), show(less)])
    write("distributions_binomial.tsv", "P\tN\tR\tP(X = R)\tP(X < R)", rows)


def poisson():
    rows = []
    for ltext in ["0.5", "1", "2", "3.3", "10", "47.25", "150"]:
        lam = as_float(ltext)
        for x in [0, 1, 2, 5, 10, 40, 100, 200]:
            eq = lam**x * mp.exp(-lam) / mp.factorial(x)
            less = mp.fsum(lam**i * mp.exp(-lam) / mp.factorial(i) for i in range(x))
            rows.append([show(lam), str(x), show(eq), show(less)])
    write("distributions_poisson.tsv", "Lambda\tX\tP(Y = X)\tP(Y < X)", rows)


if __name__ == "__main__":
    normal_less()
    inv_normal()
    binomial()
    poisson()
