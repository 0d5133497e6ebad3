"""kornum.plot writes the files of the kornum program, checks its arguments, and leaves no
file behind when it fails."""

import os
import threading
from pathlib import Path

import numpy as np
import pytest

import kornum
from kornum.dist import Beta, Binomial, ChiSquare, Normal, Poisson

NILE = Path(__file__).resolve().parents[2] / "examples" / "nile-flow.txt"


@pytest.mark.parametrize("extension", [".svg", ".png"])
def test_histogram_is_the_command_lines(kornum_program, tmp_path, extension):
    rng = np.random.default_rng(23)
    samples = [np.loadtxt(NILE), rng.normal(1e6, 3, 1001), np.array([2.0, 2.0, 7.5]), np.array([4.25])]
    for i, values in enumerate(samples):
        data = tmp_path / f"values{i}.txt"
        data.write_text("\n".join(str(np.longdouble(v)) for v in values))  # reads back exactly
        for options, flags in [({}, []), ({"bins": 7}, ["--bins", "7"]), ({"population": True}, ["--population"])]:
            mine, theirs = tmp_path / f"mine{extension}", tmp_path / f"theirs{extension}"
            kornum.plot.histogram(values, mine, **options)
            kornum_program("describe", *flags, "--plot", str(theirs), str(data))
            assert mine.read_bytes() == theirs.read_bytes(), (i, options)


@pytest.mark.parametrize("extension", [".svg", ".png"])
def test_distribution_is_the_command_lines(kornum_program, tmp_path, extension):
    cases = [
        (Normal(0, 1), -40, 40, {"log": True}, ["normal", "-40", "40", "0", "1", "--log"]),
        (ChiSquare(5), 0, 20, {"cdf": True}, ["chisq", "0", "20", "5", "--cdf"]),
        (Beta(2, 3), 0, 1, {}, ["beta", "0", "1", "2", "3"]),
        (Beta(2, 3, lo=10, hi=20), 10, 20, {}, ["beta", "10", "20", "2", "3", "10", "20"]),
        (Binomial(30, np.longdouble("0.3")), 0, 30, {}, ["binomial", "0", "30", "30", "0.3"]),  # 0.3 in 80 bits
        (Poisson(4.5), 0, 15, {"cdf": True, "log": True}, ["poisson", "0", "15", "4.5", "--cdf", "--log"]),
    ]
    for family, xlo, xhi, options, words in cases:
        mine, theirs = tmp_path / f"mine{extension}", tmp_path / f"theirs{extension}"
        kornum.plot.distribution(family, xlo, xhi, mine, **options)
        name, *rest = words
        kornum_program("dist", name, "plot", *rest, "-o", str(theirs))
        assert mine.read_bytes() == theirs.read_bytes(), words


def test_every_format_is_written(tmp_path):
    signatures = {".svg": b"<?xml", ".png": b"\x89PNG\r\n\x1a\n", ".pdf": b"%PDF-"}
    for extension, signature in signatures.items():
        kornum.plot.histogram([1, 2, 2, 3], tmp_path / f"h{extension}")
        kornum.plot.distribution(Normal(), -3, 3, str(tmp_path / f"d{extension}"))
        for stem in "hd":
            assert (tmp_path / f"{stem}{extension}").read_bytes().startswith(signature)


def test_bad_arguments_name_themselves_and_leave_no_file(tmp_path):
    target = tmp_path / "out.svg"
    failures = [
        (ValueError, "path", lambda: kornum.plot.histogram([1, 2], tmp_path / "out.jpg")),
        (TypeError, "path", lambda: kornum.plot.histogram([1, 2], 42)),
        (ValueError, "bins", lambda: kornum.plot.histogram([1, 2], target, bins=0)),
        (ValueError, "bins", lambda: kornum.plot.histogram([1, 2], target, bins=10001)),
        (TypeError, "bins", lambda: kornum.plot.histogram([1, 2], target, bins=2.5)),
        (TypeError, "population", lambda: kornum.plot.histogram([1, 2], target, population="yes")),
        (ValueError, "values", lambda: kornum.plot.histogram([[1, 2], [3, 4]], target)),
        (TypeError, "values", lambda: kornum.plot.histogram(["a"], target)),
        (TypeError, "family", lambda: kornum.plot.distribution("normal", 0, 1, target)),
        (ValueError, "family", lambda: kornum.plot.distribution(Normal([0, 1], 1), 0, 1, target)),
        (ValueError, "xlo", lambda: kornum.plot.distribution(Normal(), -np.inf, 1, target)),
        (ValueError, "xhi", lambda: kornum.plot.distribution(Normal(), 1, 1, target)),
        (ValueError, "xhi", lambda: kornum.plot.distribution(Normal(), 0, np.nan, target)),
        (TypeError, "cdf", lambda: kornum.plot.distribution(Normal(), 0, 1, target, cdf=1)),
    ]
    for error, name, call in failures:
        with pytest.raises(error, match=name):
            call()
    with pytest.raises(kornum.MathError) as empty:
        kornum.plot.histogram([], target)
    assert empty.value.id == "rsVectorIsEmpty"
    with pytest.raises(kornum.MathError, match="at most 100000 counts"):
        kornum.plot.distribution(Poisson(3), 0, 200000, target)
    assert not target.exists()


def test_a_file_that_cannot_be_written_raises_oserror(tmp_path):
    missing = tmp_path / "no such folder" / "h.png"
    with pytest.raises(FileNotFoundError) as error:
        kornum.plot.histogram([1, 2, 3], missing)
    assert error.value.filename == str(missing)
    assert not missing.parent.exists()


def test_threads_draw_at_once_and_alike(tmp_path):
    # The drawing runs without the interpreter lock: four threads at once give four equal files.
    values = np.random.default_rng(1).gamma(2.0, size=20000)
    paths = [tmp_path / f"h{i}.png" for i in range(4)]
    threads = [threading.Thread(target=kornum.plot.histogram, args=(values, path)) for path in paths]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    contents = {path.read_bytes() for path in paths}
    assert len(contents) == 1 and os.path.getsize(paths[0]) > 0
