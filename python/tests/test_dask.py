"""kornum.dask.describe on a local cluster of two worker processes: the same bits for any
partitioning, the single-process report's order statistics and mode, a lost worker
retried, and clear errors for bad summaries."""

import json
import os
import subprocess
import sys

from fractions import Fraction

import mpmath
import numpy as np
import pytest

import kornum
from conftest import program
from kornum import _kornum
from kornum._description import KEYS

da = pytest.importorskip("dask.array")
distributed = pytest.importorskip("distributed")
import kornum.dask  # noqa: E402

ORDERED = ("count", "maximum", "minimum", "range", "mode", "median", "first_quartile", "third_quartile",
           "interquartile_range")


@pytest.fixture(scope="module")
def client():
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None,
                                  silence_logs=40) as cluster, distributed.Client(cluster) as c:
        yield c


def values_with_repeats(rng, size):
    """Normal values on a grid of eighths (so that values repeat), one of them the most
    frequent."""
    values = np.round(rng.normal(10, 3, size) * 8) / 8
    values[: size // 50] = 11.125
    return values.astype(np.longdouble)


def random_chunks(rng, values):
    """The values shuffled and cut into 1 to 64 chunks, some of them empty."""
    shuffled = rng.permutation(values)
    shards = int(rng.integers(1, 65))
    cuts = np.sort(rng.integers(0, len(values) + 1, shards - 1))
    sizes = np.diff(np.concatenate([[0], cuts, [len(values)]]))
    return da.from_array(shuffled, chunks=(tuple(int(s) for s in sizes),))


def ulps(a, b):
    a, b = np.longdouble(a), np.longdouble(b)
    return 0 if a == b else abs(a - b) / np.spacing(max(abs(a), abs(b)))


def exact_moments(values, population):
    """The moments from exact rational sums, each rounded once (at 40 digits, then to
    long double)."""
    n = len(values)
    xs = [Fraction(*v.as_integer_ratio()) for v in values.astype(float)]
    mean = sum(xs) / n
    d2, d3, d4 = (sum((x - mean) ** k for x in xs) for k in (2, 3, 4))
    mpf = lambda q: mpmath.mpf(q.numerator) / q.denominator  # noqa: E731
    variance = mpf(d2 / (n if population else n - 1))
    sd = mpmath.sqrt(variance)
    if population:
        skew, kurtosis = mpf(d3) / (sd ** 3 * n), mpf(d4) / (sd ** 4 * n) - 3
    else:
        skew = n * mpf(d3) / (sd ** 3 * (n - 1) * (n - 2))
        kurtosis = (n * (n + 1) * mpf(d4) / (sd ** 4 * (n - 1) * (n - 2) * (n - 3))
                    - mpmath.mpf(3 * (n - 1) ** 2) / ((n - 2) * (n - 3)))
    exact = dict(sum=sum(xs), sum_of_squares=sum(x * x for x in xs), mean=mean)
    rounded = {k: np.longdouble(mpmath.nstr(mpf(v), 30)) for k, v in exact.items()}
    for key, value in (("variance", variance), ("standard_deviation", sd), ("skew", skew), ("kurtosis", kurtosis)):
        rounded[key] = np.longdouble(mpmath.nstr(value, 30))
    return rounded


def assert_matches_single_process(sharded, single, exact):
    """Order statistics and mode as the single process; each moment within one unit in
    the last place of the exact one (the single process rounds its sums, so its moments
    are only close)."""
    for key, expected in single.to_dict().items():
        got = getattr(sharded, key)
        if expected is None or key in ORDERED:
            assert got == expected, key
        else:
            assert ulps(got, exact[key]) <= 1, key
            assert abs(got - expected) <= 1e-15 * (1 + abs(expected)), key


@pytest.mark.parametrize("population", [False, True])
def test_every_partitioning_gives_the_same_bits(client, population):
    rng = np.random.default_rng(21)
    values = values_with_repeats(rng, 20000)
    single = kornum.describe(values, population=population)
    exact = exact_moments(values, population)
    reports = set()
    for _ in range(4):
        d = kornum.dask.describe(random_chunks(rng, values), population=population)
        reports.add((d.report(None), d.report(8)))
        assert_matches_single_process(d, single, exact)
    assert len(reports) == 1
    assert single.mode == np.longdouble(11.125)


def test_the_mode_of_many_values_matches_one_process(client):
    """Above the gathering limit the mode passes through the cell filter: planted runs of
    values equal within the tolerance but not equal (the longest across chunks), exact
    repeats, and integers where every value repeats."""
    rng = np.random.default_rng(4)
    n = kornum.dask.GATHER_LIMIT + 40000
    continuous = rng.normal(1000, 7, n).astype(np.longdouble)
    chain = np.longdouble(1003.5) * (1 + np.arange(4, dtype=np.longdouble) * np.longdouble(6e-16))
    pairs = np.repeat(continuous[:3], 2)
    cases = [continuous, np.concatenate([continuous, chain, pairs]), np.concatenate([continuous, pairs]),
             rng.integers(-50, 50, n).astype(np.longdouble)]
    for values in cases:
        single = kornum.describe(values)
        sharded = kornum.dask.describe(random_chunks(rng, values))
        assert (sharded.mode is None) == (single.mode is None)
        assert sharded.mode == single.mode or single.mode is None
    assert kornum.describe(cases[1]).mode == chain[-1]


@pytest.mark.parametrize("values", [[7.0], [1.0, 2.0], [3.0, 1.0, 3.0], [2.0, 2.0, 2.0, 2.0], [1, 2, 3, 4, 4, 5]])
def test_small_samples_give_the_report_of_one_process(client, values):
    array = np.array(values, dtype=np.longdouble)
    for population in (False, True):
        single = kornum.describe(array, population=population)
        sharded = kornum.dask.describe(da.from_array(array, chunks=1), population=population)
        assert sharded.report(4) == single.report(4)
        for key, expected in single.to_dict().items():
            got = getattr(sharded, key)
            if expected is None or key in ORDERED:
                assert got == expected, key
            else:
                assert abs(got - expected) <= 1e-18 * (1 + abs(expected)), key


def test_dataframe_columns_and_parquet_files(client, tmp_path):
    pd = pytest.importorskip("pandas")
    dd = pytest.importorskip("dask.dataframe")
    pq = pytest.importorskip("pyarrow.parquet")
    import pyarrow as pa

    rng = np.random.default_rng(3)
    values = rng.normal(0, 1, 9000)
    expected = kornum.dask.describe(da.from_array(values, chunks=1000)).report(None)
    frame = dd.from_pandas(pd.DataFrame({"x": values}), npartitions=7)
    assert kornum.dask.describe(frame["x"]).report(None) == expected
    assert kornum.dask.describe(frame, column="x").report(None) == expected
    for i, part in enumerate(np.array_split(values, 5)):
        pq.write_table(pa.table({"x": part}), tmp_path / f"part{i}.parquet")
    assert kornum.dask.describe([str(tmp_path / "*.parquet")], column="x").report(None) == expected
    without_mode = kornum.dask.describe(frame["x"], mode=False)
    assert without_mode.mode is None and without_mode.median == kornum.describe(values).median


def _dies_once(marker, values):
    """The values, after ending the worker process the first time it runs."""
    if not os.path.exists(marker):
        open(marker, "w").close()
        os._exit(1)
    return values


def test_a_lost_worker_does_not_change_the_result(client, tmp_path):
    import dask

    rng = np.random.default_rng(7)
    values = values_with_repeats(rng, 6000)
    marker = str(tmp_path / "died")
    parts = [da.from_delayed(dask.delayed(_dies_once)(marker, part), shape=(len(part),), dtype=np.longdouble)
             for part in np.array_split(values, 4)]
    d = kornum.dask.describe(da.concatenate(parts))
    assert os.path.exists(marker)
    assert d.report(None) == kornum.dask.describe(da.from_array(values, chunks=1000)).report(None)


def test_bad_summaries_and_inputs_are_refused():
    good = _kornum.shard_summary(np.array([1.0, 2.0], dtype=np.longdouble))
    with pytest.raises(kornum.MathError, match='^Not a valid shard summary: it does not start with "KNSS"$'):
        _kornum.merge_summaries([b"PK\x03\x04" + good[4:]])
    with pytest.raises(kornum.MathError, match="format version is 7; this library reads version 1"):
        _kornum.merge_summaries([good[:4] + b"\x07\x00" + good[6:]])
    with pytest.raises(kornum.MathError, match="ends early"):
        _kornum.merge_summaries([good[:-1]])
    with pytest.raises(TypeError, match="dask array"):
        kornum.dask.describe(42)
    with pytest.raises(kornum.MathError):
        kornum.dask.describe(da.from_array(np.empty(0, dtype=np.longdouble)))


def _module(*arguments):
    return subprocess.run([sys.executable, "-m", "kornum", "describe", *arguments], capture_output=True, text=True,
                          timeout=120)


def assert_same_output(mine, program_output):
    """The program's lines and order statistics; its moments within rounding of the sums."""
    if mine.startswith("{"):
        mine, theirs = json.loads(mine), json.loads(program_output)
        assert list(mine) == list(theirs)
        pairs = [(key, mine[key], theirs[key]) for key in theirs]
    else:
        lines, theirs = mine.splitlines(), program_output.splitlines()
        assert [line.split("\t")[0] for line in lines] == [line.split("\t")[0] for line in theirs]
        pairs = [(key, a.partition("\t")[2] or None, b.partition("\t")[2] or None)
                 for key, a, b in zip(KEYS, lines, theirs)]
    for key, a, b in pairs:
        if key in ORDERED or a is None or b is None:
            assert a == b, key
        else:
            assert abs(float(a) - float(b)) <= 1e-14 * (1 + abs(float(b))), key


def test_the_module_prints_the_program_report_and_its_errors(tmp_path, kornum_program):
    rng = np.random.default_rng(11)
    files = []
    for i in range(3):
        path = tmp_path / f"part{i}.csv"
        rows = "".join(f"{j},{float(x)!r}\n" for j, x in enumerate(np.round(rng.normal(5, 2, 700) * 4) / 4))
        path.write_text("id,value\n" + rows)
        files.append(str(path))
    options = ["--field", "2", "--delimiter", ",", "--header"]
    for extra in ([], ["--decimals", "6"], ["--json", "--population"]):
        done = _module(*options, *extra, str(tmp_path / "part*.csv"))
        assert done.returncode == 0, done.stderr
        assert_same_output(done.stdout, kornum_program("describe", *options, *extra, *files))
    bad = tmp_path / "bad.csv"
    bad.write_text("id,value\n1,2.5\n2,x7\n")
    done = _module(*options, str(bad))
    expected = subprocess.run([program(), "describe", *options, str(bad)], capture_output=True, text=True)
    assert expected.returncode == 2 and "x7" in expected.stderr
    assert (done.returncode, done.stdout, done.stderr) == (2, "", expected.stderr)
