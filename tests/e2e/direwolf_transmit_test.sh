#!/usr/bin/env bash
# End-to-end run of the first transmissions against a real Dire Wolf 1.6, once in direct mode
# (path To CQ, Via emptied) and once in LAN mode (path To CQ Via ARISS). The console runs headless
# and is typed at through its standard input. It first hears three other stations, then sends a
# Text/data line, a header-only frame and the stations-heard report. Dire Wolf must log each of
# them as a frame it sends, and report each back, so the console shows it in its Monitor like a
# received frame. An unknown command must give one error line and send nothing. The heard report
# must name the other stations, never the own call, although the own frames came back and
# entered the MHeard list.
# Usage: direwolf_transmit_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

MYCALL=XX9TK
# Calls that hold neither each other nor the own call: the report skips a call by a substring test.
OTHERS=(DL1XYZ-7 PA3ABC OK1ABC)
LINES=(
  "DL1XYZ-7>CQ,RS0ISS*:Another station via the ISS"
  "PA3ABC>APRS,ARISS:=5213.12N/00521.34E-Not repeated"
  "OK1ABC>CQ:Heard without a path"
)
e2e_make_wavs "${LINES[@]}"

# Set by each run, for the failure report.
mode_name=""
out=""
err=""
tesk_pid=""
tesk_status=""

e2e_report() {
  echo "mode: $mode_name; tesk exit status: ${tesk_status:-still running}"
  e2e_show "$out"
  e2e_show "$err"
  e2e_show "$E2E_DW_LOG"
}


# What Dire Wolf logs of the frames the console asked it to send, and of what it sent.
dw_requests() { grep -cE '^<<< Send UNPROTO (Information|VIA) from AGWPE client' "$E2E_DW_LOG"; }
dw_sent() { grep -E '^\[0L\] ' "$E2E_DW_LOG"; }


# One run: MODE 0 (direct) or 1 (LAN), VIA the path typed after ":via" (may be empty).
run_mode() {
  local mode=$1 via=$2 started=$SECONDS
  mode_name=$([[ $mode == 0 ]] && echo direct || echo LAN)
  tesk_status=""
  local path="CQ${via:+,$via}"
  # The Monitor header of an own frame, up to its length: in LAN mode Dire Wolf's " PF=0" follows.
  local header="Fm $MYCALL To CQ${via:+ Via $via} <UI pid=F0 Len="
  local text="Hello from the TESK e2e in $mode_name mode"

  e2e_start_direwolf XX9DW
  e2e_log "$mode_name mode: Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"
  local run_dir="$E2E_TMP/$mode_name"
  local home="$run_dir/home"
  mkdir -p "$home"
  e2e_write_lan_ini "$home" "$mode"
  # The console's input: a fifo this script holds open, so the end of input never comes early.
  local fifo="$run_dir/stdin"
  mkfifo "$fifo" || e2e_fail "no fifo"
  e2e_launch_tesk "$run_dir" "$fifo"
  exec 8>"$fifo"
  # The first run asks for the own call.
  printf '%s\n' "$MYCALL" >&8

  # Frames fed before the log-on ends would not reach the console.
  local last_logon="k"
  ((mode == 1)) && last_logon="m"
  e2e_wait_text "$E2E_DW_LOG" "datakind = '$last_logon'" 40 "$tesk_pid" ||
    e2e_fail_run "tesk never completed its log-on with Dire Wolf (no '$last_logon' frame)"
  if ((mode == 1)); then
    e2e_wait_text "$out" "Connected to Server 127.0.0.1" 10 "$tesk_pid" ||
      e2e_fail_run "no \"Connected to Server 127.0.0.1\""
  fi

  # 1. Other stations, so that the MHeard list has something to report.
  E2E_FEED_GAP=0.5 e2e_feed "${E2E_WAVS[@]}"
  # A second of silence pushes the last frame through Dire Wolf's decoder.
  head -c 88200 /dev/zero >&"$E2E_FEED_FD" || e2e_fail "could not feed silence to Dire Wolf"
  local call
  for call in "${OTHERS[@]}"; do
    e2e_wait_match "$out" "^MHeard [0-9]+: ${call}"$'\r'"?\$" 20 "$tesk_pid" ||
      e2e_fail_run "$call did not enter the MHeard list"
  done
  local before
  before=$(dw_requests)
  ((before == 0)) || e2e_fail_run "Dire Wolf was asked to send $before frames before anything was typed"

  # 2. The path, then a Text/data line and a header-only frame.
  e2e_type_and_wait ":to CQ" "$out" "Path: To CQ"
  if [[ -n "$via" ]]; then
    e2e_type_and_wait ":via $via" "$out" "Path: To CQ Via $via"
  else
    printf ':via\n' >&8
    e2e_wait_match "$out" "^Path: To CQ"$'\r'"?\$" 15 "$tesk_pid" ||
      e2e_fail_run "\":via\" did not empty the Via path"
  fi
  e2e_type_and_wait "$text" "$E2E_DW_LOG" "[0L] $MYCALL>$path:$text"
  e2e_wait_text "$out" "$header${#text} " 15 "$tesk_pid" ||
    e2e_fail_run "the sent text did not come back to the Monitor (no \"$header${#text} \")"
  printf ':header\n' >&8
  # Nothing follows the colon of a frame without data. (Calls and paths hold no regex specials.)
  e2e_wait_match "$E2E_DW_LOG" "^\\[0L\\] $MYCALL>$path:\$" 15 "$tesk_pid" ||
    e2e_fail_run "Dire Wolf did not send the header-only frame"
  # The own frames came back and so entered the MHeard list: the report must leave that call out.
  e2e_wait_match "$out" "^MHeard [0-9]+: ${MYCALL}"$'\r'"?\$" 15 "$tesk_pid" ||
    e2e_fail_run "the own frames did not enter the MHeard list"

  # 3. An unknown command: one error line, nothing sent. The heard report typed after it shows
  # that the console has dealt with it, and any frame of it would reach Dire Wolf first.
  e2e_type_and_wait ":bogus" "$out" "Unknown console command: :bogus"
  e2e_type_and_wait ":heard" "$E2E_DW_LOG" "{TESK"
  e2e_wait_match "$out" '^:BLNQSL1/1:.*\{TESK[0-9]+\}' 15 "$tesk_pid" ||
    e2e_fail_run "the heard report did not come back to the Monitor"

  printf ':quit\n' >&8
  e2e_await_tesk_end 15 || e2e_fail_run "tesk did not end within 15 s of \":quit\""
  exec 8>&-
  check_run "$text" "$header" "$path"
  tesk_pid=""
  e2e_log "$mode_name mode passed in $((SECONDS - started)) s"
  e2e_stop_direwolf
  mv "$E2E_DW_LOG" "$run_dir/direwolf.log"
  E2E_DW_LOG="$run_dir/direwolf.log"
}

# The checks once the console has ended: what Dire Wolf sent, and what the Monitor showed.
check_run() {
  local text=$1 header=$2 path=$3 failures=() call
  ((tesk_status == 0)) || failures+=("tesk ended with status $tesk_status after \":quit\"")
  local requests
  requests=$(dw_requests)
  ((requests == 3)) ||
    failures+=("Dire Wolf was asked to send $requests frames, expected 3 (text, header, report)")
  local sent
  sent=$(dw_sent)
  [[ $(grep -c . <<<"$sent") -eq 3 ]] ||
    failures+=("Dire Wolf sent other than 3 frames:"$'\n'"$sent")
  local report_sent
  report_sent=$(grep -F "[0L] $MYCALL>$path::BLNQSL1/1:" <<<"$sent")
  [[ -n "$report_sent" ]] || failures+=("Dire Wolf sent no heard report of type 1 to $path")
  local report_shown
  report_shown=$(grep -E '^:BLNQSL1/1:' "$out")
  for call in "${OTHERS[@]}"; do
    grep -qE "[:,]${call}[,{]" <<<"$report_sent" || failures+=("the heard report sent lacks $call")
    grep -qE "[:,]${call}[,{]" <<<"$report_shown" ||
      failures+=("the heard report shown lacks $call")
  done
  grep -qF "$MYCALL" <<<"${report_sent#*::}" &&
    failures+=("the heard report names the own call: $report_sent")
  grep -qF -- "$header${#text} " "$out" || failures+=("no Monitor header \"$header${#text} \"")
  grep -A1 -F -- "$header${#text} " "$out" | grep -qxF -- "$text" ||
    failures+=("the Monitor header of the sent text is not followed by the text")
  grep -qF -- "${header}0 " "$out" ||
    failures+=("the header-only frame did not come back to the Monitor")
  local errors
  errors=$(grep -c "Unknown console command" "$out")
  ((errors == 1)) || failures+=("$errors \"Unknown console command\" lines, expected 1")
  if ((${#failures[@]})); then
    e2e_fail_run "$(printf '%s\n' "${failures[@]}")"
  fi
}

# The empty Via is tried in direct mode: a LAN-mode frame without a Via carries one byte more
# than its length says (kept on purpose), which Dire Wolf 1.6 takes as the start of the next
# frame, so only the first such frame would get through.
run_mode 0 ""
run_mode 1 ARISS
echo "direwolf_transmit: in direct and LAN mode, Dire Wolf sent the text, the header and the" \
  "heard report (without $MYCALL) and the Monitor showed them; \":bogus\" sent nothing"
