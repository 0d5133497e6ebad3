#!/usr/bin/env python3
"""Reference values for the accurate tails and the discrete quantiles, with mpmath at
200 bits.

Every argument is a Float (a 64-bit significand): decimal parameters are rounded to one
first, and the reference is computed for that exact value. A reference is written as
two numbers, its value rounded to a Float and the remainder, so that a test can measure
errors below an ulp.

Writes tests/data/distributions_accurate_tails.tsv (kind, arguments in the routine's
order, reference high and low part) and tests/data/distributions_discrete_quantiles.tsv
(kind, parameters, level, expected count).

The binomial tails are sums of point probabilities from the bound outwards, the
smaller side summed and the larger taken as 1 minus it; so are the Poisson tails up to
a mean of 10^5, and beyond that mpmath's incomplete gamma and
confluent hypergeometric functions.

Usage (from the repository root, about two minutes):
    python3 tools/make_accurate_tail_references.py
"""
import functools
import os
import random

import mpmath as mp

mp.mp.prec = 200
OUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "data")
SMALLEST = mp.mpf(2) ** -16382  # the smallest normal Float


def exact(x):
    """x rounded to a 64-bit significand, as an mpf."""
    with mp.workprec(64):
        return +mp.mpf(x)


def text(x):
    return mp.nstr(x, 30, min_fixed=-5, max_fixed=5) if x != 0 else "0"


def pair(x):
    """x as its Float rounding (22 digits read back to the same Float) and the remainder."""
    hi = exact(x)
    low = x - hi
    return [mp.nstr(hi, 22, min_fixed=-5, max_fixed=5) if hi else "0",
            mp.nstr(low, 6, min_fixed=-5, max_fixed=5) if low else "0"]


def hexfloat(x):
    """An exact Float as a hexadecimal literal (what strtold reads back bit for bit)."""
    if x == 0:
        return "0"
    m, e = mp.frexp(x)
    mant = int(m * 2**64)
    return "%s0x%Xp%d" % ("-" if mant < 0 else "", abs(mant), e - 64)


# ---- Binomial and Poisson tails ---------------------------------------------------------


def binomial_tails(p, n, k):
    """(P(X <= k), P(X > k)): the smaller side (the lower one when k + 1 <= n p) summed from
    k outwards, the other as 1 minus it."""
    if k >= n or p == 0:
        return mp.mpf(1), mp.mpf(0)
    if p == 1:
        return mp.mpf(0), mp.mpf(1)
    q = 1 - p
    eps = mp.mpf(2) ** -(mp.mp.prec + 10)
    if k + 1 <= n * p:
        j = k
        t = mp.binomial(n, j) * p**j * q ** (n - j)
        s = t
        while j > 0:
            t = t * j / (n - j + 1) * q / p
            j -= 1
            s += t
            if t < eps * s:
                break
        return s, 1 - s
    j = k + 1
    t = mp.binomial(n, j) * p**j * q ** (n - j)
    s = t
    while j < n:
        t = t * (n - j) / (j + 1) * p / q
        j += 1
        s += t
        if t < eps * s:
            break
    return 1 - s, s


def poisson_tails(lam, k):
    """(P(Y <= k), P(Y > k)), the smaller side (the lower one when k + 1 <= lam) directly."""
    if lam > 10**5:
        if k + 1 <= lam:
            lower = mp.gammainc(k + 1, lam, mp.inf, regularized=True)
            return lower, 1 - lower
        # P(k + 1, lam) = e^-lam lam^(k+1) / (k + 1)! 1F1(1; k + 2; lam)
        upper = mp.exp(-lam + (k + 1) * mp.log(lam) - mp.loggamma(k + 2)) * mp.hyp1f1(
            1, k + 2, lam, maxterms=10**7)
        return 1 - upper, upper
    eps = mp.mpf(2) ** -(mp.mp.prec + 10)
    t = mp.exp(-lam + k * mp.log(lam) - mp.loggamma(k + 1))
    if k + 1 <= lam:
        s, j = t, k
        while j > 0:
            t = t * j / lam
            j -= 1
            s += t
            if t < eps * s:
                break
        return s, 1 - s
    s, j = mp.mpf(0), k
    while True:
        j += 1
        t = t * lam / j
        s += t
        if t < eps * s:
            break
    return 1 - s, s


def counts_around(mean, deviation, last, steps):
    ks = {0, 1, 2, 5, 14, 15, 16, last}
    for c in steps:
        ks.add(int(mean + c * deviation))
    return sorted(k for k in ks if 0 <= k <= last)


STEPS = [-60, -30, -10, -3, -1, 0, 0.5, 1, 3, 10, 30, 60, 100]


def representable(*values):
    return all(v == 0 or v >= SMALLEST for v in values)


def discrete_rows():
    rows = []
    for ptext in ["1e-10", "0.01", "0.3", "0.5", "0.7", "0.99", "0.999999"]:
        p = exact(ptext)
        # 4095 and 4096 straddle the end of the table of ln k! behind the point probability.
        for n in [1, 3, 10, 100, 1000, 4095, 4096, 100000]:
            deviation = mp.sqrt(n * p * (1 - p))
            for k in counts_around(n * p, deviation, n, STEPS):
                lower, upper = binomial_tails(p, n, k)
                if not representable(lower, upper):
                    continue
                rows.append(["binomial_lower", text(p), str(n), str(k)] + pair(lower))
                rows.append(["binomial_upper", text(p), str(n), str(k)] + pair(upper))
                point = mp.binomial(n, k) * p**k * (1 - p) ** (n - k)
                if representable(point):
                    rows.append(["binomial_point", text(p), str(n), str(k)] + pair(point))
    p = exact("0.3")  # P(X > 90) for 100 trials at 0.3, about 2.1e-37
    rows.append(["binomial_upper", text(p), "100", "90"] + pair(binomial_tails(p, 100, 90)[1]))
    means = ["1e-300", "1e-10", "0.01", "0.5", "1", "3", "4", "47.25", "100", "199.5", "1000",
             "30000", "100000"]
    for ltext in means:
        lam = exact(ltext)
        ks = counts_around(lam, mp.sqrt(lam), 10**7, STEPS) + [30, 100, 198, 199, 200, 1000, 1750, 4095, 4096]
        for k in sorted(set(ks)):
            lower, upper = poisson_tails(lam, k)
            if not representable(lower, upper):
                continue
            rows.append(["poisson_lower", text(lam), str(k)] + pair(lower))
            rows.append(["poisson_upper", text(lam), str(k)] + pair(upper))
            point = mp.exp(-lam + k * mp.log(lam) - mp.loggamma(k + 1))
            if representable(point):
                rows.append(["poisson_point", text(lam), str(k)] + pair(point))
    # Large means, near the centre where the uniform expansion applies and at its edges.
    for ltext, steps in [("1e7", [-40, -3, 0, 2, 30]), ("4e9", [-6, -1, 0, 1, 6])]:
        lam = exact(ltext)
        for k in sorted({int(lam + c * mp.sqrt(lam)) for c in steps}):
            lower, upper = poisson_tails(lam, k)
            if representable(lower, upper):
                rows.append(["poisson_lower", text(lam), str(k)] + pair(lower))
                rows.append(["poisson_upper", text(lam), str(k)] + pair(upper))
    return rows


# ---- Normal and log-normal ---------------------------------------------------------------


def normal_rows():
    rows = []
    rng = random.Random(19)
    # The density: every quarter from 0 to 40, every 4096th across [6.8, 6.9], every
    # whole number to 150, and random significands.
    zs = [mp.mpf(k) / 4 for k in range(0, 161)]
    zs += [mp.mpf(k) / 4096 for k in range(27853, 28263)]
    zs += [mp.mpf(k) for k in range(41, 151)]
    zs += [exact(mp.mpf(rng.random()) * 2 ** rng.randint(-8, 7)) for _ in range(100)]
    for z in zs:
        rows.append(["normal_z", hexfloat(z)] + pair(mp.npdf(z)))
    # The tails: every quarter from -40 to 40, every whole number beyond to 150, random
    # significands.
    zs = [mp.mpf(k) / 4 for k in range(-160, 161)]
    zs += [mp.mpf(k) * s for k in range(41, 151) for s in (1, -1)]
    zs += [exact(mp.mpf(rng.uniform(-1, 1)) * 2 ** rng.randint(-8, 7)) for _ in range(100)]
    for z in zs:
        upper = mp.ncdf(-z)
        rows.append(["normal_upper", hexfloat(z)] + pair(upper))
        if abs(z) % 1 == 0 or abs(z) < 1:
            rows.append(["normal_lower", hexfloat(z)] + pair(mp.ncdf(z)))
    # Mean and spread rounded to Floats: (X - Mean) / StdDev is not a Float.
    for mean_text, sd_text in [("0.1", "0.3"), ("-2.75", "1e-3"), ("1e5", "7.3")]:
        mean, sd = exact(mean_text), exact(sd_text)
        for c in [-149, -37.5, -10.1, -1.3, 0.2, 3.7, 8.9, 20.5, 38, 100.3]:
            x = exact(mean + c * sd)
            z = (x - mean) / sd
            for kind, value in [("normal_dist_lower", mp.ncdf(z)), ("normal_dist_upper", mp.ncdf(-z))]:
                if representable(value):
                    rows.append([kind, hexfloat(mean), hexfloat(sd), hexfloat(x)] + pair(value))
    # Halfway between the nodes of the table near the centre, where its series runs
    # furthest, and across the end of that table at 4.
    zs = [mp.mpf(k) / 32 * s for k in range(1, 129, 2) for s in (1, -1)]
    zs += [4 + d * mp.mpf(2) ** -60 for d in (-1, 1)] + [-4 + d * mp.mpf(2) ** -60 for d in (-1, 1)]
    for z in zs:
        rows.append(["normal_upper", hexfloat(z)] + pair(mp.ncdf(-z)))
        rows.append(["normal_lower", hexfloat(z)] + pair(mp.ncdf(z)))
    # A spread that is a power of two, which the standardisation divides by exactly.
    mean, sd = exact("3.1"), exact("0.5")
    for c in [-41.3, -4.01, -3.99, -0.77, 0.03, 2.5, 3.96, 4.04, 12.9]:
        x = exact(mean + c * sd)
        z = (x - mean) / sd
        for kind, value in [("normal_dist_lower", mp.ncdf(z)), ("normal_dist_upper", mp.ncdf(-z))]:
            if representable(value):
                rows.append([kind, hexfloat(mean), hexfloat(sd), hexfloat(x)] + pair(value))
    for mean_text, sd_text in [("0.5", "0.25"), ("-3", "1.7")]:
        mean, sd = exact(mean_text), exact(sd_text)
        for c in [-35, -12.2, -3, -0.4, 0.9, 4.1, 15, 30]:
            x = exact(mp.exp(mean + c * sd))
            z = (mp.log(x) - mean) / sd
            for kind, value in [("lognormal_lower", mp.ncdf(z)), ("lognormal_upper", mp.ncdf(-z))]:
                if representable(value):
                    rows.append([kind, hexfloat(mean), hexfloat(sd), hexfloat(x)] + pair(value))
    return rows


def normal_quantile(level, upper):
    """The z with P(N <= z) = level, or P(N > z) = level: Newton on the logarithm of the
    smaller tail, from the tail's asymptotic start."""
    t = min(level, 1 - level)
    z = mp.sqrt(2 * mp.log(1 / t)) if t < mp.mpf("0.3") else mp.mpf(0.5)
    for _ in range(200):
        step = (mp.log(mp.ncdf(-z)) - mp.log(t)) * mp.ncdf(-z) / mp.npdf(z)
        z += step
        if abs(step) < mp.mpf(2) ** -190 * max(z, 1):
            break
    below = level < mp.mpf(1) / 2
    return (z if below else -z) if upper else (-z if below else z)


def normal_quantile_rows():
    """InvNormalLower and InvNormalUpper at tails from the smallest normal Float to 1/2 and
    at their complements."""
    rows = []
    levels = ["1e-4931", "1e-1000", "1e-300", "1e-100", "1e-20", "1e-7", "0.001", "0.025", "0.1",
              "0.3", "0.4999999", "0.5", "0.6", "0.9", "0.975", "0.999", "0.9999999",
              # the centre's Taylor table: its ends, points halfway between nodes (i + 1/2)
              # / 256, and levels a few ulps from 1/2, where z is tiny
              "0.0624999", "0.0625", "0.06640625", "0.2001953125", "0.4990234375", "0.498046875",
              "0.49999999999999999", "0.5000000000000000001", "0.501953125", "0.9375", "0.9375001"]
    for text_level in levels:
        level = exact(text_level)
        for kind, upper in [("normal_inv_lower", False), ("normal_inv_upper", True)]:
            z = normal_quantile(level, upper) if level != mp.mpf(1) / 2 else mp.mpf(0)
            rows.append([kind, hexfloat(level)] + pair(z))
    return rows


# ---- Quantiles ---------------------------------------------------------------------------


def quantile_rows():
    """At the counts k of several distributions: levels a little below and above the exact
    tail at k (by 2^-58 relative, beyond the rounding of the computed tails), with the
    smallest count whose exact tail passes each."""
    margin = mp.mpf(2) ** -58
    rows = []

    def add(kind, params, tail, k, step):
        """tail(k) exact; step = +1 for the lower tail (rising), -1 for the upper one."""
        here = tail(k)
        for level in [exact(here * (1 - margin)), exact(here * (1 + margin))]:
            if not (SMALLEST <= level <= 1):
                continue
            # The smallest j with lower(j) >= level, or with upper(j) <= level.
            j = k
            if step > 0:
                while j > 0 and tail(j - 1) >= level:
                    j -= 1
                while tail(j) < level:
                    j += 1
            else:
                while j > 0 and tail(j - 1) <= level:
                    j -= 1
                while tail(j) > level:
                    j += 1
            rows.append([kind] + params + [text(level), str(j)])

    for ptext, n in [("0.3", 100), ("0.5", 7), ("1e-3", 100000), ("0.99", 1000), ("0.25", 40)]:
        p = exact(ptext)
        tails = functools.lru_cache(maxsize=None)(lambda j: binomial_tails(p, n, j))
        deviation = mp.sqrt(n * p * (1 - p))
        for k in counts_around(n * p, deviation, n - 1, [-8, -3, -1, 0, 1, 3, 8, 20]):
            add("inv_binomial_less", [text(p), str(n)], lambda j: tails(j)[0], k, 1)
            add("inv_binomial_greater", [text(p), str(n)], lambda j: tails(j)[1], k, -1)
    for ltext in ["0.01", "4", "47.25", "1000", "30000"]:
        lam = exact(ltext)
        tails = functools.lru_cache(maxsize=None)(lambda j: poisson_tails(lam, j))
        for k in counts_around(lam, mp.sqrt(lam), 10**6, [-8, -3, -1, 0, 1, 3, 8, 20, 40]):
            if not representable(*tails(k)):
                continue
            add("inv_poisson_less", [text(lam)], lambda j: tails(j)[0], k, 1)
            add("inv_poisson_greater", [text(lam)], lambda j: tails(j)[1], k, -1)
    return rows


def write(name, header, rows):
    with open(os.path.join(OUT, name), "w") as f:
        f.write("# " + header + "\n")
        for row in rows:
            f.write("\t".join(row) + "\n")


if __name__ == "__main__":
    write("distributions_accurate_tails.tsv",
          "kind, arguments in the routine's order, reference as a Float and the remainder",
          normal_rows() + normal_quantile_rows() + discrete_rows())
    write("distributions_discrete_quantiles.tsv",
          "kind, parameters in the routine's order, level Alpha, the smallest count reaching it",
          quantile_rows())
