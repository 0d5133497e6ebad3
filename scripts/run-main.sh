#!/usr/bin/env bash
# Builds the library and the kornum program and runs the main job: the descriptive
# statistics of the example data (a century of annual Nile flows).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build --target kornum
./build/cli/kornum describe examples/nile-flow.txt
