#!/usr/bin/env bash
# Counts non-blank lines of C++ (.cpp and .h) in the tests against the product code, and their
# ratio: tests are kept to roughly a quarter to a third of the code.
set -euo pipefail
cd "$(dirname "$0")/.."
count() { find "$@" \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 cat | grep -cv '^\s*$'; }
code=$(count src app tools)
tests=$(count tests)
echo "code:  $code"
echo "tests: $tests"
awk -v t="$tests" -v c="$code" 'BEGIN { printf "ratio: %.2f\n", t / c }'
