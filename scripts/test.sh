#!/usr/bin/env bash
# Builds the library and its tests and runs every test: the C++ ones, then the Python
# package's, installed with pip into a fresh virtual environment.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
build=${KORNUM_BUILD_DIR:-build}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKORNUM_BUILD_TESTS=ON "$@"
cmake --build "$build"
ctest --test-dir "$build" --output-on-failure -j 2
KORNUM_BUILD_DIR="$build" bash scripts/test-python.sh
