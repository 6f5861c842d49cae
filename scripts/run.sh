#!/usr/bin/env bash
# Installs what is needed, builds into build/ and starts the console.
# Arguments go to tesk unchanged, e.g.: bash scripts/run.sh --headless --home ~/tesk /LAN
# Before the start it knocks at the packet engine's address from the program folder's
# TESKLanMode.ini (127.0.0.1:8000 when there is none). When nothing answers there, the console
# starts with --demo, against its simulated satellite pass, so a first run always shows traffic.
set -euo pipefail

src=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bash "$src/scripts/install-deps.sh"
bash "$src/scripts/build.sh" build

headless=0
demo=0
home=${TESK_HOME:-${XDG_DATA_HOME:-$HOME/.local/share}/tesk}
args=("$@")
for ((i = 0; i < ${#args[@]}; i++)); do
  case "${args[i]}" in
    --headless) headless=1 ;;
    --demo) demo=1 ;;
    --home) home=${args[i + 1]:-$home} ;;
    --home=*) home=${args[i]#--home=} ;;
  esac
done
if ((headless == 0)) && [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" ]]; then
  echo "run: no screen found (DISPLAY is empty); for the console without windows use" >&2
  echo "run:   bash scripts/run.sh --headless" >&2
fi

# The engine's address as the LAN settings file keeps it: host on line 4, port on line 12.
host=127.0.0.1
port=8000
ini="$home/TESKLanMode.ini"
if [[ -r "$ini" ]]; then
  h=$(sed -n '4p' "$ini" | tr -d '\r' | xargs || true)
  p=$(sed -n '12p' "$ini" | tr -d '\r' | xargs || true)
  [[ -n "$h" ]] && host=$h
  [[ "$p" =~ ^[0-9]+$ ]] && ((p > 0)) && port=$p
fi
if ((demo == 0)); then
  if timeout 2 bash -c "exec 3<>/dev/tcp/$host/$port" 2>/dev/null; then
    echo "run: a packet engine answers on $host:$port" >&2
  else
    echo "run: no packet engine answers on $host:$port; starting the simulated pass (--demo)" >&2
    args=(--demo "${args[@]}")
  fi
fi
exec "$src/build/tesk" "${args[@]}"
