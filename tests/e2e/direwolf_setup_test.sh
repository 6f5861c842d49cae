#!/usr/bin/env bash
# End-to-end run of the Setup window's call change against a real Dire Wolf 1.6 in direct mode:
# ":setup txtCallsign=XX8AB" must show the box "New Callsign Entered", the engine must take the
# new call at once (the next Text/data line goes out from XX8AB), and after ":quit" and a new
# start the station must still send from XX8AB, without asking for a call sign.
# Usage: direwolf_setup_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

FIRSTCALL=XX9TK
NEWCALL=XX8AB
out=""
err=""
tesk_pid=""
tesk_status=""




# The log-on of direct mode ends with the raw-frame request ('k'); count them to see a new one.
logons() { grep -cF "datakind = 'k'" "$E2E_DW_LOG"; }
await_logon() {
  local before=$1 i
  for ((i = 0; i < 400; i++)); do
    (($(logons) > before)) && return 0
    kill -0 "$tesk_pid" 2>/dev/null || return 1
    sleep 0.1
  done
  return 1
}

e2e_start_direwolf XX9DW
run_dir="$E2E_TMP/run"
home="$run_dir/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 0

# 1. The first start, with the first call, then the call changed in the Setup window.
e2e_relaunch "$run_dir" first
printf '%s\n' "$FIRSTCALL" >&8
await_logon 0 || e2e_fail_run "tesk never logged on to Dire Wolf"
printf ':to CQ\n:via\nBefore the change\n' >&8
e2e_wait_text "$E2E_DW_LOG" "[0L] $FIRSTCALL>CQ:Before the change" 15 "$tesk_pid" ||
  e2e_fail_run "the first line did not go out from $FIRSTCALL"
printf ':setup txtCallsign=%s\n' "$NEWCALL" >&8
e2e_wait_text "$out" "[New Callsign Entered] New call activated." 15 "$tesk_pid" ||
  e2e_fail_run "no box \"New Callsign Entered\" after the call change"
# The box waits for its answer: an empty line is its OK.
printf '\n' >&8
grep -qF "Please restart TESK and Software Modem." "$out" ||
  e2e_fail_run "the box does not ask to restart TESK and the software modem"
printf 'After the change\n' >&8
e2e_wait_text "$E2E_DW_LOG" "[0L] $NEWCALL>CQ:After the change" 15 "$tesk_pid" ||
  e2e_fail_run "the next Text/data line did not go out from $NEWCALL"
e2e_quit
tr -d '\r' <"$home/tesk.ini" | grep -qxF "$NEWCALL" || e2e_fail_run "tesk.ini does not hold $NEWCALL"

# 2. A new start: no question for the call, and the station sends from the new call.
before=$(logons)
e2e_relaunch "$run_dir" second
await_logon "$before" || e2e_fail_run "the second start never logged on to Dire Wolf"
grep -qF "Your Call Sign" "$out" && e2e_fail_run "the second start asked for the call sign again"
printf 'After the restart\n' >&8
e2e_wait_text "$E2E_DW_LOG" "[0L] $NEWCALL>CQ:After the restart" 15 "$tesk_pid" ||
  e2e_fail_run "after the restart the line did not go out from $NEWCALL"
e2e_quit

echo "direwolf_setup: the call changed from $FIRSTCALL to $NEWCALL on the engine at once," \
  "and kept after a restart"
