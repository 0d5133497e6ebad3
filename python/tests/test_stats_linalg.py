import numpy as np
import pytest

import kornum
from kornum import linalg, stats


def test_sample_statistics_by_hand():
    x = [2, 4, 4, 4, 5, 5, 7, 9]
    assert stats.mean(x) == 5 and stats.population_variance(x) == 4 and stats.population_sd(x) == 2
    assert stats.sample_variance(x) == np.longdouble(32) / 7
    assert stats.sample_variance_and_mean(x) == (np.longdouble(32) / 7, 5)
    assert stats.mean_deviation(x) == np.longdouble(12) / 8
    assert stats.population_skew(x) == np.longdouble(42) / (8 * 8)  # sum of cubes 42, sd^3 = 8
    assert stats.population_kurtosis(x) == np.longdouble(356) / (8 * 16) - 3
    assert stats.geometric_mean([1, 3, 9]) == 3 and stats.harmonic_mean([1, 4, 4]) == 2
    assert np.array_equal(stats.standardise([1, 2, 3], new_mean=10, new_sd=2), [8, 10, 12])


def test_order_statistics_by_hand():
    x = np.array([9, 1, 8, 2, 7, 3, 6, 4, 5, 10], dtype=np.longdouble)
    assert stats.median(x) == 5.5 and stats.quartiles(x) == (3, 8)
    assert np.array_equal(stats.deciles(x), np.arange(1, 10) + np.longdouble(0.5))
    assert stats.mode([1, 1, 2, 2, 3]) is None and stats.mode([4, 1, 4]) == 4
    assert np.array_equal(stats.most_frequent([3, 1, 3, 1, 2]), [1, 3])
    assert stats.trimmed_mean([1, 2, 3, 4, 100], 0.2) == 3 and stats.trimmed_mean_total([1, 2, 3, 4, 100], 0.4) == 3


def test_regression_and_grouped_data():
    fit = stats.linear_regression([1, 2, 3, 4], [2, 3, 5, 6])
    # Qxy = 47 - 10 * 16 / 4 = 7, Qxx = 30 - 25 = 5: slope 7 / 5, intercept (16 - 14) / 4;
    # residuals -0.1, 0.3, -0.3, 0.1.
    assert fit.slope == np.longdouble(7) / 5 and fit.intercept == np.longdouble(1) / 2
    assert abs(fit.sse - np.longdouble(2) / 10) < 1e-18
    # Classes [0, 10), [10, 20), [20, 30) with counts 1, 2, 1: midpoints 5, 15, 25.
    f = [1, 2, 1]
    assert stats.grouped_mean(f, 0, 10) == 15 and stats.grouped_population_variance(f, 0, 10) == 50
    assert stats.grouped_sample_variance(f, 0, 10) == np.longdouble(200) / 3
    assert stats.grouped_sums(f, 0, 10) == (60, 1100)
    assert stats.grouped_mode([2, 2], 0, 1) is None
    with pytest.raises(ValueError, match="frequencies"):
        stats.grouped_mean([1.5, 2], 0, 1)


def test_library_errors_keep_their_identifier_and_text():
    with pytest.raises(kornum.MathError) as error:
        stats.mean([])
    assert error.value.id == "rsVectorIsEmpty"
    with pytest.raises(kornum.MathError) as short:
        stats.sample_kurtosis([1, 2, 3])
    assert short.value.id is not None and str(short.value)
    with pytest.raises(kornum.MathError) as alpha:
        stats.trimmed_mean([1, 2], 0.7)
    assert alpha.value.id == "rsInvalidValue"


def test_linear_algebra():
    a = [[4, 3], [6, 3]]
    assert linalg.det(a) == -6
    inverse = linalg.inv(a)
    assert inverse.dtype == np.longdouble
    assert np.allclose(linalg.matmul(a, inverse).astype(float), np.eye(2), atol=1e-18)
    assert linalg.rank([[1, 2, 3], [2, 4, 6], [1, 0, 1]]) == 2
    with pytest.raises(np.linalg.LinAlgError):
        linalg.inv([[1, 2], [2, 4]])
    with pytest.raises(kornum.MathError) as square:
        linalg.det([[1, 2, 3], [4, 5, 6]])
    assert square.value.id == "rsMatrixSqr"
    with pytest.raises(ValueError, match="two-dimensional"):
        linalg.det([1, 2])
    # Products keep 64 bits: (1 + 2^-60)^2 is not a double product.
    e = np.longdouble(1) + np.longdouble(2) ** -60
    assert linalg.matmul([[e]], [[e]])[0, 0] == e * e
