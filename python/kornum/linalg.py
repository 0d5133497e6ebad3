"""Linear algebra on 2-D array-likes in 80-bit long double: Gaussian elimination with
partial pivoting, results as ``np.longdouble`` arrays.

>>> from kornum import linalg
>>> print(linalg.det([[2, 1], [1, 3]]))
5.0
"""

from __future__ import annotations

import numpy as np
from numpy.typing import ArrayLike

from . import _kornum

__all__ = ["det", "inv", "rank", "echelon", "matmul"]


def det(a: ArrayLike) -> np.longdouble:
    """The determinant of a square matrix.

    >>> print(det([[2, 0], [0, 3]]))
    6.0
    """
    return _kornum.det(a)


def inv(a: ArrayLike) -> np.ndarray:
    """The inverse of a square matrix, by Gauss-Jordan elimination. A singular matrix
    raises ``numpy.linalg.LinAlgError``.

    >>> print(inv([[2, 0], [0, 4]]))
    [[0.5  0.  ]
     [0.   0.25]]
    """
    inverse = _kornum.inv(a)
    if inverse is None:
        raise np.linalg.LinAlgError("Singular matrix")
    return inverse


def rank(a: ArrayLike) -> int:
    """The rank: the non-zero rows of the row echelon form.

    >>> rank([[1, 2], [2, 4]])
    1
    """
    return int(_kornum.rank(a))


def echelon(a: ArrayLike) -> np.ndarray:
    """The row echelon form (by partial pivoting), each pivot scaled to 1.

    >>> print(echelon([[0, 1], [2, 4]]))
    [[1. 2.]
     [0. 1.]]
    """
    return _kornum.echelon(a)


def matmul(a: ArrayLike, b: ArrayLike) -> np.ndarray:
    """The matrix product a b.

    >>> print(matmul([[1, 2], [3, 4]], [[5], [6]]))
    [[17.]
     [39.]]
    """
    return _kornum.matmul(a, b)
