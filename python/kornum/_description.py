"""The descriptive-statistics report as a Python object."""

from __future__ import annotations

from typing import Any, Dict, Optional, Union

import numpy as np
from numpy.typing import ArrayLike

from . import _kornum

Number = Optional[Union[np.longdouble, int]]

# The statistics of the report, in its order, named as `kornum describe --json` names them.
KEYS = (
    "count", "maximum", "minimum", "range", "sum", "sum_of_squares", "mean", "mode", "median",
    "variance", "standard_deviation", "kurtosis", "skew", "first_quartile", "third_quartile",
    "interquartile_range",
)


class Description:
    """The descriptive statistics of a sample, as :func:`describe` computes them.

    One attribute per statistic of the report, named as the keys of
    ``kornum describe --json``: ``count`` (an ``int``), ``maximum``, ``minimum``,
    ``range``, ``sum``, ``sum_of_squares``, ``mean``, ``mode``, ``median``, ``variance``,
    ``standard_deviation``, ``kurtosis``, ``skew``, ``first_quartile``,
    ``third_quartile`` and ``interquartile_range`` (``np.longdouble``). A statistic the
    report gives no value for (no mode, the kurtosis of fewer than four values, ...) is
    ``None``.

    >>> d = kornum.describe([2, 4, 4, 5])
    >>> print(d.count, d.mean, d.mode, d.skew is None)
    4 3.75 4.0 False
    >>> print(kornum.describe([7]).variance)
    None
    """

    __slots__ = ("_summary", "_values", "population") + KEYS

    def __init__(self, summary: Any, population: bool) -> None:
        self._summary = summary
        self.population = population
        self._values: Dict[str, Number] = {}
        for key, _caption, value, integral in summary.entries():
            self._values[key] = int(value) if integral else value
            object.__setattr__(self, key, self._values[key])

    def to_dict(self) -> Dict[str, Number]:
        """The statistics by name, in the report's order.

        >>> kornum.describe([1, 2, 3]).to_dict()["count"]
        3
        """
        return dict(self._values)

    def report(self, decimals: Optional[int] = 4) -> str:
        """The report as ``kornum describe`` prints it for the same values.

        With ``decimals`` (0 to 255) the values have that many fixed decimals, as
        ``kornum describe --decimals N`` prints them; with ``None`` each is in the
        shortest form that reads back as the same long double, as ``kornum describe``
        prints them by default.

        >>> kornum.describe([1, 2, 3, 4]).report(decimals=None).splitlines()[6:9]
        ['Mean:\\t2.5', 'No Modal Value', 'Median:\\t2.5']
        >>> kornum.describe([1, 2, 3, 4]).report().splitlines()[6]
        'Mean:\\t2.5000'
        """
        if decimals is not None and (isinstance(decimals, bool) or not isinstance(decimals, (int, np.integer))):
            raise TypeError(f"decimals must be an int or None, not {type(decimals).__name__}")
        return self._summary.report(None if decimals is None else int(decimals))

    def __repr__(self) -> str:
        shown = ", ".join(f"{key}={'None' if value is None else _kornum.number_text(value)}"
                          for key, value in self._values.items())
        return f"Description({shown})"

    def __setattr__(self, name: str, value: Any) -> None:
        if name in KEYS:
            raise AttributeError(f"Description.{name} is read-only")
        object.__setattr__(self, name, value)


def describe(values: ArrayLike, *, population: bool = False) -> Description:
    """The descriptive statistics of a sample (or, with ``population=True``, of a whole
    population): count, extremes, range, sums, mean, mode, median, variance and standard
    deviation, kurtosis, skew and quartiles, as the ``kornum describe`` program reports
    them.

    ``values`` is any 1-D array-like of real numbers, converted once to ``np.longdouble``;
    a C-contiguous ``np.longdouble`` array is read in place, without a copy. An empty
    sample raises :class:`kornum.MathError`.

    >>> d = kornum.describe(np.array([3.0, 1.0, 4.0, 1.0, 5.0], dtype=np.longdouble))
    >>> print(d.median, d.mode, d.standard_deviation)
    3.0 1.0 1.7888543819998317571
    """
    if not isinstance(population, (bool, np.bool_)):
        raise TypeError(f"population must be a bool, not {type(population).__name__}")
    return Description(_kornum.describe(values, population=bool(population)), bool(population))
