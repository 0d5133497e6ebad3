#!/usr/bin/env python3
"""Writes the reference tables of the special functions to tests/data/gammafn_*.tsv.

Every input is a binary double, written as a hex float, so it is exactly the same
long double in the tests; every expected value is computed by mpmath at 60 digits
and printed with 25 significant digits. Each row ends with a category name that the
tests use to apply the right tolerance and to report the worst error per range.

Run from the repository root:  python3 tools/make_gamma_beta_function_references.py
"""
import os
import random

import mpmath as mp

mp.mp.dps = 60
OUT = os.path.join(os.path.dirname(__file__), "..", "tests", "data")
rng = random.Random(20240517)


def hx(v):
    return float(v).hex()


def num(v):
    return mp.nstr(mp.mpf(v), 25, min_fixed=1, max_fixed=0)


def write(name, header, rows):
    with open(os.path.join(OUT, name), "w") as f:
        f.write("# " + "\t".join(header) + "\n")
        for r in rows:
            f.write("\t".join(r) + "\n")
    print(name, len(rows), "rows")


def loguniform(lo, hi):
    return float(mp.exp(rng.uniform(float(mp.log(lo)), float(mp.log(hi)))))


def gamma_tables():
    g, lg = [], []
    xs = []
    xs += [("small", 2.0 ** -rng.uniform(1, 60)) for _ in range(40)]
    xs += [("unit", rng.uniform(0.0, 10.0)) for _ in range(120)]
    xs += [("medium", rng.uniform(10.0, 170.0)) for _ in range(80)]
    xs += [("large", rng.uniform(170.0, 1750.0)) for _ in range(80)]
    for _ in range(60):
        n = rng.randint(1, 160)
        xs.append(("negative", -n + rng.uniform(0.0, 1.0)))
    for _ in range(40):
        n = rng.randint(0, 40)
        xs.append(("near_pole", -n + rng.choice([-1, 1]) * 2.0 ** -rng.uniform(8, 40)))
    for cat, x in xs:
        if x == int(x):
            continue
        v = mp.gamma(mp.mpf(x))
        g.append((hx(x), num(v), cat))
        lg.append((hx(x), num(mp.log(abs(v))), cat))
    # ln Gamma on its own: near the zeros at 1 and 2, and far out.
    for _ in range(60):
        z = rng.choice([1.0, 2.0])
        x = z + rng.choice([-1, 1]) * 2.0 ** -rng.uniform(2, 55)
        lg.append((hx(x), num(mp.loggamma(mp.mpf(x))), "near_zero"))
    for _ in range(60):
        x = loguniform(1754.0, 1e300)
        lg.append((hx(x), num(mp.loggamma(mp.mpf(x))), "huge"))
    write("gammafn_gamma.tsv", ["x", "Gamma(x)", "category"], g)
    write("gammafn_lngamma.tsv", ["x", "ln|Gamma(x)|", "category"], lg)


def beta_table():
    rows = []
    for _ in range(150):
        a, b = loguniform(0.5, 100), loguniform(0.5, 100)
        rows.append((hx(a), hx(b), num(mp.beta(a, b)), "moderate"))
    for _ in range(50):
        a, b = loguniform(1e-3, 0.5), loguniform(1e-3, 20)
        rows.append((hx(a), hx(b), num(mp.beta(a, b)), "small"))
    for _ in range(50):
        a, b = loguniform(100, 1e4), loguniform(0.5, 1e4)
        v = mp.beta(a, b)
        if v > mp.mpf("1e-4900"):
            rows.append((hx(a), hx(b), num(v), "large"))
    write("gammafn_beta.tsv", ["a", "b", "Beta(a,b)", "category"], rows)


def ibeta_lower(x, a, b):
    # x^a (1-x)^b / (a B(a,b)) * 2F1(a+b, 1; a+1; x): every term is positive, so the
    # sum is well conditioned for any a, b; it converges fast below the mean a/(a+b).
    pre = mp.exp(a * mp.log(x) + b * mp.log1p(-x) - mp.log(a) - mp.log(mp.beta(a, b)))
    return pre * mp.hyp2f1(a + b, 1, a + 1, x, maxterms=10**6)


def ibeta(x, a, b):
    if x <= a / (a + b):
        return ibeta_lower(x, a, b)
    return 1 - ibeta_lower(1 - x, b, a)


def ibeta_table():
    rows = []

    def add(x, a, b, cat):
        if not 0.0 < x < 1.0:
            return
        v = ibeta(mp.mpf(x), mp.mpf(a), mp.mpf(b))
        if v > mp.mpf("1e-300"):
            rows.append((hx(x), hx(a), hx(b), num(v), cat))

    for _ in range(250):
        a, b = loguniform(0.5, 100), loguniform(0.5, 100)
        m = a / (a + b)
        sd = (a * b / ((a + b) ** 2 * (a + b + 1))) ** 0.5
        x = rng.uniform(0, 1) if rng.random() < 0.4 else m + rng.gauss(0, 2.5) * sd
        add(x, a, b, "moderate")
    for _ in range(120):
        a, b = loguniform(0.5, 1e4), loguniform(100, 1e4)
        if rng.random() < 0.5:
            a, b = b, a
        m = a / (a + b)
        sd = (a * b / ((a + b) ** 2 * (a + b + 1))) ** 0.5
        add(m + rng.gauss(0, 3) * sd, a, b, "large")
    write("gammafn_ibeta.tsv", ["x", "a", "b", "I_x(a,b)", "category"], rows)


def ibeta_inv_table():
    rows = []
    while len(rows) < 150:
        a, b = loguniform(0.5, 100), loguniform(0.5, 100)
        r = rng.random()
        if r < 0.25:
            p = 10.0 ** -rng.uniform(1, 10)
        elif r < 0.5:
            p = 1.0 - 10.0 ** -rng.uniform(1, 10)
        else:
            p = rng.uniform(0.05, 0.95)
        P, A, B = mp.mpf(p), mp.mpf(a), mp.mpf(b)
        # Bisection on log x for the lower half, on log(1 - x) for the upper half,
        # so that tiny x (or tiny 1 - x) come out with full relative precision.
        if ibeta(mp.mpf("0.5"), A, B) >= P:
            f = lambda t: ibeta(mp.exp(t), A, B) - P
            lo, hi = mp.mpf(-2000), mp.log(mp.mpf("0.5"))
            for _ in range(220):
                mid = (lo + hi) / 2
                lo, hi = (mid, hi) if f(mid) < 0 else (lo, mid)
            x = mp.exp((lo + hi) / 2)
        else:
            f = lambda t: ibeta(1 - mp.exp(t), A, B) - P
            lo, hi = mp.mpf(-2000), mp.log(mp.mpf("0.5"))
            for _ in range(220):
                mid = (lo + hi) / 2
                lo, hi = (mid, hi) if f(mid) > 0 else (lo, mid)
            x = 1 - mp.exp((lo + hi) / 2)
        rows.append((hx(p), hx(a), hx(b), num(x), "moderate"))
    write("gammafn_ibeta_inv.tsv", ["p", "a", "b", "x", "category"], rows)


if __name__ == "__main__":
    gamma_tables()
    beta_table()
    ibeta_table()
    ibeta_inv_table()
