#!/usr/bin/env bash
# End-to-end run of the demo: `tesk --demo --headless` in a fresh program folder starts its
# simulated engine on 127.0.0.1 and a free port, and frames repeated by the simulated satellite
# (a Via list with a "*") must appear on standard output within 30 seconds. The LAN settings
# file must not hold the demo engine's port afterwards: the address is for this run only. The
# simulated engine's port line, asked after the log-on, must be on standard output too.
# Usage: demo_headless_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

home="$E2E_TMP/home"
out="$E2E_TMP/stdout"
err="$E2E_TMP/stderr"
# The first run asks for the call sign; standard input stays open so that the end of input
# never stands in for the answers that follow.
# A fifo held open by this script is that input; it closes when the script ends.
fifo="$E2E_TMP/stdin"
mkfifo "$fifo"
"$tesk" --demo --headless --home "$home" <"$fifo" >"$out" 2>"$err" &
E2E_PIDS+=("$!")
exec 8>"$fifo"
printf 'XX9TK\n' >&8

start=$SECONDS
found=""
while ((SECONDS - start < 30)); do
  found=$(grep -m1 -E '^Fm [A-Z0-9-]+ To [A-Z0-9-]+ Via [A-Z0-9,-]*\*' "$out")
  [[ -n "$found" ]] && break
  sleep 0.5
done
[[ -n "$found" ]] || {
  cat "$err" >&2
  e2e_fail "no repeated frame on standard output within 30 s"
}
e2e_log "first repeated frame after $((SECONDS - start)) s: $found"
port_line=$(grep -m1 -E '^Port1 ' "$out")
[[ -n "$port_line" ]] || e2e_fail "no \"Port1 ...\" line of the simulated engine on standard output"

port=$(sed -n 's/.*simulated satellite pass on 127\.0\.0\.1:\([0-9]*\).*/\1/p' "$err" | head -1)
[[ -n "$port" ]] || e2e_fail "the demo did not say where its engine listens"
e2e_stop "${E2E_PIDS[0]}" 5
E2E_PIDS=()
if grep -qs "$port" "$home/TESKLanMode.ini"; then
  e2e_fail "the demo engine's port was written to the LAN settings"
fi
echo "PASS: demo repeated frames and the port line \"$port_line\" on standard output (engine port $port)"
