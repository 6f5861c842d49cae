#!/usr/bin/env bash
# End-to-end run of APRS messages between two consoles on one Dire Wolf 1.6, which reports each
# client's transmission to every monitoring client as kind "T". XX9TK and XX8AB run headless in
# direct mode (a LAN link holds one frame between ticks, and the second-long waits of an ack
# would let the next frame overwrite it), both with [AckUIViewType] 2, [AckInterval] 10,
# [Log Digipeated Messages] 0 and [AutoAnswer] on. XX9TK sends two messages to XX8AB, 10 s
# apart. For each, Dire Wolf must send four frames: the message, XX8AB's ack, XX8AB's
# auto-reply, and XX9TK's ack of that auto-reply, which XX9TK does not answer; each ack and
# auto-reply carries its message's number. Eight frames in all, none more in the next 15 s.
# Then XX9TK's `:sent` shows both rows answered and XX8AB's `:messages` lists both messages.
# Usage: direwolf_two_stations_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

REPLY="Gone fishing"
declare -A PID OUT ERR
out=""
err=""
tesk_pid=""
tesk_status=""

fail_run() {
  local call
  for call in "${!PID[@]}"; do
    [[ -n "${PID[$call]}" ]] && kill -0 "${PID[$call]}" 2>/dev/null && e2e_stop "${PID[$call]}" 5
  done
  e2e_fail "$*"$'\n'"$(for call in XX9TK XX8AB; do
    e2e_show "${OUT[$call]:-none}"
    e2e_show "${ERR[$call]:-none}"
  done
  e2e_show "$E2E_DW_LOG")"
}

# Sets the value line behind [KEY] in the settings file FILE to " VALUE " (a number, as the file
# writes numbers), or to TEXT as it stands with set_ini_text.
set_ini() { set_line "$1" "$2" " $3 "; }
set_ini_text() { set_line "$1" "$2" "$3"; }
set_line() {
  local file=$1 key=$2 value=$3
  grep -qxF "[$key]"$'\r' "$file" || fail_run "no [$key] in $file"
  awk -v key="[$key]"$'\r' -v value="$value"$'\r' \
    '{ if (take) { print value; take = 0 } else print } $0 == key { take = 1 }' "$file" \
    >"$file.new" && mv "$file.new" "$file"
}

# Starts the console of station CALL reading its fifo, held open on descriptor FD (8 or 9).
launch() {
  local call=$1 fd=$2 dir="$E2E_TMP/$1"
  local fifo="$dir/stdin.$RANDOM"
  [[ -f "$dir/tesk.out" ]] && mv "$dir/tesk.out" "$dir/tesk.out.before"
  mkfifo "$fifo" || e2e_fail "no fifo"
  e2e_launch_tesk "$dir" "$fifo"
  PID[$call]=$tesk_pid
  OUT[$call]=$out
  ERR[$call]=$err
  eval "exec $fd>\"\$fifo\""
}

say() {
  local fd=$1
  shift
  printf '%s\n' "$@" >&"$fd"
}

quit() {
  local call=$1 fd=$2
  say "$fd" ":quit"
  tesk_pid=${PID[$call]}
  e2e_await_tesk_end 15 || fail_run "$call did not end within 15 s of \":quit\""
  eval "exec $fd>&-"
  ((tesk_status == 0)) || fail_run "$call ended with status $tesk_status"
  PID[$call]=""
}

# Log-on frames ('k' is the last) Dire Wolf has seen so far.
logons() { grep -c "datakind = 'k'" "$E2E_DW_LOG"; }

await_logons() {
  local want=$1 i
  for ((i = 0; i < 400; i++)); do
    (($(logons) >= want)) && return 0
    sleep 0.1
  done
  fail_run "Dire Wolf saw $(logons) log-ons, expected $want"
}

# The frames Dire Wolf sent for the two stations.
sent_frames() { grep -E '^\[0L\] (XX9TK|XX8AB)>' "$E2E_DW_LOG"; }

e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"

# 1. First starts: the call sign, then an end that writes tesk.ini; then the settings.
for call in XX9TK XX8AB; do
  mkdir -p "$E2E_TMP/$call/home"
  e2e_write_lan_ini "$E2E_TMP/$call/home" 0
  before=$(logons)
  launch "$call" 8
  say 8 "$call"
  await_logons $((before + 1))
  quit "$call" 8
  ini="$E2E_TMP/$call/home/tesk.ini"
  [[ -f "$ini" ]] || fail_run "the first start of $call wrote no tesk.ini"
  set_ini "$ini" AckUIViewType 2
  set_ini "$ini" AckInterval 10
  set_ini "$ini" "Log Digipeated Messages" 0
  set_ini "$ini" AutoAnswer 1
  set_ini_text "$ini" AutoAnswerText "$REPLY"
done

# 2. Both stations up, the path set.
before=$(logons)
launch XX9TK 8
launch XX8AB 9
await_logons $((before + 2))
sleep 1
say 8 ":to APRS" ":via"
say 9 ":to APRS" ":via"
sleep 1
frames_before=$(sent_frames | wc -l)

# 3. Two messages, 10 s apart.
say 8 ":for XX8AB" ":msg First message"
sleep 10
say 8 ":for XX8AB" ":msg Second message"
expected=(
  "XX9TK>APRS::XX8AB    :First message [TESK]{00"
  "XX8AB>APRS::XX9TK    :ack00"
  "XX8AB>APRS::XX9TK    :[AA] $REPLY{00"
  "XX9TK>APRS::XX8AB    :ack00"
  "XX9TK>APRS::XX8AB    :Second message [TESK]{01"
  "XX8AB>APRS::XX9TK    :ack01"
  "XX8AB>APRS::XX9TK    :[AA] $REPLY{01"
  "XX9TK>APRS::XX8AB    :ack01"
)
deadline=$((SECONDS + 30))
while ((SECONDS < deadline)); do
  (($(sent_frames | wc -l) - frames_before >= 8)) && break
  for call in XX9TK XX8AB; do
    kill -0 "${PID[$call]}" 2>/dev/null || fail_run "$call ended during the exchange"
  done
  sleep 0.2
done
sleep 15
got=$(sent_frames | tail -n +$((frames_before + 1)) | sed 's/^\[0L\] //')
n=$(printf '%s\n' "$got" | grep -c .)
((n == 8)) || fail_run "Dire Wolf sent $n frames for the two stations, expected 8:"$'\n'"$got"
for line in "${expected[@]}"; do
  c=$(printf '%s\n' "$got" | grep -cxF -- "$line")
  ((c == 1)) || fail_run "\"$line\" was sent $c times, expected once:"$'\n'"$got"
done
# Each ack and auto-reply after its own message.
order=$(printf '%s\n' "$got" | grep -nF -- "{00" | head -1 | cut -d: -f1)
later=$(printf '%s\n' "$got" | grep -nF -- "{01" | head -1 | cut -d: -f1)
((order < later)) || fail_run "the second message came before the first:"$'\n'"$got"

# 4. The sent list of XX9TK and the messages of XX8AB.
mark=$(wc -l <"${OUT[XX9TK]}")
say 8 ":sent"
e2e_wait_match "${OUT[XX9TK]}" ' \| 01Y$' 10 || fail_run "XX9TK's :sent shows no answered row 01"
sent_rows=$(tail -n +$((mark + 1)) "${OUT[XX9TK]}" | grep -E ' \| 0[01][YN]$')
[[ $(printf '%s\n' "$sent_rows" | grep -cE ' \| 0[01]Y$') == 2 ]] ||
  fail_run "XX9TK's :sent does not show both rows with Y:"$'\n'"$sent_rows"
say 9 ":messages 0"
e2e_wait_match "${OUT[XX8AB]}" '^Received Messages: [0-9]+/[0-9]+$' 10 ||
  fail_run "XX8AB's :messages printed no total"
for text in "First message [TESK]{00" "Second message [TESK]{01"; do
  grep -qF -- "| From:XX9TK     | To:XX8AB     | Message:$text" "${OUT[XX8AB]}" ||
    fail_run "XX8AB's :messages does not list \"$text\""
done
quit XX9TK 8
quit XX8AB 9
echo "direwolf_two_stations: two messages from XX9TK to XX8AB, each acked, answered and the" \
  "answer acked: eight frames, none more in 15 s; both rows answered in XX9TK's :sent"
