#!/usr/bin/env bash
# Installs what is missing, builds, and starts Kelvora with its data store beside it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
exec build/bin/kelvora "$@"
