#!/usr/bin/env bash
# End-to-end run of direct mode against a real Dire Wolf 1.6: the console, started headless in a
# fresh program folder whose LAN settings say mode 0 (direct mode, the factory default), must
# log on to the engine (version, registration, monitoring and raw frames), show the frames the
# engine hears with the "*" of the satellite that repeated them, although Dire Wolf 1.6 leaves
# that mark out of its own texts, and lose none of a burst that arrives faster than it shows
# frames. The engine's port list, asked after the log-on, must show its usable port in the
# Monitor and in the engine status the settings file keeps (";agwinit"), without the channels
# Dire Wolf 1.6 lists as invalid. It reports the time from the start to the first frame shown.
# Usage: direwolf_direct_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

MYCALL=XX9TK
LINES=(
  "XX9TK>CQ,RS0ISS*,ARISS:Own frame through the ISS"
  "DL1XYZ-7>CQ,RS0ISS*:Second station via the ISS"
  "PA3ABC>APRS,ARISS:=5213.12N/00521.34E-Not repeated"
)
# The header each of them must show: the Via list with the mark where the H bit is set.
HEADERS=(
  "Fm XX9TK To CQ Via RS0ISS*,ARISS"
  "Fm DL1XYZ-7 To CQ Via RS0ISS*"
  "Fm PA3ABC To APRS Via ARISS <"
)
BURST=24
for ((i = 0; i < BURST; i++)); do
  LINES+=("$(printf 'XX9AB-%d>CQ,RS0ISS*:burst frame %02d of the e2e' $((i % 15 + 1)) "$i")")
done
e2e_make_wavs "${LINES[@]}"
e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"

# A fresh program folder whose LAN settings point at that engine, mode 0: 30 lines, CR LF.
home="$E2E_TMP/home"
mkdir -p "$home"
e2e_write_lan_ini "$home" 0

# The first run asks for the call sign on standard input; after that, end of input means the
# default answer to any question.
printf '%s\n' "$MYCALL" >"$E2E_TMP/stdin.txt"
started=$(date +%s.%N)
e2e_launch_tesk "$E2E_TMP" "$E2E_TMP/stdin.txt"

report() {
  echo "tesk exit status: ${tesk_status:-still running}"
  e2e_show "$out"
  e2e_show "$err"
  e2e_show "$E2E_DW_LOG"
}

stop_tesk() {
  kill -TERM "$tesk_pid" 2>/dev/null
  e2e_await_tesk_end 15 || e2e_fail "tesk did not end within 15 s of SIGTERM"$'\n'"$(report)"
}

# The log-on ends with the raw-frame request; frames fed before it would not reach the console.
if ! e2e_wait_text "$E2E_DW_LOG" "datakind = 'k'" 40 "$tesk_pid"; then
  stop_tesk
  e2e_fail "tesk never completed its log-on with Dire Wolf (no 'k' frame)"$'\n'"$(report)"
fi
logged_on=$(date +%s.%N)
for kind in R X m; do
  grep -qF "datakind = '$kind'" "$E2E_DW_LOG" || e2e_fail "no '$kind' frame in the log-on"$'\n'"$(report)"
done

# The three single frames a second apart, then the burst back to back.
fed=$(date +%s.%N)
E2E_FEED_GAP=1 e2e_feed "${E2E_WAVS[@]:0:3}"
E2E_FEED_GAP=0 e2e_feed "${E2E_WAVS[@]:3}"
# Dire Wolf decodes what it has read in blocks: a second of silence pushes the last frame through.
head -c 88200 /dev/zero >&"$E2E_FEED_FD" || e2e_fail "could not feed silence to Dire Wolf"
first_info=$(e2e_info_of "${LINES[0]}")
first_shown=""
for ((i = 0; i < 300; i++)); do
  if [[ -z "$first_shown" ]] && grep -qF -- "$first_info" "$out" 2>/dev/null; then
    first_shown=$(date +%s.%N)
  fi
  # Shown at up to four frames a second, the burst takes several seconds to come through.
  [[ $(grep -c "burst frame" "$out" 2>/dev/null) -ge $BURST ]] && break
  kill -0 "$tesk_pid" 2>/dev/null || break
  sleep 0.1
done
sleep 1
kill -0 "$tesk_pid" 2>/dev/null || {
  wait "$tesk_pid"
  tesk_status=$?
  e2e_fail "tesk ended by itself before SIGTERM"$'\n'"$(report)"
}
stop_tesk

failures=()
((tesk_status < 128)) || failures+=("tesk was ended by signal $((tesk_status - 128)) instead of shutting down")
grep -qF "RUNNING WITHOUT SOFTWARE MODEM" "$out" && failures+=("tesk found no engine")
for i in 0 1 2; do
  grep -qF -- "${HEADERS[$i]}" "$out" || failures+=("no header \"${HEADERS[$i]}\" in the output")
  info=$(e2e_info_of "${LINES[$i]}")
  grep -qF -- "$info" "$out" || failures+=("the frame \"${LINES[$i]}\" was not shown")
done
shown=$(grep -c "burst frame" "$out")
((shown == BURST)) || failures+=("$shown of the $BURST burst frames were shown")
unmarked=$(grep -F "XX9AB-" "$out" | grep -F "Via RS0ISS" | grep -vcF "Via RS0ISS*")
((unmarked == 0)) || failures+=("$unmarked burst headers lack the \"*\"")
grep -qF "datakind = 'G'" "$E2E_DW_LOG" || failures+=("the port list was never asked ('G')")
port_line=$(grep -m1 -E '^Port1 ' "$out")
[[ -n "$port_line" ]] || failures+=("no \"Port1 ...\" line of the engine in the Monitor")
grep -qF "INVALID CHANNEL" "$out" && failures+=("an invalid channel was shown as a port")
agwinit=$(tr -d '\r' <"$home/tesk.ini" 2>/dev/null | grep -m1 '^;agwinit ')
[[ -n "$port_line" && "$agwinit" == *"$port_line - "* ]] ||
  failures+=("the engine status \"$agwinit\" lacks the port line \"$port_line\"")
if ((${#failures[@]})); then
  e2e_fail "$(printf '%s\n' "${failures[@]}")"$'\n'"$(report)"
fi
since() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.1f", b - a }'; }
echo "direwolf_direct: port line \"$port_line\"; $agwinit"
echo "direwolf_direct: logged on $(since "$started" "$logged_on") s after the start;" \
  "first frame shown $(since "$started" "$first_shown") s after the start," \
  "$(since "$fed" "$first_shown") s after its audio was fed; all $BURST burst frames shown with the \"*\""
