import threading

import numpy as np
import pytest

from kornum.random import Generator

# Each distribution as the command line names it, its parameters there, and the same call
# on a Generator.
STREAMS = [
    ("normal", [], lambda g, n: g.normal(size=n)),
    ("exponential", [], lambda g, n: g.exponential(size=n)),
    ("cauchy", [], lambda g, n: g.cauchy(size=n)),
    ("gamma", ["2.5"], lambda g, n: g.gamma(2.5, size=n)),
    ("gamma", ["0.25"], lambda g, n: g.gamma(0.25, size=n)),
    ("chisq", ["7"], lambda g, n: g.chisquare(7, size=n)),
    ("weibull", ["1.5"], lambda g, n: g.weibull(1.5, size=n)),
    ("beta", ["0.5", "3"], lambda g, n: g.beta(0.5, 3, size=n)),
    ("t", ["4"], lambda g, n: g.standard_t(4, size=n)),
    ("invgauss", ["1.5", "2"], lambda g, n: g.invgauss(1.5, 2, size=n)),
    ("vonmises", ["3"], lambda g, n: g.vonmises(3, size=n)),
    ("binomial", ["1000", "0.4"], lambda g, n: g.binomial(1000, 0.4, size=n)),
    ("binomial", ["20", "0.1"], lambda g, n: g.binomial(20, 0.1, size=n)),
    ("binomial1", ["50", "0.3"], lambda g, n: g.binomial(50, 0.3, size=n, method="inversion")),
    ("negbinomial", ["2.5", "0.4"], lambda g, n: g.negative_binomial(2.5, 0.4, size=n)),
    ("poisson", ["3.5"], lambda g, n: g.poisson(3.5, size=n)),
    ("poisson", ["250"], lambda g, n: g.poisson(250, size=n)),
]


@pytest.mark.parametrize("name, parameters, draw", STREAMS, ids=lambda s: s if isinstance(s, str) else None)
def test_streams_equal_the_command_lines(kornum_program, name, parameters, draw):
    for seed in [0, 12345, 2**64 - 1]:
        printed = kornum_program("random", name, *parameters, "-n", "40", "--seed", str(seed)).split()
        drawn = draw(Generator(seed), 40)
        if drawn.dtype == np.int64:
            assert drawn.tolist() == [int(text) for text in printed]
        else:
            assert drawn.dtype == np.longdouble
            assert np.array_equal(drawn, np.array([np.longdouble(text) for text in printed]))


def test_generators_own_their_streams():
    a, b = Generator(9), Generator(9)
    first = a.normal(size=5)
    Generator(9).normal(size=100)  # another generator with the same seed moves nothing
    assert np.array_equal(b.normal(size=5), first)
    assert not np.array_equal(a.normal(size=5), first)  # a went on
    assert type(a.normal()) is np.longdouble and type(a.poisson(2)) is np.int64
    assert a.gamma(2, size=(2, 3)).shape == (2, 3) and a.poisson(1, size=0).shape == (0,)


def test_threads_drawing_at_once_get_the_streams_they_would_alone():
    expected = [Generator(seed).gamma(1.7, size=20000) for seed in range(4)]
    results = [None] * 4

    def work(i):
        results[i] = Generator(i).gamma(1.7, size=20000)

    threads = [threading.Thread(target=work, args=(i,)) for i in range(4)]
    for t in threads:
        t.start()
    for t in threads:
        t.join()
    assert all(np.array_equal(r, e) for r, e in zip(results, expected))


def test_multivariate_normal_has_the_asked_moments():
    cov = np.array([[2.0, 0.6], [0.6, 1.0]])
    draws = Generator(4).multivariate_normal([1, -3], cov, size=200000)
    assert draws.shape == (200000, 2) and draws.dtype == np.longdouble
    assert np.allclose(draws.mean(axis=0).astype(float), [1, -3], atol=0.02)
    assert np.allclose(np.cov(draws.astype(float).T), cov, atol=0.03)
    with pytest.raises(ValueError, match="symmetric"):
        Generator(1).multivariate_normal([0, 0], [[1, 0.5], [0, 1]])
    with pytest.raises(ValueError, match="positive semi-definite"):
        Generator(1).multivariate_normal([0, 0], [[1, 2], [2, 1]])


def test_bad_arguments_name_themselves():
    g = Generator(1)
    for call, name in [(lambda: g.gamma(0), "shape"), (lambda: g.chisquare(1.5), "df"),
                       (lambda: g.vonmises(10), "kappa"), (lambda: g.binomial(5, 1.2), "p"),
                       (lambda: g.binomial(2**31, 0.5, method="inversion"), "n"),
                       (lambda: g.negative_binomial(1, 1), "p"), (lambda: g.poisson(-1), "mu"),
                       (lambda: g.normal(size=-1), "size"), (lambda: Generator(-1), "seed"),
                       (lambda: g.binomial(5, 0.5, method="x"), "method")]:
        with pytest.raises(ValueError, match=name):
            call()
    with pytest.raises(TypeError, match="seed"):
        Generator(1.5)
    with pytest.raises(TypeError, match="shape"):
        g.gamma("2")
