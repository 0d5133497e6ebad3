#!/usr/bin/env python3
"""Draws 100,000 variates of every generator for several parameter sets through
`kornum random` (a fixed seed each) and tests them against the exact distribution with
SciPy: Kolmogorov-Smirnov for the continuous ones, chi-square on bins of expected count
5 or more for the discrete ones. A p-value below 1e-4 fails.

Usage: check_distributions.py KORNUM_BINARY
"""
import subprocess
import sys

import numpy
from scipy import stats

DRAWS = 100_000
LIMIT = 1e-4

# (arguments of `kornum random`, the exact distribution)
CONTINUOUS = [
    ("normal", stats.norm()),
    ("exponential", stats.expon()),
    ("cauchy", stats.cauchy()),
    ("gamma 0.3", stats.gamma(0.3)),       # small-shape method
    ("gamma 0.9", stats.gamma(0.9)),
    ("gamma 1", stats.gamma(1)),           # the exponential
    ("gamma 2.5", stats.gamma(2.5)),       # large-shape method
    ("gamma 50", stats.gamma(50)),
    ("chisq 1", stats.chi2(1)),
    ("chisq 7", stats.chi2(7)),
    ("weibull 0.5", stats.weibull_min(0.5)),
    ("weibull 2", stats.weibull_min(2)),
    ("beta 0.5 0.5", stats.beta(0.5, 0.5)),
    ("beta 2 5", stats.beta(2, 5)),
    ("beta 5 2", stats.beta(5, 2)),
    ("beta 0.3 3", stats.beta(0.3, 3)),
    ("beta 4 0.8", stats.beta(4, 0.8)),
    ("beta 20 30", stats.beta(20, 30)),
    ("t 1", stats.t(1)),
    ("t 2", stats.t(2)),
    ("t 3", stats.t(3)),
    ("t 5", stats.t(5)),
    ("t 30", stats.t(30)),
    ("invgauss 0.5 1", stats.geninvgauss(0.5, 1)),
    ("invgauss 2 3", stats.geninvgauss(2, 3)),
    ("invgauss 0 0.5", stats.geninvgauss(0, 0.5)),
    ("vonmises 0.3", stats.vonmises(0.3)),
    ("vonmises 0.5", stats.vonmises(0.5)),
    ("vonmises 2", stats.vonmises(2)),
    ("vonmises 9.5", stats.vonmises(9.5)),
]
DISCRETE = [
    ("binomial 10 0.3", stats.binom(10, 0.3)),        # inversion
    ("binomial 100 0.3", stats.binom(100, 0.3)),      # n p = 30: still inversion
    ("binomial 1000 0.4", stats.binom(1000, 0.4)),    # BTPE
    ("binomial 1000 0.7", stats.binom(1000, 0.7)),    # BTPE, mirrored
    ("binomial 40 0.9", stats.binom(40, 0.9)),        # inversion, mirrored
    ("binomial1 10 0.3", stats.binom(10, 0.3)),
    ("binomial1 1000 0.4", stats.binom(1000, 0.4)),
    ("negbinomial 2 0.5", stats.nbinom(2, 0.5)),
    ("negbinomial 3.5 0.8", stats.nbinom(3.5, 0.2)),  # geometric part for p > 0.7
    ("negbinomial 0.7 0.3", stats.nbinom(0.7, 0.7)),
    ("poisson 0.5", stats.poisson(0.5)),
    ("poisson 4.5", stats.poisson(4.5)),
    ("poisson 10", stats.poisson(10)),                # table inversion
    ("poisson 10.0001", stats.poisson(10.0001)),      # method PD
    ("poisson 50", stats.poisson(50)),
    ("poisson 1000", stats.poisson(1000)),
]


def draw(kornum, arguments, seed):
    command = [kornum, "random"] + arguments.split() + ["-n", str(DRAWS), "--seed", str(seed)]
    output = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    return numpy.array([float(line) for line in output.split()])


def chi_square(values, distribution):
    """Bins from the smallest to the largest value, the tails merged until every bin
    expects at least 5."""
    first, last = distribution.support()
    low = max(int(distribution.ppf(1e-12)), int(first))
    high = int(min(distribution.ppf(1 - 1e-12) + 1, last))
    edges, expected, observed = [], [], []
    start, mass = low, 0.0
    for k in range(low, high + 1):
        mass += distribution.pmf(k)
        if mass * len(values) >= 5 or k == high:
            edges.append((start, k))
            expected.append(mass)
            start, mass = k + 1, 0.0
    expected = numpy.array(expected)
    expected[0] += distribution.cdf(low - 1)
    expected[-1] += distribution.sf(high)
    for first, last in edges:
        observed.append(numpy.count_nonzero((values >= first) & (values <= last)))
    observed = numpy.array(observed)
    observed[0] += numpy.count_nonzero(values < edges[0][0])
    observed[-1] += numpy.count_nonzero(values > edges[-1][1])
    return stats.chisquare(observed, expected * len(values) / expected.sum()).pvalue


def main():
    kornum = sys.argv[1]
    failures = 0
    for seed, (arguments, distribution) in enumerate(CONTINUOUS + DISCRETE, start=1):
        values = draw(kornum, arguments, seed)
        if (arguments, distribution) in CONTINUOUS:
            p = stats.kstest(values, distribution.cdf).pvalue
            test = "KS"
        else:
            p = chi_square(values, distribution)
            test = "chi-square"
        verdict = "ok" if p > LIMIT else "FAILED"
        failures += verdict != "ok"
        print(f"{arguments:24s} {test:10s} p = {p:.3g}  {verdict}")
    print(f"{len(CONTINUOUS) + len(DISCRETE) - failures} passed, {failures} failed")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
