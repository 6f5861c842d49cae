#!/usr/bin/env bash
# End-to-end run of APRS messages out against a real Dire Wolf 1.6 in LAN mode, path APRS via
# ARISS, with ack requests on ([AckUIViewType] 2) and retries every 10 s ([AckInterval] 10). A
# message to XX1ABC, whom nobody answers, must be sent exactly four times about 10 s apart, and
# no fifth time in the 15 s after the fourth. A message to BLN must go out once, without a tag.
# The first start writes tesk.ini; the two settings are put into it before the second start.
# Usage: direwolf_messages_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

MYCALL=XX9TK
PATH_SENT="APRS,ARISS"
MESSAGE=":XX1ABC   :Hello from the e2e [TESK]{00"
BULLETIN=":BLN      :A bulletin for all"
out=""
err=""
tesk_pid=""
tesk_status=""


# How often Dire Wolf sent the fixed text LINE.
dw_count() { grep -cF -- "[0L] $MYCALL>$PATH_SENT:$1" "$E2E_DW_LOG"; }



# Sets the value line behind [KEY] in the settings file FILE to " VALUE ".
set_ini() {
  local file=$1 key=$2 value=$3
  grep -qxF "[$key]"$'\r' "$file" || e2e_fail_run "no [$key] in $file"
  awk -v key="[$key]"$'\r' -v value=" $value "$'\r' \
    '{ if (take) { print value; take = 0 } else print } $0 == key { take = 1 }' "$file" \
    >"$file.new" && mv "$file.new" "$file"
}

e2e_start_direwolf XX9DW
run_dir="$E2E_TMP/run"
home="$run_dir/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 1

# 1. The first start: the call sign, then an end that writes tesk.ini.
e2e_relaunch "$run_dir" first
printf '%s\n' "$MYCALL" >&8
e2e_wait_text "$out" "Connected to Server 127.0.0.1" 40 "$tesk_pid" ||
  e2e_fail_run "no \"Connected to Server 127.0.0.1\" at the first start"
e2e_quit
[[ -f "$home/tesk.ini" ]] || e2e_fail_run "the first start wrote no tesk.ini"
set_ini "$home/tesk.ini" AckUIViewType 2
set_ini "$home/tesk.ini" AckInterval 10

# 2. The message with its retries.
e2e_relaunch "$run_dir" second
e2e_wait_text "$out" "Connected to Server 127.0.0.1" 40 "$tesk_pid" ||
  e2e_fail_run "no \"Connected to Server 127.0.0.1\" at the second start"
printf ':to APRS\n:via ARISS\n:for XX1ABC\n:msg Hello from the e2e\n' >&8
times=()
deadline=$((SECONDS + 60))
seen=0
while ((SECONDS < deadline)); do
  n=$(dw_count "$MESSAGE")
  while ((seen < n)); do
    times+=("$(date +%s.%N)")
    seen=$((seen + 1))
  done
  ((seen >= 4)) && break
  kill -0 "$tesk_pid" 2>/dev/null || e2e_fail_run "tesk ended while its message was retried"
  sleep 0.2
done
((seen == 4)) || e2e_fail_run "Dire Wolf sent the message $seen times within 60 s, expected 4"
for i in 1 2 3; do
  gap=$(awk -v a="${times[i - 1]}" -v b="${times[i]}" 'BEGIN { printf "%.1f", b - a }')
  awk -v g="$gap" 'BEGIN { exit !(g >= 8 && g <= 12.5) }' ||
    e2e_fail_run "send $i to $((i + 1)) of the message came $gap s apart, not about 10"
done
sleep 15
n=$(dw_count "$MESSAGE")
((n == 4)) || e2e_fail_run "Dire Wolf sent the message $n times, a fifth came after the fourth"

# 3. A bulletin: once, with no tag.
printf ':for BLN\n:msg A bulletin for all\n' >&8
e2e_wait_text "$E2E_DW_LOG" "[0L] $MYCALL>$PATH_SENT:$BULLETIN" 15 "$tesk_pid" ||
  e2e_fail_run "Dire Wolf did not send the bulletin"
sleep 12
grep -F -- "[0L] $MYCALL>$PATH_SENT:$BULLETIN" "$E2E_DW_LOG" | grep -qvxF -- \
  "[0L] $MYCALL>$PATH_SENT:$BULLETIN" && e2e_fail_run "the bulletin went out with more than its text"
n=$(dw_count "$BULLETIN")
((n == 1)) || e2e_fail_run "Dire Wolf sent the bulletin $n times, expected once"
e2e_quit
echo "direwolf_messages: the message to XX1ABC went out four times about 10 s apart and no" \
  "fifth time; the bulletin once, without a tag"
