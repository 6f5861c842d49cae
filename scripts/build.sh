#!/usr/bin/env bash
# Configures and builds TESK with Ninja.
# Usage: scripts/build.sh [builddir] [extra cmake args...]
# builddir defaults to build/ in the source tree; extra args go to the configure step, so a later
# -DCMAKE_BUILD_TYPE=... overrides the default. TESK_JOBS sets the parallel jobs (default 2,
# the size of the machines this runs on).
set -euo pipefail

src=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
builddir=${1:-build}
shift || true
[[ "$builddir" = /* ]] || builddir="$src/$builddir"

cmake -S "$src" -B "$builddir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
cmake --build "$builddir" -j "${TESK_JOBS:-2}"
