"""The distribution families against mpmath at 40 digits, against SciPy where SciPy is
accurate, and at the edges of their supports."""

import mpmath as mp
import numpy as np
import pytest
import scipy.stats

from kornum import MathError
from kornum.dist import Beta, Binomial, ChiSquare, Exponential, F, LogNormal, Normal, Poisson, StudentT


def ld(x):
    """A Float as an mpf, every bit of it."""
    x = np.longdouble(x)
    if not np.isfinite(x):
        return mp.mpf(float(x))
    significand, exponent = np.frexp(x)
    return mp.ldexp(int(significand * np.longdouble(2) ** 64), int(exponent) - 64)


exact = ld


def beta_cdf(a, b, x):
    return mp.betainc(a, b, 0, x, regularized=True)


def beta_sf(a, b, x):
    return mp.betainc(b, a, 0, 1 - x, regularized=True)  # no cancellation near x = 1


# Each family: an instance, mpmath's cdf, sf and density, and 40 to 80 points spread over
# the body and both tails (with the quantiles at 29 levels, about 200 checks a family).
CASES = [
    (Normal(0, 1), lambda x: mp.ncdf(x), lambda x: mp.ncdf(-x), mp.npdf, np.linspace(-38.5, 38.5, 78)),
    (Normal(3, 0.5), lambda x: mp.ncdf((x - 3) / 0.5), lambda x: mp.ncdf((3 - x) / 0.5),
     lambda x: mp.npdf(x, 3, 0.5), np.linspace(-15, 21, 50)),
    (LogNormal(0.5, 1.5), lambda x: mp.ncdf((mp.log(x) - 0.5) / 1.5), lambda x: mp.ncdf((0.5 - mp.log(x)) / 1.5),
     lambda x: mp.npdf(mp.log(x), 0.5, 1.5) / x, np.geomspace(1e-30, 1e25, 60)),
    (ChiSquare(5), lambda x: mp.gammainc(2.5, 0, x / 2, regularized=True),
     lambda x: mp.gammainc(2.5, x / 2, mp.inf, regularized=True),
     lambda x: x ** 1.5 * mp.exp(-x / 2) / (mp.mpf(2) ** 2.5 * mp.gamma(2.5)), np.geomspace(1e-20, 1500, 60)),
    (ChiSquare(1), lambda x: mp.gammainc(0.5, 0, x / 2, regularized=True),
     lambda x: mp.gammainc(0.5, x / 2, mp.inf, regularized=True),
     lambda x: x ** -0.5 * mp.exp(-x / 2) / (mp.sqrt(2) * mp.gamma(0.5)), np.geomspace(1e-10, 300, 40)),
    (StudentT(10), lambda x: beta_cdf_t(x, 10), lambda x: beta_cdf_t(-x, 10),
     lambda x: mp.gamma(5.5) / (mp.sqrt(10 * mp.pi) * mp.gamma(5)) * (1 + x * x / 10) ** -5.5,
     np.concatenate([-np.geomspace(1e8, 1e-3, 30), [0], np.geomspace(1e-3, 1e8, 30)])),
    (F(5, 12), lambda x: beta_cdf(2.5, 6, 5 * x / (5 * x + 12)), lambda x: beta_cdf(6, 2.5, 12 / (5 * x + 12)),
     lambda x: mp.sqrt((5 * x) ** 5 * 12 ** 12 / (5 * x + 12) ** 17) / (x * mp.beta(2.5, 6)),
     np.geomspace(1e-8, 1e4, 60)),
    (Beta(2.5, 4), lambda x: beta_cdf(2.5, 4, x), lambda x: beta_sf(2.5, 4, x),
     lambda x: x ** 1.5 * (1 - x) ** 3 / mp.beta(2.5, 4), np.concatenate([np.geomspace(1e-12, 0.5, 30), 1 - np.geomspace(0.49, 1e-12, 30)])),
    (Exponential(3), lambda x: -mp.expm1(-3 * x), lambda x: mp.exp(-3 * x), lambda x: 3 * mp.exp(-3 * x),
     np.geomspace(1e-25, 200, 50)),
]


def beta_cdf_t(x, n):
    """P(T <= x) for Student's t through the incomplete beta."""
    tail = beta_cdf(mp.mpf(n) / 2, mp.mpf(1) / 2, n / (n + x * x)) / 2
    return tail if x < 0 else 1 - tail


def relative(value, reference):
    value = ld(value)
    return abs(value - reference) / abs(reference) if reference else abs(value)


@pytest.mark.parametrize("case", CASES, ids=lambda case: repr(case[0]))
def test_continuous_against_mpmath(case):
    distribution, cdf, sf, pdf, points = case
    grid = np.array(points, dtype=np.longdouble)
    computed = [distribution.cdf(grid), distribution.sf(grid), distribution.pdf(grid)]
    for i, x in enumerate(grid):
        xe = ld(x)
        # The tails within 1e-17. A density far out carries the rounding of its standardised
        # point (and of ln x) times that point's size: within 2e-16.
        for values, reference, allowed in zip(computed, (cdf(xe), sf(xe), pdf(xe)), (1e-17, 1e-17, 2e-16)):
            assert relative(values[i], reference) < allowed, (x, values[i], reference)


@pytest.mark.parametrize("case", CASES, ids=lambda case: repr(case[0]))
def test_quantiles_invert_each_tail(case):
    """ppf and isf at levels down to 1e-300: the x returned must put the exact tail at the
    level to within the tail's change over one rounding of x."""
    distribution, cdf, sf, pdf, _ = case
    levels = np.concatenate([np.geomspace(1e-300, 0.5, 25), [0.6, 0.8, 0.95, 0.999]]).astype(np.longdouble)
    for function, tail in ((distribution.ppf, cdf), (distribution.isf, sf)):
        xs = function(levels)
        for level, x in zip(levels, xs):
            # The log-normal's x is an exponential, within a few ulps.
            ulps = 4 if isinstance(distribution, LogNormal) else 1
            support = (0, 1) if isinstance(distribution, Beta) else (-np.inf, np.inf)
            assert brackets(tail, x, ld(level), ulps, support), (function.__name__, level, x)


def brackets(tail, x, level, ulps=1, support=(-np.inf, np.inf)):
    """Whether the exact tail at the Floats `ulps` below and above x encloses the level
    (within 1e-18 of it): x is then the quantile to within that many roundings."""
    ends = [x, x]
    for _ in range(ulps):
        ends = [np.nextafter(ends[0], -np.inf), np.nextafter(ends[1], np.inf)]
    values = [tail(ld(end)) for end in ends + [x] if np.isfinite(end) and support[0] <= end <= support[1]]
    values = [mp.re(v) for v in values if mp.im(v) == 0]  # beyond the support mpmath may go complex
    slack = level * mp.mpf("1e-18")
    return min(values) - slack <= level <= max(values) + slack


def test_discrete_against_mpmath():
    for n, p in [(10, 0.5), (100, 0.03), (50, 0.99)]:
        d = Binomial(n, p)
        ks = np.arange(0, min(n, 60) + 1, max(1, n // 25))  # where the point probabilities stay finite
        pe = exact(p)
        for k, cdf, sf, pmf in zip(ks, d.cdf(ks), d.sf(ks), d.pmf(ks)):
            terms = [mp.binomial(n, j) * pe ** j * (1 - pe) ** (n - j) for j in range(n + 1)]
            lower, upper = mp.fsum(terms[: k + 1]), mp.fsum(terms[k + 1:])
            assert relative(cdf, lower) < 1e-17 and relative(pmf, terms[k]) < 1e-17
            if upper:
                assert relative(sf, upper) < 1e-16
    for mu in [0.5, 20, 1000]:
        d = Poisson(mu)
        # The point probabilities rest on factorials, which end at 1754!.
        ks = np.unique(np.linspace(0, min(3 * mu + 30, 1754), 20).astype(int))
        for k, cdf, sf, pmf in zip(ks, d.cdf(ks), d.sf(ks), d.pmf(ks)):
            assert relative(cdf, mp.gammainc(k + 1, mu, mp.inf, regularized=True)) < 1e-17
            assert relative(sf, mp.gammainc(k + 1, 0, mu, regularized=True)) < 1e-16
            assert relative(pmf, mp.exp(-mu) * mp.mpf(mu) ** k / mp.factorial(k)) < 1e-17


def test_tails_scipy_loses():
    # The true values, from mpmath: SciPy 1.10 gives 0.0 for both.
    assert relative(ChiSquare(5).sf(1500), mp.gammainc(2.5, 750, mp.inf, regularized=True)) < 1e-18
    assert relative(Normal().sf(40), mp.ncdf(-40)) < 1e-18
    assert brackets(lambda x: beta_cdf_t(x, 10), StudentT(10).ppf(0.975), ld(0.975))


def test_agrees_with_scipy_where_scipy_is_accurate():
    x = np.linspace(-4, 4, 101)
    assert np.allclose(Normal(1, 2).cdf(x).astype(float), scipy.stats.norm(1, 2).cdf(x), rtol=1e-14, atol=0)
    y = np.linspace(0.1, 30, 101)
    for ours, theirs in [(ChiSquare(7), scipy.stats.chi2(7)), (F(3, 9), scipy.stats.f(3, 9)),
                         (StudentT(4), scipy.stats.t(4)), (Exponential(0.5), scipy.stats.expon(scale=2))]:
        assert np.allclose(ours.cdf(y).astype(float), theirs.cdf(y), rtol=1e-13, atol=1e-300)
        assert np.allclose(ours.pdf(y).astype(float), theirs.pdf(y), rtol=1e-13, atol=1e-300)
    q = np.linspace(0.01, 0.99, 99)
    assert np.allclose(Beta(2, 3).ppf(q).astype(float), scipy.stats.beta(2, 3).ppf(q), rtol=1e-12)
    assert np.array_equal(Binomial(30, 0.4).ppf(q), scipy.stats.binom(30, 0.4).ppf(q).astype(np.int64))
    assert np.array_equal(Poisson(7).isf(q), scipy.stats.poisson(7).isf(q).astype(np.int64))


def test_the_edges_follow_scipy():
    inf, nan = np.inf, np.nan
    assert ChiSquare(3).cdf(-1) == 0 and ChiSquare(3).sf(-1) == 1 and ChiSquare(3).pdf(-1) == 0
    assert LogNormal(0, 1).cdf(0) == 0 and LogNormal(0, 1).pdf(0) == 0
    assert F(1, 5).pdf(0) == inf and F(2, 5).pdf(0) == 1 and F(3, 5).pdf(0) == 0
    assert Beta(2, 2, lo=1, hi=3).cdf(4) == 1 and Beta(2, 2, lo=1, hi=3).sf(0) == 1
    assert Normal().cdf(inf) == 1 and Normal().sf(-inf) == 1 and Normal().pdf(inf) == 0
    assert np.isnan(Normal().cdf(nan)) and np.isnan(Normal().ppf(1.5)) and np.isnan(Normal().ppf(-0.1))
    assert Normal().ppf(0) == -inf and Normal().isf(0) == inf and ChiSquare(2).ppf(1) == inf
    assert Beta(2, 2, lo=-1, hi=1).ppf(0) == -1 and Exponential(1).isf(1) == 0
    assert Binomial(5, 0.5).cdf(7) == 1 and Binomial(5, 0.5).sf(-2) == 1 and Binomial(5, 0.5).pmf(2.5) == 0
    assert Binomial(5, 0.5).cdf(2.5) == Binomial(5, 0.5).cdf(2)
    assert Poisson(3).pmf(-1) == 0 and np.isnan(Poisson(3).ppf(2))


def test_types_shapes_and_broadcasting():
    assert type(Normal().cdf(0.5)) is np.longdouble
    assert type(Binomial(10, 0.5).ppf(0.5)) is np.int64
    assert Binomial(10, 0.5).ppf([0.1, 0.9]).dtype == np.int64
    assert Binomial(10, 0.5).ppf([0.1, 2]).dtype == np.longdouble  # NaN among them
    grid = Normal(np.array([[0.0], [1.0], [2.0]]), 1).cdf(np.array([0.0, 1.0, 2.0, 3.0]))
    assert grid.shape == (3, 4) and grid[1, 1] == np.longdouble(1) / 2
    assert Normal().cdf(np.zeros((2, 0, 3))).shape == (2, 0, 3)
    assert ChiSquare([1, 2, 3]).cdf(2).shape == (3,)
    with pytest.raises(ValueError, match="broadcast"):
        Normal([0, 1]).cdf(np.zeros(3))


def test_parameters_are_checked_by_name():
    for make, name in [(lambda: Normal(0, 0), "sd"), (lambda: ChiSquare(2.5), "df"), (lambda: StudentT(0), "df"),
                       (lambda: F(1, -3), "n2"), (lambda: Beta(1, 1, lo=2, hi=1), "lo"),
                       (lambda: Binomial(-1, 0.5), "n"), (lambda: Binomial(3, 1.5), "p"), (lambda: Poisson(0), "mu"),
                       (lambda: Exponential(np.inf), "rate"), (lambda: LogNormal(np.nan, 1), "mu")]:
        with pytest.raises(ValueError, match=name):
            make()
    with pytest.raises(TypeError, match="x"):
        Normal().cdf("0.5")
    with pytest.raises(TypeError):
        Normal("a", 1)
    assert repr(Beta(2, 3)) == "Beta(a=2.0, b=3.0, lo=0.0, hi=1.0)"
    assert issubclass(MathError, ArithmeticError)


def test_calls_from_several_threads_give_the_results_of_one():
    from concurrent.futures import ThreadPoolExecutor

    import kornum

    x = np.linspace(0.01, 30, 200000).astype(np.longdouble)
    calls = [lambda: ChiSquare(5).sf(x), lambda: StudentT(3).isf(x / 31), lambda: kornum.describe(x).to_dict(),
             lambda: Beta(2, 3).cdf(x / 31)]
    alone = [call() for call in calls]
    with ThreadPoolExecutor(4) as pool:
        together = list(pool.map(lambda call: call(), calls * 2))
    for got, expected in zip(together, alone * 2):
        if isinstance(expected, dict):
            assert got == expected
        else:
            assert np.array_equal(got, expected)
