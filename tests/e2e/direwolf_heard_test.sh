#!/usr/bin/env bash
# End-to-end run of the stations heard and the own digipeats against a real Dire Wolf 1.6 in
# direct mode: the console runs headless on a terminal (so its Monitor lines carry their
# colours), hears its own frames repeated by RS0ISS among other stations' frames, and must paint
# the own digipeats in the digipeat colour and count them, leave the other frames in the header
# colour, and enter the other stations (never the digipeater) in the MHeard list.
# Usage: direwolf_heard_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
command -v script >/dev/null || e2e_fail "script (util-linux) is needed for a terminal"
e2e_init

MYCALL=XX9TK
LINES=(
  "XX9TK>CQ,RS0ISS*:Own frame through the ISS"
  "DL1XYZ-7>CQ,RS0ISS*:Another station via the ISS"
  "PA3ABC>APRS,RS0ISS*:=5213.12N/00521.34E-Not ours"
  "XX9TK>CQ,RS0ISS*:Second own frame"
)
OWN_HEADER="Fm XX9TK To CQ Via RS0ISS*"
# [DigiColor] at its factory value, as the terminal escape gives it.
DIGI_ESC="38;2;255;128;64m"
e2e_make_wavs "${LINES[@]}"
e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"

home="$E2E_TMP/home"
mkdir -p "$home" "$E2E_TMP/config" "$E2E_TMP/data" "$E2E_TMP/cache"
e2e_write_lan_ini "$home" 0

printf '%s\n' "$MYCALL" >"$E2E_TMP/stdin.txt"
out="$E2E_TMP/tesk.out"
err="$E2E_TMP/tesk.err"
# The console's standard output is the terminal that script makes; its input is the file.
cmd="cd '$E2E_TMP' && XDG_CONFIG_HOME='$E2E_TMP/config' XDG_DATA_HOME='$E2E_TMP/data'"
cmd+=" XDG_CACHE_HOME='$E2E_TMP/cache' QT_QPA_PLATFORM=offscreen"
cmd+=" exec '$tesk' --headless --home '$home' <'$E2E_TMP/stdin.txt' 2>'$err'"
(exec script -qefc "$cmd" /dev/null </dev/null >"$out" 2>&1 7>&-) &
script_pid=$!
E2E_PIDS+=("$script_pid")
tesk_pid=""
for ((i = 0; i < 100; i++)); do
  tesk_pid=$(pgrep -P "$script_pid" | head -n 1)
  [[ -n "$tesk_pid" ]] && break
  sleep 0.1
done
[[ -n "$tesk_pid" ]] || e2e_fail "tesk did not start under script"

report() {
  e2e_show "$out"
  e2e_show "$err"
  e2e_show "$E2E_DW_LOG"
}

if ! e2e_wait_text "$E2E_DW_LOG" "datakind = 'k'" 40 "$tesk_pid"; then
  kill -TERM "$tesk_pid" 2>/dev/null
  e2e_fail "tesk never completed its log-on with Dire Wolf (no 'k' frame)"$'\n'"$(report)"
fi

E2E_FEED_GAP=1 e2e_feed "${E2E_WAVS[@]}"
head -c 88200 /dev/zero >&"$E2E_FEED_FD" || e2e_fail "could not feed silence to Dire Wolf"
last_info=$(e2e_info_of "${LINES[3]}")
e2e_wait_text "$out" "$last_info" 20 "$tesk_pid"
sleep 1
kill -TERM "$tesk_pid" 2>/dev/null
e2e_await_tesk_end 15 || e2e_fail "tesk did not end within 15 s of SIGTERM"$'\n'"$(report)"
wait "$script_pid" 2>/dev/null
E2E_PIDS=()

failures=()
for line in "${LINES[@]}"; do
  grep -qF -- "$(e2e_info_of "$line")" "$out" || failures+=("the frame \"$line\" was not shown")
done
painted=$(grep -cF -- "${DIGI_ESC}${OWN_HEADER}" "$out")
((painted == 2)) || failures+=("$painted own headers painted in [DigiColor], expected 2")
others=$(grep -F -- "$DIGI_ESC" "$out" | grep -vcF -- "$OWN_HEADER")
((others == 0)) || failures+=("$others other lines painted in [DigiColor]")
grep -qF "Digipeated: 2" "$out" || failures+=("the digipeated total did not reach 2")
grep -qF "Digipeated: 3" "$out" && failures+=("a frame of another station was counted")
for call in DL1XYZ-7 PA3ABC; do
  grep -qE "MHeard [0-9]+: ${call}"$'\r'"?\$" "$out" || failures+=("$call is not in the MHeard list")
done
grep -qE "MHeard [0-9]+: RS0ISS" "$out" && failures+=("the digipeater entered the MHeard list")
if ((${#failures[@]})); then
  e2e_fail "$(printf '%s\n' "${failures[@]}")"$'\n'"$(report)"
fi
echo "direwolf_heard: 2 own digipeats painted and counted, the other stations' not;" \
  "DL1XYZ-7 and PA3ABC in the MHeard list, RS0ISS not"
