"""What the tests share: the kornum program (for comparing with the command line), when
the build has one, and mpmath at 40 digits."""

import os
import shutil
import subprocess

import mpmath
import pytest

mpmath.mp.dps = 40


def program():
    path = os.environ.get("KORNUM_PROGRAM") or shutil.which("kornum")
    return path if path and os.access(path, os.X_OK) else None


@pytest.fixture
def kornum_program():
    path = program()
    if path is None:
        pytest.skip("the kornum program is not built (set KORNUM_PROGRAM)")

    def run(*arguments, stdin=None):
        done = subprocess.run([path, *arguments], input=stdin, capture_output=True, text=True, timeout=60)
        assert done.returncode == 0, done.stderr
        return done.stdout

    return run
