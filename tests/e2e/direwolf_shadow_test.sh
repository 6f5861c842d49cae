#!/usr/bin/env bash
# End-to-end run of the beacon file and the Shadow Experiment against a real Dire Wolf 1.6 in
# LAN mode. A two-line beacon file with "Use only 1st and 2th lines" must go out as one frame
# whose information is line 1, CR, line 2 and the tag. Then the wizard, answered on the console
# with interval 3, must make Dire Wolf send "SpEx SHADOW" frames from the own call to BEACON via
# ARISS about every 3 s.
# Usage: direwolf_shadow_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

MYCALL=XX9TK
out=""
err=""
tesk_pid=""
tesk_status=""


e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"
home="$E2E_TMP/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 1
# Written by a Linux editor: LF line ends.
printf 'First beacon line\nSecond beacon line\n' >"$E2E_TMP/e2e_beacon.dat"
fifo="$E2E_TMP/stdin"
mkfifo "$fifo" || e2e_fail "no fifo"
e2e_launch_tesk "$E2E_TMP" "$fifo"
exec 8>"$fifo"
printf '%s\n' "$MYCALL" >&8
e2e_wait_text "$out" "Connected to Server 127.0.0.1" 40 "$tesk_pid" ||
  e2e_fail_run "no \"Connected to Server 127.0.0.1\""
e2e_type_and_wait ":to CQ" "$out" "Path: To CQ"
e2e_type_and_wait ":via ARISS" "$out" "Path: To CQ Via ARISS"

# 1. The beacon file, lines 1 and 2 in one frame.
e2e_type_and_wait ":beacon chkBeaconActiv=1 txtBeaconInterval=10 chkItemData=0 chkItemFile=1 \"txtAddFilePath=$E2E_TMP/e2e_beacon.dat\" OptWhichBeaconLines=2" \
  "$out" "Beacon plan: Beacon ON, every 10 s, items file"
e2e_wait_text "$E2E_DW_LOG" "[0L] $MYCALL>CQ,ARISS:First beacon line<0x0d>Second beacon line {TESK54}" \
  25 "$tesk_pid" || e2e_fail_run "Dire Wolf did not send the two lines of the beacon file as one frame"
e2e_type_and_wait ":beacon toggle" "$out" "Beacon: Beacon OFF"

# 2. The wizard: Yes, interval 3, pause 60, code BE, Yes, then the summary's OK.
printf ':wizard\nY\n3\n60\nBE\nY\n\n' >&8
e2e_wait_text "$out" "Shadow: Shadow Exp. Mode!" 15 "$tesk_pid" || e2e_fail_run "the wizard did not switch the mode on"
pattern="^\[0L\] $MYCALL>BEACON,ARISS:SpEx SHADOW [0-9]{2}:[0-9]{2}:[0-9]{2} \*BE\* [0-9]{2}-[0-9]{2}-[0-9]{4}/$"
times=()
seen=0
deadline=$((SECONDS + 30))
while ((SECONDS < deadline && seen < 5)); do
  n=$(grep -cE -- "$pattern" "$E2E_DW_LOG")
  while ((seen < n)); do
    times+=("$(date +%s.%N)")
    seen=$((seen + 1))
  done
  kill -0 "$tesk_pid" 2>/dev/null || e2e_fail_run "tesk ended during the Shadow Experiment"
  sleep 0.1
done
((seen >= 5)) || e2e_fail_run "Dire Wolf sent $seen Shadow frames within 30 s, expected 5 or more"
for i in 2 3 4; do
  gap=$(awk -v a="${times[i - 1]}" -v b="${times[i]}" 'BEGIN { printf "%.1f", b - a }')
  awk -v g="$gap" 'BEGIN { exit !(g >= 2 && g <= 4.5) }' ||
    e2e_fail_run "Shadow frames $i and $((i + 1)) came $gap s apart, not about 3"
done
printf ':beacon toggle\n' >&8
e2e_quit
echo "direwolf_shadow: the beacon file went out as one frame of two lines; Shadow frames" \
  "$(grep -m1 -E -- "$pattern" "$E2E_DW_LOG" | sed 's/^\[0L\] //') and more, about 3 s apart"
