"""Sample, order and grouped-data statistics and the regression line, in 80-bit long double.

Every function takes 1-D array-likes of real numbers (converted once to
``np.longdouble``) and returns ``np.longdouble``. An empty sample, or one too short for
the statistic, raises :class:`kornum.MathError` with the library's message.

>>> from kornum import stats
>>> print(stats.mean([1, 2, 3, 4]), stats.median([5, 1, 3]))
2.5 3.0
"""

from __future__ import annotations

from typing import Any, NamedTuple, Optional, Tuple

import numpy as np
from numpy.typing import ArrayLike

from . import _kornum

__all__ = [
    "mean", "sample_variance", "population_variance", "sample_sd", "population_sd",
    "sample_variance_and_mean", "population_variance_and_mean", "sample_sd_and_mean",
    "population_sd_and_mean", "geometric_mean", "harmonic_mean", "rms", "mean_deviation",
    "standardise", "sample_skew", "population_skew", "sample_kurtosis", "population_kurtosis",
    "median", "quartiles", "deciles", "mode", "most_frequent", "trimmed_mean",
    "trimmed_mean_total", "LinearRegression", "linear_regression", "grouped_mean",
    "grouped_median", "grouped_mode", "grouped_quartiles", "grouped_deciles",
    "grouped_sample_variance", "grouped_population_variance", "grouped_sample_sd",
    "grouped_population_sd", "grouped_sums", "grouped_mean_deviation", "grouped_sample_skew",
    "grouped_population_skew", "grouped_sample_kurtosis", "grouped_population_kurtosis",
]

Float = np.longdouble


# ---- Moments and means ---------------------------------------------------------------

def mean(x: ArrayLike) -> Float:
    """The arithmetic mean.

    >>> print(mean([1, 2, 3, 4]))
    2.5
    """
    return _kornum.mean(x)


def sample_variance(x: ArrayLike) -> Float:
    """The sample variance, with n - 1 in the denominator (two passes).

    >>> print(sample_variance([1, 2, 3, 4]))
    1.6666666666666666666
    """
    return _kornum.sample_variance(x)


def population_variance(x: ArrayLike) -> Float:
    """The population variance, with n in the denominator (two passes).

    >>> print(population_variance([1, 2, 3, 4]))
    1.25
    """
    return _kornum.population_variance(x)


def sample_sd(x: ArrayLike) -> Float:
    """The sample standard deviation.

    >>> print(sample_sd([2, 4, 4, 4, 5, 5, 7, 9]))
    2.1380899352993950775
    """
    return _kornum.sample_sd(x)


def population_sd(x: ArrayLike) -> Float:
    """The population standard deviation.

    >>> print(population_sd([2, 4, 4, 4, 5, 5, 7, 9]))
    2.0
    """
    return _kornum.population_sd(x)


def sample_variance_and_mean(x: ArrayLike) -> Tuple[Float, Float]:
    """The sample variance and the mean in one pass: ``(variance, mean)``.

    >>> print(*sample_variance_and_mean([1, 2, 3, 4]))
    1.6666666666666666666 2.5
    """
    return _kornum.sample_variance_and_mean(x)


def population_variance_and_mean(x: ArrayLike) -> Tuple[Float, Float]:
    """The population variance and the mean in one pass: ``(variance, mean)``.

    >>> print(*population_variance_and_mean([1, 2, 3, 4]))
    1.25 2.5
    """
    return _kornum.population_variance_and_mean(x)


def sample_sd_and_mean(x: ArrayLike) -> Tuple[Float, Float]:
    """The sample standard deviation and the mean in one pass: ``(sd, mean)``.

    >>> print(*sample_sd_and_mean([1, 3]))
    1.4142135623730950488 2.0
    """
    return _kornum.sample_sd_and_mean(x)


def population_sd_and_mean(x: ArrayLike) -> Tuple[Float, Float]:
    """The population standard deviation and the mean in one pass: ``(sd, mean)``.

    >>> print(*population_sd_and_mean([1, 3]))
    1.0 2.0
    """
    return _kornum.population_sd_and_mean(x)


def geometric_mean(x: ArrayLike) -> Float:
    """The geometric mean of positive values.

    >>> print(geometric_mean([1, 4, 16]))
    4.0
    """
    return _kornum.geometric_mean(x)


def harmonic_mean(x: ArrayLike) -> Float:
    """The harmonic mean of non-zero values.

    >>> print(harmonic_mean([1, 4, 4]))
    2.0
    """
    return _kornum.harmonic_mean(x)


def rms(x: ArrayLike) -> Float:
    """The library's root mean square: the square root of the sum of the squares, not
    divided by n (the Euclidean length of the values, not the quadratic mean).

    >>> print(rms([3, 4]))
    5.0
    """
    return _kornum.rms(x)


def mean_deviation(x: ArrayLike, mean: Optional[ArrayLike] = None) -> Float:
    """The mean absolute deviation from ``mean`` (by default the sample's mean).

    >>> print(mean_deviation([1, 2, 3, 6]))
    1.5
    """
    return _kornum.mean_deviation(x, _kornum.mean(x) if mean is None else mean)


def standardise(x: ArrayLike, mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None,
                new_mean: ArrayLike = 0, new_sd: ArrayLike = 1) -> np.ndarray:
    """The values moved from ``mean`` and ``sd`` (by default the sample's mean and sample
    standard deviation) to ``new_mean`` and ``new_sd``, as a new array.

    >>> print(standardise([1, 2, 3]))
    [-1.  0.  1.]
    """
    mean_ = _kornum.mean(x) if mean is None else mean
    sd_ = _kornum.sample_sd(x) if sd is None else sd
    return _kornum.standardise(x, mean_, sd_, new_mean, new_sd)


def _shape_arguments(x: ArrayLike, mean: Any, sd: Any, spread: Any) -> Tuple[Any, Any]:
    return (_kornum.mean(x) if mean is None else mean), (spread(x) if sd is None else sd)


def sample_skew(x: ArrayLike, mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The sample skewness, n / ((n - 1)(n - 2)) * sum((x - mean)^3) / sd^3, with the
    sample's mean and sample standard deviation unless given; at least 3 values.

    >>> print(sample_skew([1, 2, 3, 10]))
    1.7636326148038882307
    """
    return _kornum.sample_skew(x, *_shape_arguments(x, mean, sd, _kornum.sample_sd))


def population_skew(x: ArrayLike, mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The population skewness, sum((x - mean)^3) / (n sd^3), with the population
    standard deviation unless given; at least 3 values.

    >>> print(population_skew([1, 2, 3]))
    0.0
    """
    return _kornum.population_skew(x, *_shape_arguments(x, mean, sd, _kornum.population_sd))


def sample_kurtosis(x: ArrayLike, mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The sample excess kurtosis (the unbiased form), with the sample standard deviation
    unless given; at least 4 values.

    >>> print(f"{sample_kurtosis([1, 2, 3, 4]):.15f}")
    -1.200000000000000
    """
    return _kornum.sample_kurtosis(x, *_shape_arguments(x, mean, sd, _kornum.sample_sd))


def population_kurtosis(x: ArrayLike, mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The population excess kurtosis, sum((x - mean)^4) / (n sd^4) - 3, with the
    population standard deviation unless given; at least 4 values.

    >>> print(population_kurtosis([1, 2, 3, 4]))
    -1.36
    """
    return _kornum.population_kurtosis(x, *_shape_arguments(x, mean, sd, _kornum.population_sd))


# ---- Order statistics ---------------------------------------------------------------

def median(x: ArrayLike) -> Float:
    """The median (the mean of the middle two for an even count).

    >>> print(median([4, 1, 3, 2]))
    2.5
    """
    return _kornum.median(x)


def quartiles(x: ArrayLike) -> Tuple[Float, Float]:
    """The first and third quartiles, ``(q1, q3)``, by the position n * j / 4 + 0.5,
    interpolated between neighbours.

    >>> print(*quartiles([1, 2, 3, 4, 5, 6, 7, 8]))
    2.5 6.5
    """
    return _kornum.quartiles(x)


def deciles(x: ArrayLike) -> np.ndarray:
    """The nine deciles D1 to D9 as an array, by the position n * j / 10 + 0.5.

    >>> print(deciles(np.arange(1, 11)))
    [1.5 2.5 3.5 4.5 5.5 6.5 7.5 8.5 9.5]
    """
    return _kornum.deciles(x)


def mode(x: ArrayLike) -> Optional[Float]:
    """The single most frequent value, or None when no value repeats or several tie.

    >>> print(mode([1, 2, 2, 3]), mode([1, 2, 3]))
    2.0 None
    """
    return _kornum.mode(x)


def most_frequent(x: ArrayLike) -> np.ndarray:
    """The values tied for the highest frequency, ascending, each once.

    >>> print(most_frequent([3, 1, 3, 1, 2]))
    [1. 3.]
    """
    return _kornum.most_frequent(x)


def trimmed_mean(x: ArrayLike, alpha: ArrayLike) -> Float:
    """The mean after dropping the fraction ``alpha`` (0 to 0.5) of the values at each end.

    >>> print(trimmed_mean([1, 2, 3, 4, 100], 0.2))
    3.0
    """
    return _kornum.trimmed_mean(x, alpha)


def trimmed_mean_total(x: ArrayLike, alpha: ArrayLike) -> Float:
    """The mean after dropping the fraction ``alpha`` (0 to 1) of the values in all, half
    at each end (the count at each end rounded down).

    >>> print(trimmed_mean_total([1, 2, 3, 4, 100], 0.4))
    3.0
    """
    return _kornum.trimmed_mean_total(x, alpha)


class LinearRegression(NamedTuple):
    """The least-squares line y = intercept + slope * x and its sum of squared errors."""

    slope: Float
    intercept: Float
    sse: Float


def linear_regression(x: ArrayLike, y: ArrayLike) -> LinearRegression:
    """The least-squares line through the points (x, y).

    >>> fit = linear_regression([0, 1, 2, 3], [1, 3, 5, 7])
    >>> print(fit.slope, fit.intercept, fit.sse)
    2.0 1.0 0.0
    """
    return LinearRegression(*_kornum.linear_regression(x, y))


# ---- Grouped data -------------------------------------------------------------------
# The classes are [lower + k * width, lower + (k + 1) * width) with the counts
# `frequencies` (whole numbers from 0 to 2^32 - 1).

def grouped_mean(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Float:
    """The mean of grouped data, from the class midpoints.

    >>> print(grouped_mean([1, 2, 1], 0, 10))
    15.0
    """
    return _kornum.grouped_mean(frequencies, lower, width)


def grouped_median(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Float:
    """The median of grouped data, interpolated within its class.

    >>> print(grouped_median([1, 2, 1], 0, 10))
    15.0
    """
    return _kornum.grouped_median(frequencies, lower, width)


def grouped_mode(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Optional[Float]:
    """The mode of grouped data, interpolated within the modal class; None when two
    classes share the largest count.

    >>> print(grouped_mode([1, 3, 1], 0, 10), grouped_mode([2, 2], 0, 10))
    15.0 None
    """
    return _kornum.grouped_mode(frequencies, lower, width)


def grouped_quartiles(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Tuple[Float, Float]:
    """The first and third quartiles of grouped data, interpolated within their classes.

    >>> print(*grouped_quartiles([1, 2, 1], 0, 10))
    10.0 20.0
    """
    return _kornum.grouped_quartiles(frequencies, lower, width)


def grouped_deciles(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> np.ndarray:
    """The nine deciles of grouped data.

    >>> print(grouped_deciles([1, 2, 1], 0, 10))
    [ 4.  8. 11. 13. 15. 17. 19. 22. 26.]
    """
    return _kornum.grouped_deciles(frequencies, lower, width)


def grouped_sample_variance(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Float:
    """The sample variance of grouped data, from the class midpoints.

    >>> print(grouped_sample_variance([1, 2, 1], 0, 10) * 3)
    200.0
    """
    return _kornum.grouped_sample_variance(frequencies, lower, width)


def grouped_population_variance(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Float:
    """The population variance of grouped data.

    >>> print(grouped_population_variance([1, 2, 1], 0, 10))
    50.0
    """
    return _kornum.grouped_population_variance(frequencies, lower, width)


def grouped_sample_sd(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Float:
    """The sample standard deviation of grouped data.

    >>> print(grouped_sample_sd([1, 2], 0, 2))
    1.154700538379251529
    """
    return _kornum.grouped_sample_sd(frequencies, lower, width)


def grouped_population_sd(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Float:
    """The population standard deviation of grouped data.

    >>> print(grouped_population_sd([1, 1], 0, 2))
    1.0
    """
    return _kornum.grouped_population_sd(frequencies, lower, width)


def grouped_sums(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike) -> Tuple[Float, Float]:
    """The sums of f * m and f * m^2 over the classes (m the midpoint).

    >>> print(*grouped_sums([1, 2, 1], 0, 10))
    60.0 1100.0
    """
    return _kornum.grouped_sums(frequencies, lower, width)


def grouped_mean_deviation(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike,
                           mean: Optional[ArrayLike] = None) -> Float:
    """The mean absolute deviation of grouped data from ``mean`` (by default theirs).

    >>> print(grouped_mean_deviation([1, 2, 1], 0, 10))
    5.0
    """
    centre = _kornum.grouped_mean(frequencies, lower, width) if mean is None else mean
    return _kornum.grouped_mean_deviation(frequencies, lower, width, centre)


def _grouped_shape(statistic: Any, spread: Any, frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike,
                   mean: Any, sd: Any) -> Float:
    centre = _kornum.grouped_mean(frequencies, lower, width) if mean is None else mean
    scale = spread(frequencies, lower, width) if sd is None else sd
    return statistic(frequencies, lower, width, centre, scale)


def grouped_sample_skew(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike,
                        mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The sample skewness of grouped data (their mean and sample sd unless given), in the
    library's grouped form.

    >>> print(grouped_sample_skew([1, 2, 1], 0, 10))
    0.0
    """
    return _grouped_shape(_kornum.grouped_sample_skew, _kornum.grouped_sample_sd, frequencies, lower, width, mean, sd)


def grouped_population_skew(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike,
                            mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The population skewness of grouped data (their mean and population sd unless
    given), in the library's grouped form.

    >>> print(grouped_population_skew([1, 2, 1], 0, 10))
    0.0
    """
    return _grouped_shape(_kornum.grouped_population_skew, _kornum.grouped_population_sd, frequencies, lower,
                          width, mean, sd)


def grouped_sample_kurtosis(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike,
                            mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The sample kurtosis of grouped data (their mean and sample sd unless given), in the
    library's grouped form.

    >>> print(grouped_sample_kurtosis([1, 2, 1], 0, 10) is not None)
    True
    """
    return _grouped_shape(_kornum.grouped_sample_kurtosis, _kornum.grouped_sample_sd, frequencies, lower, width,
                          mean, sd)


def grouped_population_kurtosis(frequencies: ArrayLike, lower: ArrayLike, width: ArrayLike,
                                mean: Optional[ArrayLike] = None, sd: Optional[ArrayLike] = None) -> Float:
    """The population kurtosis of grouped data (their mean and population sd unless
    given), in the library's grouped form.

    >>> print(grouped_population_kurtosis([1, 2, 1], 0, 10) is not None)
    True
    """
    return _grouped_shape(_kornum.grouped_population_kurtosis, _kornum.grouped_population_sd, frequencies, lower,
                          width, mean, sd)
