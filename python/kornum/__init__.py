"""kornum: statistics, distributions and random variates in 80-bit long double.

The library's numbers are ``np.longdouble`` (the x87 80-bit extended format, 64
significant bits): arrays go in and come out as ``np.longdouble``, scalars as
``np.longdouble`` scalars, so that no bit is lost on the way.

- :func:`describe`: the descriptive-statistics report of a sample.
- :mod:`kornum.dist`: nine distribution families with SciPy's method names, the upper
  tails computed from the upper tail itself.
- :mod:`kornum.random`: a :class:`~kornum.random.Generator` that gives the same
  variates as the ``kornum random`` program for the same seed.
- :mod:`kornum.stats`: sample, order and grouped-data statistics and the regression line.
- :mod:`kornum.linalg`: determinant, inverse, rank, row echelon form and product.
- :mod:`kornum.plot`: a sample's histogram and a distribution's curve as SVG, PNG or PDF.

>>> import kornum
>>> print(kornum.dist.Normal().sf(40))
3.655893540915029704e-350
"""

from ._kornum import MathError, __version__
from ._description import Description, describe
from . import dist, linalg, plot, random, stats

__all__ = ["Description", "MathError", "describe", "dist", "linalg", "plot", "random", "stats", "__version__"]
