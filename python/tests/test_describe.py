from pathlib import Path

import numpy as np
import pytest

import kornum
from kornum import _kornum

NILE = Path(__file__).resolve().parents[2] / "examples" / "nile-flow.txt"


def test_statistics_of_a_small_sample_by_hand():
    # 2, 4, 4, 4, 5, 5, 7, 9: sum 40, squares 232, deviations' squares 32, fourth powers 356
    d = kornum.describe([2, 4, 4, 4, 5, 5, 7, 9])
    assert d.count == 8 and isinstance(d.count, int)
    assert (d.minimum, d.maximum, d.range, d.sum, d.sum_of_squares) == (2, 9, 7, 40, 232)
    assert d.mean == 5 and d.mode == 4 and d.median == 4.5
    assert d.variance == np.longdouble(32) / 7
    assert type(d.mean) is np.longdouble
    p = kornum.describe([2, 4, 4, 4, 5, 5, 7, 9], population=True)
    assert p.variance == 4 and p.standard_deviation == 2
    assert p.kurtosis == np.longdouble(356) / (8 * 16) - 3
    assert list(d.to_dict()) == ["count", "maximum", "minimum", "range", "sum", "sum_of_squares", "mean", "mode",
                                 "median", "variance", "standard_deviation", "kurtosis", "skew", "first_quartile",
                                 "third_quartile", "interquartile_range"]


def test_missing_statistics_are_none():
    one = kornum.describe([3.5])
    assert one.variance is None and one.standard_deviation is None and one.skew is None and one.kurtosis is None
    assert kornum.describe([1, 2, 3]).mode is None
    flat = kornum.describe([5, 5, 5, 5])
    assert flat.skew is None and flat.kurtosis is None
    assert "mode=None" in repr(kornum.describe([1, 2, 3]))


@pytest.mark.parametrize("population", [False, True])
def test_report_is_the_command_lines(kornum_program, population, tmp_path):
    rng = np.random.default_rng(5)
    samples = [np.loadtxt(NILE), rng.normal(1e6, 3, 1001), np.array([2.0, 2.0, 7.5]), np.arange(10.0)]
    flags = ["--population"] if population else []
    for values in samples:
        path = tmp_path / "values.txt"
        path.write_text("\n".join(str(np.longdouble(v)) for v in values))  # reads back exactly
        d = kornum.describe(values, population=population)
        assert d.report(decimals=None) == kornum_program("describe", *flags, str(path))
        assert d.report() == kornum_program("describe", "--decimals", "4", *flags, str(path))
        assert d.report(decimals=0) == kornum_program("describe", "--decimals", "0", *flags, str(path))


def test_longdouble_arrays_are_read_in_place():
    values = np.linspace(0, 1, 1000, dtype=np.longdouble)
    read = _kornum.as_floats(values)
    assert read is values
    assert read.__array_interface__["data"][0] == values.__array_interface__["data"][0]
    # Anything else is converted once, exactly.
    doubles = np.linspace(0, 1, 1000)
    converted = _kornum.as_floats(doubles)
    assert converted.dtype == np.longdouble and not np.shares_memory(converted, doubles)
    assert np.array_equal(converted, doubles.astype(np.longdouble))
    assert not np.shares_memory(_kornum.as_floats(values[::2]), values)  # strided: one copy
    # 64 bits survive: 1 + 2^-63 is not a double.
    tiny = np.longdouble(1) + np.longdouble(2) ** -63
    assert kornum.describe(np.array([tiny, tiny], dtype=np.longdouble)).mean == tiny


def test_bad_input_is_refused_with_a_named_argument():
    with pytest.raises(kornum.MathError) as empty:
        kornum.describe([])
    assert empty.value.id == "rsVectorIsEmpty" and isinstance(empty.value, ArithmeticError)
    with pytest.raises(ValueError, match="values must be one-dimensional"):
        kornum.describe([[1, 2], [3, 4]])
    with pytest.raises(TypeError, match="values"):
        kornum.describe("123")
    with pytest.raises(TypeError, match="values"):
        kornum.describe(None)
    with pytest.raises(TypeError, match="values"):
        kornum.describe([1, "a"])
    with pytest.raises(TypeError, match="values"):
        kornum.describe([1 + 2j])
    with pytest.raises(ValueError, match="values"):
        kornum.describe([[1], [2, 3]])
    with pytest.raises(ValueError, match="decimals"):
        kornum.describe([1.0]).report(decimals=256)
