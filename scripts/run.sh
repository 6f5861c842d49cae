#!/usr/bin/env bash
# Installs what is needed, builds into build/ and starts the console.
# Arguments go to tesk unchanged, e.g.: bash scripts/run.sh --headless --home ~/tesk /LAN
set -euo pipefail

src=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bash "$src/scripts/install-deps.sh"
bash "$src/scripts/build.sh" build

headless=0
for arg in "$@"; do [[ "$arg" == "--headless" ]] && headless=1; done
if ((headless == 0)) && [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" ]]; then
  echo "run: no screen found (DISPLAY is empty); for the console without windows use" >&2
  echo "run:   bash scripts/run.sh --headless" >&2
fi
exec "$src/build/tesk" "$@"
