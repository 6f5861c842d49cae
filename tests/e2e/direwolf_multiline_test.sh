#!/usr/bin/env bash
# End-to-end run of a Multi-Line page against a real Dire Wolf 1.6 in direct mode. The program
# folder holds TXMultiLine.ini with a three-line page first and two empty ones. ":multiline 1"
# must make Dire Wolf send exactly one frame, To CQ with no Via, whose text is the three lines
# with their CR LF pairs inside (Dire Wolf's log shows them as "<0x0d><0x0a>") and nothing
# added; the engine must hand the sent frame back to the console as kind 'T', and the Monitor
# must show it as an own frame of the page's length. At ":quit" the file is written again with
# the same pages.
# Usage: direwolf_multiline_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

MYCALL=XX9TK
PAGE_LINES=("CQ CQ de XX9TK" "Multi-Line e2e, line two" "line three, 73")
out=""
err=""
tesk_pid=""
tesk_status=""

e2e_report() {
  echo "tesk exit status: ${tesk_status:-still running}"
  e2e_show "$out"
  e2e_show "$err"
  e2e_show "$E2E_DW_LOG"
  e2e_show "$home/TXMultiLine.ini"
}

e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"
run_dir="$E2E_TMP/run"
home="$run_dir/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 0
# The pages as the window writes them: CR LF line ends, each page closed by its marker.
{
  printf '%s\r\n' "${PAGE_LINES[@]}" "[**end**]" "" "[**end**]" "" "[**end**]"
  printf '%s\r\n' "[Reserved]" "" "[Reserved]" ""
} >"$home/TXMultiLine.ini"
cp "$home/TXMultiLine.ini" "$run_dir/TXMultiLine.before"

page="${PAGE_LINES[0]}"$'\r\n'"${PAGE_LINES[1]}"$'\r\n'"${PAGE_LINES[2]}"
on_air="${PAGE_LINES[0]}<0x0d><0x0a>${PAGE_LINES[1]}<0x0d><0x0a>${PAGE_LINES[2]}"

fifo="$run_dir/stdin"
mkfifo "$fifo" || e2e_fail "no fifo"
e2e_launch_tesk "$run_dir" "$fifo"
exec 8>"$fifo"
printf '%s\n' "$MYCALL" >&8
e2e_wait_text "$E2E_DW_LOG" "datakind = 'k'" 40 "$tesk_pid" ||
  e2e_fail_run "tesk never completed its log-on with Dire Wolf (no 'k' frame)"

printf ':to CQ\n' >&8
e2e_wait_text "$out" "Path: To CQ" 15 "$tesk_pid" || e2e_fail_run "no \"Path: To CQ\""
printf ':via\n' >&8
e2e_wait_match "$out" "^Path: To CQ"$'\r'"?\$" 15 "$tesk_pid" || e2e_fail_run "\":via\" did not empty Via"
t_before=$(grep -cF "datakind = 'T'" "$E2E_DW_LOG")
printf ':multiline 1\n' >&8
e2e_wait_text "$E2E_DW_LOG" "[0L] $MYCALL>CQ:$on_air" 15 "$tesk_pid" ||
  e2e_fail_run "Dire Wolf did not send the page as one frame"
header="Fm $MYCALL To CQ <UI pid=F0 Len=${#page} "
e2e_wait_text "$out" "$header" 15 "$tesk_pid" ||
  e2e_fail_run "the sent page did not come back to the Monitor (no \"$header\")"
# Nothing else may follow: a second frame would come within a second or two.
sleep 3
printf ':quit\n' >&8
e2e_await_tesk_end 15 || e2e_fail_run "tesk did not end within 15 s of \":quit\""
exec 8>&-

failures=()
((tesk_status == 0)) || failures+=("tesk ended with status $tesk_status after \":quit\"")
sent=$(grep -E '^\[0L\] ' "$E2E_DW_LOG")
[[ $(grep -c . <<<"$sent") -eq 1 ]] || failures+=("Dire Wolf sent other than one frame:"$'\n'"$sent")
[[ "$sent" == "[0L] $MYCALL>CQ:$on_air" ]] ||
  failures+=("the frame sent is not the page alone: $sent")
requests=$(grep -cE '^<<< Send UNPROTO (Information|VIA) from AGWPE client' "$E2E_DW_LOG")
((requests == 1)) || failures+=("Dire Wolf was asked to send $requests frames, expected 1")
t_after=$(grep -cF "datakind = 'T'" "$E2E_DW_LOG")
((t_after > t_before)) || failures+=("Dire Wolf handed no 'T' frame of the sent page to the console")
grep -A1 -F -- "$header" "$out" | tail -n1 | grep -qF -- "${PAGE_LINES[0]}" ||
  failures+=("the Monitor header of the page is not followed by its first line")
for line in "${PAGE_LINES[@]:1}"; do
  grep -qxF -- "$line"$'\r' "$out" || grep -qxF -- "$line" "$out" ||
    failures+=("the Monitor does not show the page's line \"$line\"")
done
cmp -s "$home/TXMultiLine.ini" "$run_dir/TXMultiLine.before" ||
  failures+=("TXMultiLine.ini changed at exit")
if ((${#failures[@]})); then
  e2e_fail_run "$(printf '%s\n' "${failures[@]}")"
fi
echo "direwolf_multiline: \":multiline 1\" made Dire Wolf send one frame, \"$on_air\"," \
  "handed back as 'T' and shown in the Monitor; TXMultiLine.ini kept its pages"
