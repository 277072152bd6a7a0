#!/usr/bin/env bash
# Configures and builds Kelvora in build/ (the program lands in build/bin with a data store
# beside it, made fresh only when there is none).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j "$(nproc)"
