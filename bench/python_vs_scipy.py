#!/usr/bin/env python3
"""The Python package against NumPy and SciPy in the same process: describe over 10^6
values, each family's cdf, sf, ppf and isf over 10^6 points, and 10^6 normal variates.

Each figure is the best of several runs (milliseconds); the ratio is kornum's time over
the peer's (below 1: kornum is faster). The peers compute in float64, kornum in 80-bit
long double.

Usage: python bench/python_vs_scipy.py [--quick]
"""

import os
import sys
import time

# One BLAS thread: none of the timed calls uses BLAS, and the idle threads of a larger
# pool spin for a while after NumPy starts, taking a core from whichever side runs next.
os.environ.setdefault("OPENBLAS_NUM_THREADS", "1")

import numpy as np  # noqa: E402
import scipy.stats

import kornum
from kornum import dist

QUICK = "--quick" in sys.argv
N = 10**5 if QUICK else 10**6
REPEATS = 2 if QUICK else 5


def best(call):
    times = []
    for _ in range(REPEATS):
        start = time.perf_counter()
        call()
        times.append(time.perf_counter() - start)
    return min(times) * 1e3


def row(name, ours, theirs):
    print(f"| {name} | {ours:.1f} | {theirs:.1f} | {ours / theirs:.2f}x |")


def describe_with_numpy(x):
    return (x.size, x.min(), x.max(), x.sum(), (x * x).sum(), x.mean(), np.var(x, ddof=1), np.median(x),
            np.percentile(x, [25, 75]), scipy.stats.skew(x, bias=False), scipy.stats.kurtosis(x, bias=False),
            scipy.stats.mode(x, keepdims=False))


def main():
    rng = np.random.default_rng(1)
    doubles = rng.normal(1000, 50, N).round(2)  # repeated values, so that a mode exists
    longs = doubles.astype(np.longdouble)
    print(f"{N} values or points; best of {REPEATS}; milliseconds\n")
    print("| call | kornum | NumPy / SciPy (float64) | ratio |\n|---|---|---|---|")
    row("describe vs mean, var, median, percentiles, min, max, skew, kurtosis, mode",
        best(lambda: kornum.describe(longs)), best(lambda: describe_with_numpy(doubles)))

    u = rng.uniform(0.001, 0.999, N)
    ul = u.astype(np.longdouble)
    families = [
        ("Normal()", dist.Normal(), scipy.stats.norm(), 4),
        ("LogNormal(0, 1)", dist.LogNormal(0, 1), scipy.stats.lognorm(1), 4),
        ("ChiSquare(5)", dist.ChiSquare(5), scipy.stats.chi2(5), 15),
        ("StudentT(10)", dist.StudentT(10), scipy.stats.t(10), 6),
        ("F(5, 12)", dist.F(5, 12), scipy.stats.f(5, 12), 5),
        ("Beta(2.5, 4)", dist.Beta(2.5, 4), scipy.stats.beta(2.5, 4), 1),
        ("Exponential(2)", dist.Exponential(2), scipy.stats.expon(scale=0.5), 3),
        ("Binomial(100, 0.3)", dist.Binomial(100, 0.3), scipy.stats.binom(100, 0.3), 100),
        ("Poisson(20)", dist.Poisson(20), scipy.stats.poisson(20), 50),
    ]
    for name, ours, theirs, span in families:
        x = (u * span).round() if isinstance(ours, (dist.Binomial, dist.Poisson)) else u * span
        xl = x.astype(np.longdouble)
        for method, points, peer_points in (("cdf", xl, x), ("sf", xl, x), ("ppf", ul, u), ("isf", ul, u)):
            row(f"{name}.{method}", best(lambda: getattr(ours, method)(points)),
                best(lambda: getattr(theirs, method)(peer_points)))

    row("Generator.normal vs default_rng().normal", best(lambda: kornum.random.Generator(1).normal(size=N)),
        best(lambda: np.random.default_rng(1).normal(size=N)))


if __name__ == "__main__":
    main()
