#!/usr/bin/env bash
# End-to-end run of the beacon against a real Dire Wolf 1.6 in LAN mode. Three other stations
# are heard first (audio made by gen_packets). Then the console's
# ":beacon chkBeaconActiv=1 txtBeaconInterval=10 chkItemMHeard=1" must make Dire Wolf send the
# text, the heard report and the text again, in that order, no two closer than 9 s;
# ":beacon toggle" must stop it (nothing more in 15 s). With the position item alone, Dire
# Wolf's decode_aprs must read the information field sent as a position.
# Usage: direwolf_beacon_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init
command -v decode_aprs >/dev/null || e2e_fail "decode_aprs (Dire Wolf's tools) is not installed"

MYCALL=XX9TK
SENT="[0L] $MYCALL>CQ,ARISS:"
TEXT="Beacon text from the e2e"
LINES=(
  "PA3ABC>CQ,RS0ISS*:Hello from PA3ABC"
  "DL1XYZ-7>CQ,RS0ISS*:Another station via the ISS"
  "OK1AB>APRS,RS0ISS*:=5012.34N/01423.45E-A third one"
)
out=""
err=""
tesk_pid=""
tesk_status=""

# The frames Dire Wolf sent for the console after line MARK of its log, one info a line.
sent_after() { tail -n +"$(($1 + 1))" "$E2E_DW_LOG" | grep -F -- "$SENT" | sed "s/^.*ARISS://"; }
log_lines() { wc -l <"$E2E_DW_LOG"; }

e2e_make_wavs "${LINES[@]}"
e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"
home="$E2E_TMP/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 1
fifo="$E2E_TMP/stdin"
mkfifo "$fifo" || e2e_fail "no fifo"
e2e_launch_tesk "$E2E_TMP" "$fifo"
exec 8>"$fifo"
printf '%s\n' "$MYCALL" >&8
e2e_wait_text "$out" "Connected to Server 127.0.0.1" 40 "$tesk_pid" ||
  e2e_fail_run "no \"Connected to Server 127.0.0.1\""
# Frames heard before the console asked for monitoring never reach it.
e2e_wait_text "$E2E_DW_LOG" "datakind = 'm'" 20 "$tesk_pid" ||
  e2e_fail_run "tesk never asked Dire Wolf for the monitored frames"

# 1. Three stations heard (after a second of silence, so the first frame is not cut).
head -c 88200 /dev/zero >&"$E2E_FEED_FD" || e2e_fail_run "could not feed silence to Dire Wolf"
E2E_FEED_GAP=1 e2e_feed "${E2E_WAVS[@]}"
head -c 88200 /dev/zero >&"$E2E_FEED_FD" || e2e_fail_run "could not feed silence to Dire Wolf"
for line in "${LINES[@]}"; do
  e2e_wait_text "$out" "$(e2e_info_of "$line")" 20 "$tesk_pid" ||
    e2e_fail_run "the frame \"$line\" was not heard"
done

# 2. The text field holds the beacon's text (sent once by hand), then the beacon: text and the
# heard list in turn every 10 s.
e2e_type_and_wait ":to CQ" "$out" "Path: To CQ"
e2e_type_and_wait ":via ARISS" "$out" "Path: To CQ Via ARISS"
e2e_type_and_wait "$TEXT" "$E2E_DW_LOG" "$SENT$TEXT"
mark=$(log_lines)
e2e_type_and_wait ":beacon chkBeaconActiv=1 txtBeaconInterval=10 chkItemMHeard=1" "$out" \
  "Beacon plan: Beacon ON, every 10 s, items text+MHeard"
times=()
seen=0
deadline=$((SECONDS + 45))
while ((SECONDS < deadline && seen < 3)); do
  n=$(sent_after "$mark" | wc -l)
  while ((seen < n)); do
    times+=("$(date +%s.%N)")
    seen=$((seen + 1))
  done
  kill -0 "$tesk_pid" 2>/dev/null || e2e_fail_run "tesk ended while beaconing"
  sleep 0.2
done
((seen >= 3)) || e2e_fail_run "Dire Wolf sent $seen beacon frames within 45 s, expected 3"
mapfile -t frames < <(sent_after "$mark")
[[ "${frames[0]}" == "$TEXT"* ]] || e2e_fail_run "the first beacon frame was not the text: ${frames[0]}"
[[ "${frames[1]}" == *PA3ABC* && "${frames[1]}" == *DL1XYZ-7* && "${frames[1]}" == *OK1AB* ]] ||
  e2e_fail_run "the second beacon frame was not the heard report: ${frames[1]}"
[[ "${frames[2]}" == "${frames[0]}" ]] || e2e_fail_run "the third beacon frame was not the text: ${frames[2]}"
for i in 1 2; do
  gap=$(awk -v a="${times[i - 1]}" -v b="${times[i]}" 'BEGIN { printf "%.1f", b - a }')
  awk -v g="$gap" 'BEGIN { exit !(g >= 9) }' ||
    e2e_fail_run "beacon frames $i and $((i + 1)) came $gap s apart, less than 9"
done

# 3. The double click's console line stops it.
e2e_type_and_wait ":beacon toggle" "$out" "Beacon: Beacon OFF"
stopped=$(log_lines)
sleep 15
n=$(sent_after "$stopped" | wc -l)
((n == 0)) || e2e_fail_run "Dire Wolf sent $n frames after the beacon was switched off"

# 4. The position item alone.
printf '%s\n' ":position 50 53 25 N 004 40 50 E /- plain" >&8
e2e_type_and_wait "Y" "$out" "[APRS] =5053.25N/00440.50E-"
mark=$(log_lines)
e2e_type_and_wait ":beacon chkItemData=0 chkItemMHeard=0 chkItemAPRS=1 chkBeaconActiv=1" "$out" \
  "Beacon plan: Beacon ON, every 10 s, items position"
e2e_wait_text "$E2E_DW_LOG" "${SENT}=5053.25N/00440.50E-" 25 "$tesk_pid" ||
  e2e_fail_run "Dire Wolf did not send the position beacon"
info=$(sent_after "$mark" | head -n 1)
decoded=$(printf '%s\n' "$MYCALL>CQ:$info" | decode_aprs 2>&1 | sed 's/\x1b\[[0-9;]*[A-Za-z]//g')
grep -qF "N 50 53.2500, E 004 40.5000" <<<"$decoded" ||
  e2e_fail_run "decode_aprs did not read the beacon as the position:"$'\n'"$decoded"
printf ':beacon toggle\n' >&8
e2e_quit
echo "direwolf_beacon: text, heard report, text at least 9 s apart; silent after the toggle;" \
  "the position beacon decoded as $(grep -m1 -F 'N 50 53' <<<"$decoded")"
