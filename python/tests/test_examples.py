"""Every example in the package's documentation runs as written."""

import doctest

import numpy as np
import pytest

import kornum
from kornum import _description, dist, linalg, plot, random, stats


@pytest.mark.parametrize("module", [kornum, _description, dist, linalg, plot, random, stats], ids=lambda m: m.__name__)
def test_examples(module):
    result = doctest.testmod(module, extraglobs={"np": np, "kornum": kornum}, optionflags=doctest.NORMALIZE_WHITESPACE)
    assert result.attempted > 0 and result.failed == 0
