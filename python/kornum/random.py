"""Random variates in 80-bit long double from a Generator of your own.

A :class:`Generator` owns its uniform stream (the algorithm of the library's global
source): two Generators never share state, the library's global source is never touched,
and one Generator may be used from several threads (they take turns). For the same seed
a Generator gives, value for value, what the ``kornum random`` program prints:
``Generator(7).gamma(2.5, size=5)`` equals ``kornum random gamma 2.5 -n 5 --seed 7``.

>>> from kornum.random import Generator
>>> g = Generator(42)
>>> g.normal(size=3).dtype, g.poisson(4, size=(2, 2)).shape
(dtype('float128'), (2, 2))
"""

from __future__ import annotations

import math
from typing import Any, Optional, Sequence, Tuple, Union

import numpy as np
from numpy.typing import ArrayLike

from . import _kornum

__all__ = ["Generator"]

Size = Optional[Union[int, Sequence[int]]]

_INT32_MAX = 2**31 - 1
_INT64_MAX = 2**63 - 1


def _real(value: Any, name: str) -> np.longdouble:
    if isinstance(value, (bool, np.bool_)) or not isinstance(value, (int, float, np.integer, np.floating)):
        raise TypeError(f"{name} must be a real number, not {type(value).__name__}")
    if isinstance(value, int) and abs(value) > 2**64:
        raise ValueError(f"{name} is out of range: {value}")
    return np.longdouble(value)


def _check(condition: bool, name: str, wanted: str, value: Any) -> None:
    if not condition:
        raise ValueError(f"{name} must be {wanted}, not {value}")


def _positive(value: Any, name: str) -> np.longdouble:
    x = _real(value, name)
    _check(bool(np.isfinite(x) and x > 0), name, "a finite number greater than 0", value)
    return x


def _whole(value: Any, name: str, low: int, high: int) -> np.longdouble:
    x = _real(value, name)
    _check(bool(np.isfinite(x) and x == np.floor(x) and low <= x <= high), name,
           f"a whole number from {low} to {high}", value)
    return x


def _shape(size: Size) -> Tuple[int, ...]:
    if isinstance(size, (bool, np.bool_)):
        raise TypeError("size must be an int or a tuple of ints, not bool")
    if isinstance(size, (int, np.integer)):
        size = (int(size),)
    try:
        shape = tuple(int(n) for n in size)  # type: ignore[union-attr]
    except TypeError:
        raise TypeError(f"size must be an int or a tuple of ints, not {type(size).__name__}") from None
    if any(n < 0 for n in shape):
        raise ValueError(f"size must not be negative: {size}")
    return shape


class Generator:
    """A source of variates with a stream of its own.

    ``seed`` is a whole number from 0 to 2^64 - 1; without one the stream starts from the
    system's entropy. Every method takes ``size``: ``None`` (the default) for one value,
    an int or a shape for an array of that shape. Continuous variates are
    ``np.longdouble``, counts ``np.int64``.

    >>> a, b = Generator(1), Generator(1)
    >>> bool((a.exponential(size=4) == b.exponential(size=4)).all())
    True
    """

    def __init__(self, seed: Optional[int] = None) -> None:
        if seed is not None:
            if isinstance(seed, (bool, np.bool_)) or not isinstance(seed, (int, np.integer)):
                raise TypeError(f"seed must be an int or None, not {type(seed).__name__}")
            if not 0 <= int(seed) < 2**64:
                raise ValueError(f"seed must be a whole number from 0 to 2^64 - 1, not {seed}")
            seed = int(seed)
        self._stream = _kornum.Stream(seed)

    def _draw(self, name: str, parameters: Sequence[np.longdouble], size: Size) -> Any:
        if size is None:
            return self._stream.draw(name, list(parameters), 1)[0]
        shape = _shape(size)
        return self._stream.draw(name, list(parameters), math.prod(shape)).reshape(shape)

    def normal(self, size: Size = None) -> Any:
        """Standard normal variates (the ratio-of-uniforms method).

        >>> print(Generator(5).normal(size=2).shape)
        (2,)
        """
        return self._draw("normal", (), size)

    def exponential(self, size: Size = None) -> Any:
        """Standard exponential variates.

        >>> bool((Generator(2).exponential(size=1000) > 0).all())
        True
        """
        return self._draw("exponential", (), size)

    def gamma(self, shape: float, size: Size = None) -> Any:
        """Gamma variates of shape ``shape`` > 0 and scale 1.

        >>> Generator(2).gamma(2.5, size=(2, 3)).shape
        (2, 3)
        """
        return self._draw("gamma", (_positive(shape, "shape"),), size)

    def chisquare(self, df: int, size: Size = None) -> Any:
        """Chi-square variates with ``df`` (a whole number >= 1) degrees of freedom.

        >>> type(Generator(2).chisquare(3)).__name__
        'longdouble'
        """
        return self._draw("chisquare", (_whole(df, "df", 1, _INT32_MAX),), size)

    def weibull(self, a: float, size: Size = None) -> Any:
        """Weibull variates of shape ``a`` > 0 and scale 1.

        >>> bool((Generator(2).weibull(1.5, size=100) > 0).all())
        True
        """
        return self._draw("weibull", (_positive(a, "a"),), size)

    def beta(self, a: float, b: float, size: Size = None) -> Any:
        """Beta variates with shapes ``a``, ``b`` > 0.

        >>> x = Generator(2).beta(2, 3, size=100)
        >>> bool(((x > 0) & (x < 1)).all())
        True
        """
        return self._draw("beta", (_positive(a, "a"), _positive(b, "b")), size)

    def standard_t(self, df: int, size: Size = None) -> Any:
        """Student t variates with ``df`` (a whole number >= 1) degrees of freedom.

        >>> Generator(2).standard_t(5, size=4).shape
        (4,)
        """
        return self._draw("standard_t", (_whole(df, "df", 1, _INT32_MAX),), size)

    def invgauss(self, h: float, b: float, size: Size = None) -> Any:
        """Generalised inverse Gaussian variates: density proportional to
        x^(h-1) exp(-b (x + 1/x) / 2), for a finite index ``h`` and ``b`` > 0.

        >>> bool((Generator(2).invgauss(1.5, 2, size=100) > 0).all())
        True
        """
        index = _real(h, "h")
        _check(bool(np.isfinite(index)), "h", "a finite number", h)
        return self._draw("invgauss", (index, _positive(b, "b")), size)

    def vonmises(self, kappa: float, size: Size = None) -> Any:
        """von Mises angles on (-pi, pi] with concentration 0 <= ``kappa`` < 10.

        >>> bool((abs(Generator(2).vonmises(3, size=100)) <= np.pi).all())
        True
        """
        k = _real(kappa, "kappa")
        _check(bool(0 <= k < 10), "kappa", "a number from 0 to below 10", kappa)
        return self._draw("vonmises", (k,), size)

    def cauchy(self, size: Size = None) -> Any:
        """Standard Cauchy variates.

        >>> Generator(2).cauchy(size=3).dtype
        dtype('float128')
        """
        return self._draw("cauchy", (), size)

    def binomial(self, n: int, p: float, size: Size = None, *, method: str = "btpe") -> Any:
        """Successes in ``n`` trials of probability 0 <= ``p`` <= 1.

        ``method="btpe"`` (the default, as ``kornum random binomial``) samples by BTPE
        above a mean of 30 and by inversion below, for n up to 2^63 - 1;
        ``method="inversion"`` inverts from the mode (``kornum random binomial1``), for n
        up to 2^31 - 1.

        >>> bool((Generator(2).binomial(10, 0.5, size=100) <= 10).all())
        True
        """
        if method not in ("btpe", "inversion"):
            raise ValueError(f"method must be 'btpe' or 'inversion', not {method!r}")
        q = _real(p, "p")
        _check(bool(0 <= q <= 1), "p", "a number from 0 to 1", p)
        if method == "btpe":
            return self._draw("binomial", (_whole(n, "n", 0, _INT64_MAX), q), size)
        return self._draw("binomial_inversion", (_whole(n, "n", 0, _INT32_MAX), q), size)

    def negative_binomial(self, sk: float, p: float, size: Size = None) -> Any:
        """Negative binomial variates of power ``sk`` > 0 and probability 0 < ``p`` < 1.

        >>> Generator(2).negative_binomial(2.5, 0.4, size=3).dtype
        dtype('int64')
        """
        q = _real(p, "p")
        _check(bool(0 < q < 1), "p", "a number between 0 and 1, both excluded", p)
        return self._draw("negative_binomial", (_positive(sk, "sk"), q), size)

    def poisson(self, mu: float, size: Size = None) -> Any:
        """Poisson variates of mean ``mu`` >= 0.

        >>> int(Generator(2).poisson(0))
        0
        """
        m = _real(mu, "mu")
        _check(bool(np.isfinite(m) and m >= 0), "mu", "a finite number >= 0", mu)
        return self._draw("poisson", (m,), size)

    def multivariate_normal(self, mean: ArrayLike, cov: ArrayLike, size: Size = None) -> Any:
        """Multivariate normal vectors with the means ``mean`` (length n) and the
        covariance ``cov`` (an n x n symmetric positive semi-definite matrix): an array of
        shape ``size + (n,)``.

        >>> Generator(3).multivariate_normal([0, 10], [[1, 0.5], [0.5, 2]], size=4).shape
        (4, 2)
        """
        if size is None:
            return self._stream.multivariate_normal(mean, cov, 1)[0]
        shape = _shape(size)
        rows = self._stream.multivariate_normal(mean, cov, math.prod(shape))
        return rows.reshape(shape + (rows.shape[1],))
