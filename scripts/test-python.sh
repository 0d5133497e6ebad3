#!/usr/bin/env bash
# Installs the Python package with pip into a fresh virtual environment and runs its
# tests. The build directory of the extension is kept between runs (only what changed is
# rebuilt); the environment itself is made anew each time.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath -m "${KORNUM_BUILD_DIR:-build}")
venv="$build/python-venv"
python3 -m venv --clear "$venv"
export PIP_CONSTRAINT="$PWD/python/constraints.txt" PIP_DISABLE_PIP_VERSION_CHECK=1
"$venv/bin/python" -m pip install --quiet --upgrade pip
"$venv/bin/python" -m pip install --quiet -C build-dir="$build/python-wheel" ".[test]"
# The tests compare with the kornum program where the build has one.
if [ -x "$build/cli/kornum" ]; then export KORNUM_PROGRAM="$build/cli/kornum"; fi
tests="$PWD/python/tests"
cd "$build"  # away from the source folder python/kornum, so that the installed package is imported
"$venv/bin/python" -m pytest -q -p no:cacheprovider "$tests"
