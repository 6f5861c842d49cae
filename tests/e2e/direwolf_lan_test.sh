#!/usr/bin/env bash
# End-to-end run of the LAN-mode link against a real Dire Wolf: the console, started headless in
# a fresh program folder with /LAN, must connect to the engine's AGW port on 127.0.0.1, turn
# monitoring on, and show every frame the engine hears from the fed audio in its Monitor.
# Usage: direwolf_lan_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

MYCALL=XX9TK
LINES=(
  "XX9TK>CQ,RS0ISS*,ARISS:Hello from the e2e"
  "PA3ABC>APRS,ARISS:=5213.12N/00521.34E-Test"
  "DL1XYZ-7>CQ,RS0ISS*:Second station via the ISS"
)
e2e_make_wavs "${LINES[@]}"
e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"

# A fresh program folder whose LAN settings point at that engine: 30 lines, CR LF.
home="$E2E_TMP/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 1

# The first run asks for the call sign on standard input; after that, end of input means the
# default answer to any question.
printf '%s\n' "$MYCALL" >"$E2E_TMP/stdin.txt"
started=$SECONDS
e2e_launch_tesk "$E2E_TMP" "$E2E_TMP/stdin.txt" /LAN

report() {
  echo "tesk exit status: ${tesk_status:-still running}"
  e2e_show "$out"
  e2e_show "$err"
  echo "Dire Wolf sent $(grep -c 'Monitored Unproto Information to AGWPE client' "$E2E_DW_LOG") monitor frames to clients"
  e2e_show "$E2E_DW_LOG"
}

# Feed only once the console has asked for monitor frames: earlier ones would not reach it.
if ! e2e_wait_text "$E2E_DW_LOG" "datakind = 'm'" 40 "$tesk_pid"; then
  e2e_stop "$tesk_pid" 10
  tesk_status=$?
  e2e_fail "tesk never asked Dire Wolf for monitor frames (no 'm' frame)"$'\n'"$(report)"
fi
while ((SECONDS - started < 3)); do sleep 0.2; done
sleep 1
e2e_feed "${E2E_WAVS[@]}"
sleep 4

kill -0 "$tesk_pid" 2>/dev/null || {
  wait "$tesk_pid"
  tesk_status=$?
  e2e_fail "tesk ended by itself before SIGTERM"$'\n'"$(report)"
}
kill -TERM "$tesk_pid"
e2e_await_tesk_end 15 || e2e_fail "tesk did not end within 15 s of SIGTERM"$'\n'"$(report)"

failures=()
((tesk_status < 128)) || failures+=("tesk was ended by signal $((tesk_status - 128)) instead of shutting down")
grep -qF "Connected to Server 127.0.0.1" "$out" || failures+=("no \"Connected to Server 127.0.0.1\" in the output")
for line in "${LINES[@]}"; do
  info=$(e2e_info_of "$line")
  grep -qF -- "$info" "$out" || failures+=("the frame \"$line\" was not shown (no \"$info\" in the output)")
done
if ((${#failures[@]})); then
  e2e_fail "$(printf '%s\n' "${failures[@]}")"$'\n'"$(report)"
fi
echo "direwolf_lan: tesk connected to Dire Wolf on port $E2E_AGW_PORT and showed ${#LINES[@]} frames"
