#!/usr/bin/env bash
# Installs what is needed, builds into build/ and runs every test (unit, view and end-to-end).
# The exit code is ctest's: non-zero when anything failed or when no test ran at all.
set -euo pipefail

src=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bash "$src/scripts/install-deps.sh"
bash "$src/scripts/build.sh" build "$@"
ctest --test-dir "$src/build" --output-on-failure --no-tests=error -j "${TESK_JOBS:-2}" </dev/null
