#!/usr/bin/env bash
# End-to-end run of the APRS position against a real Dire Wolf 1.6 in direct mode (the factory
# mode), path To APRS Via ARISS. The console, started headless in a fresh program folder, is given
# a position on its input (50 53 25 N, 004 40 50 E, the House symbol "/-"), confirms it, and sends
# it from the APRS comment field once plain and once compressed. Dire Wolf must log each as a
# frame it sends and report each back into the console's Monitor. Dire Wolf's own decode_aprs
# must read the plain frame as 50 53.25 N / 004 40.50 E and the compressed one as the same digits
# read as seconds (50 53.4167 N / 004 40.8331 E), both with the symbol named "House".
# Usage: direwolf_aprs_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init
command -v decode_aprs >/dev/null || e2e_fail "decode_aprs (Dire Wolf's tools) is not installed"

MYCALL=XX9TK
PATH_SENT="$MYCALL>APRS,ARISS"
PLAIN="=5053.25N/00440.50E-e2e plain"
COMPRESSED='=/4g%<O^\E-  Be2e compressed'

# The info of the frame Dire Wolf logs as sent with the given start of its info.
sent_info() {
  local line
  line=$(grep -m1 -F -- "[0L] $PATH_SENT:$1" "$E2E_DW_LOG") || return 1
  printf '%s' "${line#*:}"
}
# What decode_aprs makes of a frame from the own call with INFO, without its colour codes.
decoded() { printf '%s\n' "$MYCALL>APRS:$1" | decode_aprs 2>&1 | sed 's/\x1b\[[0-9;]*[A-Za-z]//g'; }

e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"
home="$E2E_TMP/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 0
fifo="$E2E_TMP/stdin"
mkfifo "$fifo" || e2e_fail "no fifo"
e2e_launch_tesk "$E2E_TMP" "$fifo"
exec 8>"$fifo"
printf '%s\n' "$MYCALL" >&8
e2e_wait_text "$E2E_DW_LOG" "datakind = 'k'" 40 "$tesk_pid" ||
  e2e_fail_run "tesk never completed its log-on with Dire Wolf (no 'k' frame)"

e2e_type_and_wait ":to APRS" "$out" "Path: To APRS"
e2e_type_and_wait ":via ARISS" "$out" "Path: To APRS Via ARISS"
# A new position asks "Is this correct?"; the next line answers it.
printf '%s\n' ":position 50 53 25 N 004 40 50 E /- plain" >&8
e2e_type_and_wait "Y" "$out" "[APRS] =5053.25N/00440.50E-"
e2e_type_and_wait ":aprs e2e plain" "$E2E_DW_LOG" "[0L] $PATH_SENT:$PLAIN"
# The same position in the compressed form: nothing to confirm.
e2e_type_and_wait ":position 50 53 25 N 004 40 50 E compressed" "$out" "[APRSCompressed] =/4g%<O^\\E-  B"
e2e_type_and_wait ":aprs e2e compressed" "$E2E_DW_LOG" "[0L] $PATH_SENT:$COMPRESSED"
plain_info=$(sent_info "$PLAIN") || e2e_fail_run "no plain frame in Dire Wolf's log"
compressed_info=$(sent_info "$COMPRESSED") || e2e_fail_run "no compressed frame in Dire Wolf's log"
for info in "$plain_info" "$compressed_info"; do
  e2e_wait_text "$out" "$info" 15 "$tesk_pid" || e2e_fail_run "the frame \"$info\" did not come back to the Monitor"
done
printf ':quit\n' >&8
e2e_await_tesk_end 15 || e2e_fail_run "tesk did not end within 15 s of \":quit\""
exec 8>&-

failures=()
((tesk_status == 0)) || failures+=("tesk ended with status $tesk_status after \":quit\"")
requests=$(grep -cE '^<<< Send UNPROTO (Information|VIA) from AGWPE client' "$E2E_DW_LOG")
((requests == 2)) || failures+=("Dire Wolf was asked to send $requests frames, expected 2")
plain_decoded=$(decoded "$plain_info")
compressed_decoded=$(decoded "$compressed_info")
grep -qF "N 50 53.2500, E 004 40.5000" <<<"$plain_decoded" ||
  failures+=("decode_aprs read the plain frame otherwise:"$'\n'"$plain_decoded")
grep -qF "N 50 53.4167, E 004 40.8331" <<<"$compressed_decoded" ||
  failures+=("decode_aprs read the compressed frame otherwise:"$'\n'"$compressed_decoded")
for d in "$plain_decoded" "$compressed_decoded"; do
  grep -qF "House" <<<"$d" || failures+=("decode_aprs named no House symbol:"$'\n'"$d")
done
if ((${#failures[@]})); then
  e2e_fail_run "$(printf '%s\n' "${failures[@]}")"
fi
echo "direwolf_aprs: Dire Wolf sent \"$plain_info\" and \"$compressed_info\"; decode_aprs:"
grep -hE "^(Position|N 50)" <<<"$plain_decoded"$'\n'"$compressed_decoded" | sed 's/^/  /'
