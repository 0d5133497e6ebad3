#!/usr/bin/env bash
# Builds the library and runs the main job.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build --target kornum_base_services
./build/examples/kornum_base_services
