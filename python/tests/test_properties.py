"""Properties over generated arguments: round trips, broadcasting, and junk that must
raise an exception, never crash."""

import numpy as np
from hypothesis import given, settings
from hypothesis import strategies as st
from hypothesis.extra import numpy as hnp

import kornum
from kornum.dist import Beta, ChiSquare, Normal, StudentT

FAMILIES = st.sampled_from([Normal(2, 3), ChiSquare(4), StudentT(3), Beta(2, 5)])


@settings(max_examples=300, deadline=None)
@given(FAMILIES, st.floats(min_value=1e-250, max_value=0.5))
def test_quantiles_and_tails_round_trip(distribution, q):
    for tail, inverse in ((distribution.cdf, distribution.ppf), (distribution.sf, distribution.isf)):
        x = inverse(q)
        # The tails at x's neighbouring Floats enclose q (x = 1 - 1e-50 rounds to 1).
        values = [tail(np.nextafter(x, -np.inf)), tail(x), tail(np.nextafter(x, np.inf))]
        assert min(values) * (1 - 1e-15) <= np.longdouble(q) <= max(values) * (1 + 1e-15)


@settings(max_examples=200, deadline=None)
@given(hnp.array_shapes(min_dims=0, max_dims=3, min_side=0, max_side=3),
       hnp.array_shapes(min_dims=0, max_dims=3, min_side=0, max_side=3))
def test_broadcasting_follows_numpy(shape_x, shape_mean):
    x, mean = np.zeros(shape_x), np.zeros(shape_mean)
    try:
        expected = np.broadcast_shapes(shape_x, shape_mean)
    except ValueError:
        expected = None
    try:
        result = Normal(mean, 1).cdf(x)
    except ValueError:
        assert expected is None
        return
    assert np.shape(result) == expected


JUNK = st.one_of(st.none(), st.text(max_size=5), st.binary(max_size=5), st.complex_numbers(),
                 st.lists(st.one_of(st.floats(), st.text(max_size=2), st.none()), max_size=4),
                 st.dictionaries(st.text(max_size=2), st.integers(), max_size=2), st.floats(), st.integers())


@settings(max_examples=300, deadline=None)
@given(JUNK)
def test_junk_raises_and_never_crashes(junk):
    calls = [lambda: kornum.describe(junk), lambda: Normal().cdf(junk), lambda: ChiSquare(junk),
             lambda: kornum.stats.median(junk), lambda: kornum.linalg.det(junk),
             lambda: kornum.random.Generator(junk), lambda: kornum.random.Generator(1).gamma(junk)]
    for call in calls:
        try:
            call()
        except (TypeError, ValueError, ArithmeticError, OverflowError, np.linalg.LinAlgError):
            pass
