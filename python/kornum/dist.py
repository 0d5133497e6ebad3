"""Distribution families with SciPy's method names, in 80-bit long double.

Each family is a class whose instances fix the parameters: ``Normal(0, 1).cdf(x)``.
The methods work like NumPy ufuncs: ``x`` (and the parameters) may be scalars or arrays
of any shape, broadcast together, and the loop runs in C++ without the interpreter lock.
Results are ``np.longdouble``: a scalar for scalar arguments, else an array.

- ``cdf(x)`` is P(X <= x) and ``sf(x)`` is P(X > x), each computed from its own tail, so
  that a probability of 1e-300 keeps its digits on either side.
- ``pdf(x)`` is the density; the discrete families have ``pmf(k)`` instead.
- ``ppf(q)`` is the x with P(X <= x) = q and ``isf(q)`` the x with P(X > x) = q, the
  latter computed from the upper tail (for the discrete families, the smallest k with
  P(X <= k) >= q, or with P(X > k) <= q, as ``np.int64``).

At the edges the conventions are SciPy's: outside the support ``cdf`` is 0 or 1, ``sf``
1 or 0 and the density 0; ``ppf(0)`` and ``ppf(1)`` are the ends of the support; a
probability outside [0, 1], or NaN, gives NaN. Parameters are checked when the
distribution is made (``ValueError`` naming the parameter).

>>> from kornum.dist import ChiSquare, Normal
>>> print(ChiSquare(5).sf(1500))
2.944167856907237311e-322
>>> print(Normal().isf(1e-300))
37.047096299361199235
"""

from __future__ import annotations

from typing import Any, Sequence, Tuple

import numpy as np
from numpy.typing import ArrayLike

from . import _kornum

__all__ = ["Normal", "LogNormal", "ChiSquare", "StudentT", "F", "Beta", "Exponential", "Binomial", "Poisson"]


class _Family:
    """What every family shares: its parameters, checked once, and the engine's calls."""

    _family = ""
    _names: Tuple[str, ...] = ()

    def __init__(self, *parameters: ArrayLike) -> None:
        self._parameters = tuple(_kornum.check_parameters(self._family, list(parameters), list(self._names)))

    def _call(self, function: str, x: ArrayLike) -> Any:
        return _kornum.evaluate(self._family, function, x, list(self._parameters))

    def _drawn_parameters(self) -> Tuple[np.ndarray, ...]:
        """The parameters as ``kornum dist`` is given them for a picture's title."""
        return self._parameters

    def cdf(self, x: ArrayLike) -> Any:
        """P(X <= x).

        >>> print(Normal().cdf([0, 1]))
        [0.5        0.84134475]
        """
        return self._call("cdf", x)

    def sf(self, x: ArrayLike) -> Any:
        """P(X > x), computed from the upper tail itself.

        >>> print(Normal().sf(40))
        3.655893540915029704e-350
        """
        return self._call("sf", x)

    def __repr__(self) -> str:
        shown = ", ".join(f"{name}={_shown(value)}" for name, value in zip(self._names, self._parameters))
        return f"{type(self).__name__}({shown})"


def _shown(value: np.ndarray) -> str:
    return str(value[()]) if value.ndim == 0 else np.array2string(value, separator=", ")


class _Continuous(_Family):
    def pdf(self, x: ArrayLike) -> Any:
        """The probability density at x.

        >>> print(Exponential(1).pdf(0))
        1.0
        """
        return self._call("pdf", x)

    def ppf(self, q: ArrayLike) -> Any:
        """The x with P(X <= x) = q.

        >>> print(Exponential(1).ppf(0.5))
        0.69314718055994530943
        """
        return self._call("ppf", q)

    def isf(self, q: ArrayLike) -> Any:
        """The x with P(X > x) = q, computed from the upper tail.

        >>> print(ChiSquare(2).isf(1e-300))
        1381.5510557964274104
        """
        return self._call("isf", q)


def _whole(values: Any) -> Any:
    """Counts as np.int64, unless a NaN (a probability outside [0, 1]) is among them."""
    if np.isnan(values).any():
        return values
    return values.astype(np.int64) if isinstance(values, np.ndarray) else np.int64(values)


class _Discrete(_Family):
    def pmf(self, k: ArrayLike) -> Any:
        """P(X = k); 0 where k is not a whole number.

        >>> print(Binomial(4, 0.5).pmf([2, 2.5]))
        [0.375 0.   ]
        """
        return self._call("pdf", k)

    def ppf(self, q: ArrayLike) -> Any:
        """The smallest k with P(X <= k) >= q.

        >>> Poisson(3).ppf([0.1, 0.5, 0.9])
        array([1, 3, 5])
        """
        return _whole(self._call("ppf", q))

    def isf(self, q: ArrayLike) -> Any:
        """The smallest k with P(X > k) <= q, computed from the upper tail.

        >>> int(Binomial(10, 0.5).isf(1 / 1024))
        9
        """
        return _whole(self._call("isf", q))


class Normal(_Continuous):
    """The normal distribution with mean ``mean`` and standard deviation ``sd`` > 0.

    >>> print(Normal(100, 15).cdf(130))
    0.9772498680518207928
    """

    _family, _names = "normal", ("mean", "sd")

    def __init__(self, mean: ArrayLike = 0, sd: ArrayLike = 1) -> None:
        super().__init__(mean, sd)


class LogNormal(_Continuous):
    """The log-normal distribution: ln X is normal with mean ``mu`` and standard
    deviation ``sigma`` > 0.

    >>> print(LogNormal(0, 1).cdf(1))
    0.5
    """

    _family, _names = "lognormal", ("mu", "sigma")

    def __init__(self, mu: ArrayLike, sigma: ArrayLike) -> None:
        super().__init__(mu, sigma)


class ChiSquare(_Continuous):
    """The chi-square distribution with ``df`` (a whole number >= 1) degrees of freedom.

    >>> print(ChiSquare(2).cdf(2))
    0.63212055882855767844
    """

    _family, _names = "chisq", ("df",)

    def __init__(self, df: ArrayLike) -> None:
        super().__init__(df)


class StudentT(_Continuous):
    """Student's t distribution with ``df`` (a whole number >= 1) degrees of freedom.

    >>> print(StudentT(1).cdf(1))
    0.75
    """

    _family, _names = "t", ("df",)

    def __init__(self, df: ArrayLike) -> None:
        super().__init__(df)


class F(_Continuous):
    """The F distribution with ``n1`` and ``n2`` (whole numbers >= 1) degrees of freedom.

    >>> print(F(2, 2).cdf(1))
    0.5
    """

    _family, _names = "f", ("n1", "n2")

    def __init__(self, n1: ArrayLike, n2: ArrayLike) -> None:
        super().__init__(n1, n2)


class Beta(_Continuous):
    """The beta distribution with shapes ``a``, ``b`` > 0 on [``lo``, ``hi``].

    >>> print(Beta(2, 3).cdf(0.5), Beta(1, 1, lo=10, hi=20).ppf(0.25))
    0.6875 12.5
    """

    _family, _names = "beta", ("a", "b", "lo", "hi")

    def __init__(self, a: ArrayLike, b: ArrayLike, lo: ArrayLike = 0, hi: ArrayLike = 1) -> None:
        super().__init__(a, b, lo, hi)
        if not np.all(self._parameters[2] < self._parameters[3]):
            raise ValueError("lo must be less than hi")

    def _drawn_parameters(self) -> Tuple[np.ndarray, ...]:
        # The bounds are named only where they are not the default [0, 1].
        lo, hi = self._parameters[2:]
        return self._parameters[:2] if np.all(lo == 0) and np.all(hi == 1) else self._parameters


class Exponential(_Continuous):
    """The exponential distribution with rate ``rate`` > 0 (mean 1 / rate).

    >>> print(Exponential(2).sf(1))
    0.1353352832366126919
    """

    _family, _names = "exponential", ("rate",)

    def __init__(self, rate: ArrayLike) -> None:
        super().__init__(rate)


class Binomial(_Discrete):
    """The number of successes in ``n`` trials (a whole number from 0 to 2^32 - 1) of
    probability ``p``.

    >>> print(Binomial(10, 0.5).pmf(5), Binomial(10, 0.5).ppf(0.5))
    0.24609375 5
    """

    _family, _names = "binomial", ("n", "p")

    def __init__(self, n: ArrayLike, p: ArrayLike) -> None:
        super().__init__(n, p)


class Poisson(_Discrete):
    """The Poisson distribution with mean ``mu`` > 0.

    >>> print(Poisson(2).pmf(0))
    0.1353352832366126919
    """

    _family, _names = "poisson", ("mu",)

    def __init__(self, mu: ArrayLike) -> None:
        super().__init__(mu)
