# shellcheck shell=bash disable=SC2034
# Shared helpers for the end-to-end runs: a free port, audio made from TNC-2 lines, a Dire Wolf
# on loopback that hears that audio through a pipe, and a cleanup that stops every process a test
# started, however the test ends. Source this file, then call e2e_init first.
# Every wait here is bounded; nothing talks to any address but 127.0.0.1.

E2E_DIR=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
E2E_PIDS=()    # processes to stop on exit, besides Dire Wolf
E2E_DW_PID=""  # Dire Wolf
E2E_FEED_OPEN=0
# Dire Wolf reads its audio from standard input and exits at the end of it, so the test keeps
# the write side of the pipe open on this descriptor for as long as the engine must run.
E2E_FEED_FD=7

e2e_log() { echo "e2e: $*" >&2; }

e2e_fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# e2e_launch_tesk DIR INPUT [ARGS...]: starts `$tesk --headless` in the background for a station
# whose program folder is DIR/home (holding its TESKLanMode.ini already), with its own config,
# data and cache folders under DIR, reading INPUT (a file or a fifo). Sets tesk_pid, and out and
# err (DIR/tesk.out, DIR/tesk.err). The cleanup stops it if the test does not.
e2e_launch_tesk() {
  local dir=$1 input=$2
  shift 2
  mkdir -p "$dir/home" "$dir/config" "$dir/data" "$dir/cache"
  out="$dir/tesk.out"
  err="$dir/tesk.err"
  (cd "$dir" && XDG_CONFIG_HOME="$dir/config" XDG_DATA_HOME="$dir/data" \
    XDG_CACHE_HOME="$dir/cache" QT_QPA_PLATFORM=offscreen \
    exec "$tesk" --headless --home "$dir/home" "$@" <"$input" >"$out" 2>"$err" 7>&- 8>&-) &
  tesk_pid=$!
  E2E_PIDS+=("$tesk_pid")
}

# e2e_await_tesk_end [SECONDS]: waits at most SECONDS (default 15) for tesk_pid to end and sets
# tesk_status. One still running then is killed, and the function returns 1.
e2e_await_tesk_end() {
  local seconds=${1:-15} i pid keep=()
  for ((i = 0; i < seconds * 10; i++)); do
    kill -0 "$tesk_pid" 2>/dev/null || break
    sleep 0.1
  done
  if kill -0 "$tesk_pid" 2>/dev/null; then
    e2e_stop "$tesk_pid" 1
    tesk_status=$?
    return 1
  fi
  wait "$tesk_pid" 2>/dev/null
  tesk_status=$?
  for pid in "${E2E_PIDS[@]}"; do [[ $pid == "$tesk_pid" ]] || keep+=("$pid"); done
  E2E_PIDS=("${keep[@]}")
}

# e2e_take_tesk PATH: the console under test, checked and made absolute, in $tesk (the scripts
# change folders before they start it).
e2e_take_tesk() {
  tesk=${1:-}
  [[ -n "$tesk" && -x "$tesk" ]] || e2e_fail "no tesk binary given or not executable: '${tesk}'"
  tesk=$(cd "$(dirname "$tesk")" && pwd)/$(basename "$tesk")
}

e2e_init() {
  E2E_TMP=$(mktemp -d "${TMPDIR:-/tmp}/tesk-e2e.XXXXXX") || e2e_fail "no temp folder"
  trap e2e_cleanup EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM
  trap 'exit 129' HUP
}

# Stops one child: SIGTERM, then SIGKILL after GRACE seconds. Returns its exit status
# (or 137 when it had to be killed).
e2e_stop() {
  local pid=$1 grace=${2:-5} i
  [[ -n "$pid" ]] || return 0
  kill -0 "$pid" 2>/dev/null && kill -TERM "$pid" 2>/dev/null
  for ((i = 0; i < grace * 10; i++)); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
  done
  if kill -0 "$pid" 2>/dev/null; then
    kill -KILL "$pid" 2>/dev/null
    wait "$pid" 2>/dev/null
    return 137
  fi
  wait "$pid" 2>/dev/null
}

e2e_close_feed() {
  if ((E2E_FEED_OPEN)); then
    eval "exec ${E2E_FEED_FD}>&-"
    E2E_FEED_OPEN=0
  fi
}

e2e_cleanup() {
  local pid
  for pid in "${E2E_PIDS[@]}"; do e2e_stop "$pid" 3; done
  E2E_PIDS=()
  e2e_close_feed
  e2e_stop "$E2E_DW_PID" 3
  E2E_DW_PID=""
  if [[ -n "${E2E_TMP:-}" && -d "$E2E_TMP" ]]; then
    if [[ -n "${E2E_KEEP:-}" ]]; then
      e2e_log "kept $E2E_TMP"
    else
      rm -rf "$E2E_TMP"
    fi
  fi
}

# True when nothing holds PORT. Dire Wolf binds its AGW port on every address, so the test binds
# the wildcard address too (without listening: no traffic, nothing exposed).
e2e_port_free() {
  local port=$1
  if command -v python3 >/dev/null; then
    python3 -c 'import socket, sys
s = socket.socket()
s.bind(("0.0.0.0", int(sys.argv[1])))' "$port" 2>/dev/null
  else
    ! timeout 2 bash -c "exec 3<>/dev/tcp/127.0.0.1/$port" 2>/dev/null
  fi
}

# Prints a free TCP port. Dire Wolf 1.6 takes AGW ports only from 1024 to 49151 (others silently
# become 8000), and the kernel hands out client ports from 32768 up, so pick below that.
e2e_free_port() {
  local i port
  for ((i = 0; i < 200; i++)); do
    port=$((20000 + (RANDOM * 32768 + RANDOM) % 12700))
    if e2e_port_free "$port"; then
      echo "$port"
      return 0
    fi
  done
  e2e_log "no free port found"
  return 1
}

# Waits until a TCP connect to 127.0.0.1:PORT succeeds, at most SECONDS.
e2e_wait_port() {
  local port=$1 seconds=${2:-10} i
  for ((i = 0; i < seconds * 10; i++)); do
    timeout 2 bash -c "exec 3<>/dev/tcp/127.0.0.1/$port" 2>/dev/null && return 0
    sleep 0.1
  done
  return 1
}

# e2e_wait_grep FLAG FILE PATTERN [SECONDS] [PID]: waits until grep FLAG (-F a fixed text, -E an
# extended regular expression) finds PATTERN in FILE, at most SECONDS. Gives up early when PID
# (optional) has ended.
e2e_wait_grep() {
  local flag=$1 file=$2 pattern=$3 seconds=${4:-10} pid=${5:-} i
  for ((i = 0; i < seconds * 10; i++)); do
    grep -q "$flag" -- "$pattern" "$file" 2>/dev/null && return 0
    if [[ -n "$pid" ]] && ! kill -0 "$pid" 2>/dev/null; then
      grep -q "$flag" -- "$pattern" "$file" 2>/dev/null
      return
    fi
    sleep 0.1
  done
  return 1
}

# Waits until FILE holds the fixed text TEXT: e2e_wait_text FILE TEXT [SECONDS] [PID].
e2e_wait_text() { e2e_wait_grep -F "$@"; }

# The same for an extended regular expression: e2e_wait_match FILE ERE [SECONDS] [PID].
e2e_wait_match() { e2e_wait_grep -E "$@"; }

# Makes one WAV per TNC-2 line ("SRC>DST,VIA*:info") into E2E_WAVS, in order. The line goes to
# gen_packets without a line end: read from a file, gen_packets keeps the "\n" in the info.
# e2e_write_lan_ini HOME MODE: TESKLanMode.ini in HOME pointing at the started Dire Wolf, with
# the LAN mode MODE (0 direct, 1 LAN): 30 lines, CR LF, as the settings window writes it.
e2e_write_lan_ini() {
  {
    printf '%s\r\n' ";TESK Lan Mode Settings" ";FreeWare" "[HostName_IP_Default]" "127.0.0.1" \
      "[HostName_IP]" "" "" "" "" "" "[LanPort]" "$E2E_AGW_PORT" "[TESKLanMode]" "$2" \
      "[RegisterCall]" "0" "[Emulate_TXFrames_On_SlowNetPC]" "0" "[Lan_Password]" ""
    for _ in 1 2 3 4 5; do printf '%s\r\n' "[reserved]" ""; done
  } >"$1/TESKLanMode.ini"
}

e2e_make_wavs() {
  local i=0 line wav
  E2E_WAVS=()
  for line in "$@"; do
    wav=$(printf '%s/frame%02d.wav' "$E2E_TMP" "$i")
    printf '%s' "$line" | gen_packets -o "$wav" - >>"$E2E_TMP/gen_packets.log" 2>&1 ||
      e2e_fail "gen_packets failed for: $line"$'\n'"$(cat "$E2E_TMP/gen_packets.log")"
    [[ $(stat -c %s "$wav" 2>/dev/null || echo 0) -gt 1000 ]] || e2e_fail "gen_packets made no audio for: $line"
    E2E_WAVS+=("$wav")
    i=$((i + 1))
  done
}

# The info part of a TNC-2 line: what follows the first ":" (calls never hold one).
e2e_info_of() { printf '%s' "${1#*:}"; }

# One try at starting Dire Wolf on PORT. Returns 0 when its AGW port accepts, 2 when the port
# was taken after all (another test got it first), 1 on any other failure.
e2e_try_direwolf() {
  local port=$1 mycall=$2 fifo="$E2E_TMP/direwolf.audio"
  cat >"$E2E_TMP/direwolf.conf" <<EOF
ADEVICE stdin null
CHANNEL 0
MYCALL $mycall
AGWPORT $port
KISSPORT 0
EOF
  rm -f "$fifo"
  mkfifo "$fifo" || return 1
  # Opened for reading and writing, the pipe never blocks this shell; the engine gets it as its
  # standard input and must not inherit the write side, or it would never see the end.
  eval "exec ${E2E_FEED_FD}<>\"\$fifo\""
  E2E_FEED_OPEN=1
  E2E_DW_LOG="$E2E_TMP/direwolf.log"
  # -t 0: no colour codes in the log; -d a: log every AGW frame, which shows what the console
  # asked for and what it was sent when a run fails.
  (cd "$E2E_TMP" && eval "exec direwolf -c direwolf.conf -r 44100 -t 0 -d a - \
    <\"\$fifo\" >\"\$E2E_DW_LOG\" 2>&1 ${E2E_FEED_FD}>&-") &
  E2E_DW_PID=$!
  local i
  for ((i = 0; i < 150; i++)); do
    grep -qF "Ready to accept AGW client application 0 on port $port " "$E2E_DW_LOG" 2>/dev/null && break
    if grep -qF "Bind failed" "$E2E_DW_LOG" 2>/dev/null; then
      e2e_close_feed
      e2e_stop "$E2E_DW_PID" 3
      E2E_DW_PID=""
      return 2
    fi
    kill -0 "$E2E_DW_PID" 2>/dev/null || break
    sleep 0.1
  done
  if ! kill -0 "$E2E_DW_PID" 2>/dev/null || ! e2e_wait_port "$port" 10; then
    e2e_log "Dire Wolf did not come up on port $port; its log:"
    cat "$E2E_DW_LOG" >&2
    return 1
  fi
  E2E_AGW_PORT=$port
  return 0
}

# Starts Dire Wolf on 127.0.0.1 and a free port (E2E_AGW_PORT), hearing audio from the pipe that
# e2e_feed writes to. MYCALL is the engine's own call (default XX9DW).
e2e_start_direwolf() {
  local mycall=${1:-XX9DW} try port rc
  command -v direwolf >/dev/null || e2e_fail "direwolf is not installed (scripts/install-deps.sh)"
  for ((try = 0; try < 3; try++)); do
    port=$(e2e_free_port) || e2e_fail "no free TCP port"
    e2e_try_direwolf "$port" "$mycall"
    rc=$?
    ((rc == 0)) && return 0
    ((rc == 1)) && e2e_fail "Dire Wolf did not start"
    e2e_log "port $port was taken; trying another"
  done
  e2e_fail "Dire Wolf found no free port in 3 tries"
}

# Stops the Dire Wolf that e2e_start_direwolf started, so that a test can start a fresh one (its
# log file is overwritten then: move it away first to keep it).
e2e_stop_direwolf() {
  e2e_close_feed
  e2e_stop "$E2E_DW_PID" 3
  E2E_DW_PID=""
}

# Plays the given WAV files to Dire Wolf, GAP seconds apart (E2E_FEED_GAP, default 1). The pipe
# stays open afterwards, so the engine keeps running until the cleanup.
e2e_feed() {
  local wav first=1
  for wav in "$@"; do
    ((first)) || sleep "${E2E_FEED_GAP:-1}"
    first=0
    kill -0 "$E2E_DW_PID" 2>/dev/null || e2e_fail "Dire Wolf ended before all audio was fed; its log:"$'\n'"$(cat "$E2E_DW_LOG")"
    timeout 10 cat "$wav" >&"$E2E_FEED_FD" || e2e_fail "could not feed $wav to Dire Wolf"
  done
}

# Prints a file for a failure message, with control bytes made visible.
e2e_show() {
  echo "----- $1 -----"
  cat -v "$1" 2>/dev/null | head -c 20000
  echo "----- end of $1 -----"
}

# ---- one console under test, its input held open on descriptor 8 ----

# What a failed check shows of the run. A script may define its own after sourcing this file.
e2e_report() {
  echo "tesk exit status: ${tesk_status:-still running}"
  e2e_show "$out"
  e2e_show "$err"
  e2e_show "$E2E_DW_LOG"
}

# e2e_fail_run MESSAGE...: stops the console if it still runs, then fails with the report.
e2e_fail_run() {
  [[ -n "${tesk_pid:-}" ]] && kill -0 "$tesk_pid" 2>/dev/null && e2e_stop "$tesk_pid" 5
  e2e_fail "$*"$'\n'"$(e2e_report)"
}

# e2e_type_and_wait LINE FILE TEXT [SECONDS]: types LINE on the console and waits until TEXT (a
# fixed text) shows in FILE.
e2e_type_and_wait() {
  local line=$1 file=$2 text=$3 seconds=${4:-15}
  printf '%s\n' "$line" >&8 || e2e_fail_run "could not type \"$line\""
  e2e_wait_text "$file" "$text" "$seconds" "$tesk_pid" ||
    e2e_fail_run "after typing \"$line\": no \"$text\" in $(basename "$file") within $seconds s"
}

# e2e_relaunch DIR NAME: starts the console of DIR reading the fifo NAME, held open on
# descriptor 8. The output of an earlier start is kept beside the new one.
e2e_relaunch() {
  local dir=$1 fifo="$1/$2.stdin"
  [[ -f "$dir/tesk.out" ]] && mv "$dir/tesk.out" "$dir/tesk.out.before"
  mkfifo "$fifo" || e2e_fail "no fifo"
  e2e_launch_tesk "$dir" "$fifo"
  exec 8>"$fifo"
}

# e2e_quit: ends the console with ":quit" and checks that it ended well within 15 s.
e2e_quit() {
  printf ':quit\n' >&8
  e2e_await_tesk_end 15 || e2e_fail_run "tesk did not end within 15 s of \":quit\""
  exec 8>&-
  ((tesk_status == 0)) || e2e_fail_run "tesk ended with status $tesk_status"
  tesk_pid=""
}
