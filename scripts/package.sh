#!/usr/bin/env bash
# Builds the Debian package kelvora_<version>_amd64.deb in build-package/ (a release build
# without the tests) and prints its path.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B build-package -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
    "${launcher[@]}"
cmake --build build-package -j "$(nproc)"
(cd build-package && cpack -G DEB >/dev/null)
ls "$PWD"/build-package/kelvora_*_amd64.deb
