"""Pictures of samples and distributions, written as SVG, PNG or PDF files.

The files are those of the ``kornum`` program: :func:`histogram` draws what ``kornum
describe --plot`` draws for the same values, :func:`distribution` what ``kornum dist
FAMILY plot`` draws, byte for byte. The format is the path's extension (``.svg``,
``.png`` or ``.pdf``); the picture is drawn whole before the file is opened, a file that
cannot be written raises :class:`OSError` and is not left half written, and the drawing
runs without the interpreter lock.

>>> import os, tempfile
>>> from kornum.dist import Normal
>>> folder = tempfile.mkdtemp()
>>> kornum.plot.distribution(Normal(0, 1), -40, 40, os.path.join(folder, "tails.png"), log=True)
>>> open(os.path.join(folder, "tails.png"), "rb").read(4)
b'\\x89PNG'
"""

from __future__ import annotations

import operator
import os
from typing import Optional, Union

from numpy.typing import ArrayLike

from . import _kornum
from .dist import _Family

__all__ = ["histogram", "distribution"]

PathLike = Union[str, "os.PathLike[str]"]


def _path(path: PathLike) -> str:
    if not isinstance(path, (str, os.PathLike)):
        raise TypeError(f"path must be a str or an os.PathLike, not {type(path).__name__}")
    text = os.fspath(path)
    if not isinstance(text, str):
        raise TypeError("path must name the file as text, not bytes")
    return text


def _flag(value: bool, name: str) -> bool:
    if not isinstance(value, bool):
        raise TypeError(f"{name} must be True or False, not {type(value).__name__}")
    return value


def histogram(values: ArrayLike, path: PathLike, *, bins: Optional[int] = None, population: bool = False) -> None:
    """Draws the histogram of a 1-D sample with the normal density of its mean and
    standard deviation over it, scaled to the counts, into the file ``path``.

    ``bins`` is the number of bins, 1 to 10000; by default the Freedman-Diaconis rule
    chooses it (at most 200). ``population=True`` takes the population's standard
    deviation, as ``kornum describe --population --plot``. An empty sample raises
    :class:`kornum.MathError`.

    >>> import os, tempfile
    >>> path = os.path.join(tempfile.mkdtemp(), "sample.svg")
    >>> kornum.plot.histogram([1, 2, 2, 3, 3, 3, 4, 4, 5, 10], path, bins=3)
    >>> "counts, 3 bins" in open(path).read()
    True
    """
    if bins is not None:
        if isinstance(bins, bool):
            raise TypeError("bins must be a whole number, not bool")
        try:
            bins = operator.index(bins)
        except TypeError:
            raise TypeError(f"bins must be a whole number, not {type(bins).__name__}") from None
    _kornum.plot_histogram(values, _path(path), bins=bins, population=_flag(population, "population"))


def distribution(family: _Family, xlo: float, xhi: float, path: PathLike, *, cdf: bool = False,
                 log: bool = False) -> None:
    """Draws a distribution of :mod:`kornum.dist` over [``xlo``, ``xhi``] into the file
    ``path``: its density (the binomial and Poisson probabilities as bars, for counts up
    to 100000), or with ``cdf=True`` its distribution function; ``log=True`` gives a
    logarithmic value axis, on which the far tails show. The title names the family and
    its parameters.

    >>> import os, tempfile
    >>> from kornum.dist import Binomial
    >>> path = os.path.join(tempfile.mkdtemp(), "binomial.svg")
    >>> kornum.plot.distribution(Binomial(10, 0.3), 0, 10, path)
    >>> open(path).read().count("<rect") > 10
    True
    """
    if not isinstance(family, _Family):
        raise TypeError(f"family must be a distribution of kornum.dist such as Normal(0, 1), not {type(family).__name__}")
    _kornum.plot_distribution(family._family, list(family._drawn_parameters()), xlo, xhi, _path(path),
                              cdf=_flag(cdf, "cdf"), log=_flag(log, "log"))
