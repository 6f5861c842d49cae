#!/usr/bin/env bash
# End-to-end run of the reports and statistics on the demo: `tesk --demo --headless` in a fresh
# program folder hears the simulated pass; `:report save` (the suggested name taken with an
# empty line) writes Reports/TESKReport<date>.txt whose Stations Heard rows name calls of frames
# the console printed, and whose "Total Stations =" equals the MHeard count `:stats` prints.
# `:report mail`, with a stand-in xdg-email first on the PATH that writes its arguments to a
# file, hands over a mailto: address whose subject and body name the __.txt file written.
# Usage: demo_reports_test.sh PATH-TO-TESK
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

e2e_take_tesk "${1:-}"
e2e_init

home="$E2E_TMP/home"
out="$E2E_TMP/stdout"
err="$E2E_TMP/stderr"
handed="$E2E_TMP/xdg-email.args"
mkdir -p "$E2E_TMP/bin" "$E2E_TMP/config"
cat >"$E2E_TMP/bin/xdg-email" <<EOF
#!/bin/sh
printf '%s\n' "\$@" >"$handed"
EOF
chmod +x "$E2E_TMP/bin/xdg-email"

fifo="$E2E_TMP/stdin"
mkfifo "$fifo"
PATH="$E2E_TMP/bin:$PATH" XDG_CONFIG_HOME="$E2E_TMP/config" QT_QPA_PLATFORM=offscreen \
  "$tesk" --demo --headless --home "$home" <"$fifo" >"$out" 2>"$err" &
tesk_pid=$!
E2E_PIDS+=("$tesk_pid")
exec 8>"$fifo"
printf 'XX9TK\n' >&8

report() {
  e2e_show "$out"
  e2e_show "$err"
  local f
  for f in "$home"/Reports/*; do [[ -f "$f" ]] && e2e_show "$f"; done
}

# Some stations first: three different source calls on the console.
start=$SECONDS
while ((SECONDS - start < 60)); do
  calls=$(grep -oE '^Fm [A-Z0-9-]+' "$out" | sort -u | wc -l)
  ((calls >= 3)) && break
  kill -0 "$tesk_pid" 2>/dev/null || e2e_fail "tesk ended early"$'\n'"$(report)"
  sleep 0.5
done
((calls >= 3)) || e2e_fail "fewer than three stations heard within 60 s"$'\n'"$(report)"
e2e_log "$calls stations printed after $((SECONDS - start)) s"

# The report and the count right after it; a station heard in between makes the two differ, so
# the pair is tried again a few times.
matched=""
for attempt in 1 2 3 4 5; do
  before=$(grep -c '^Report saved: ' "$out")
  stats_before=$(grep -c '^MHeard: ' "$out")
  printf ':report save\n\n:stats\n' >&8
  e2e_wait_grep -E "$out" '^Report saved: ' 10 "$tesk_pid" || true
  for _ in $(seq 100); do
    (($(grep -c '^Report saved: ' "$out") > before && $(grep -c '^MHeard: ' "$out") > stats_before)) && break
    sleep 0.1
  done
  saved=$(grep '^Report saved: ' "$out" | tail -1 | sed 's/^Report saved: //')
  heard=$(grep '^MHeard: ' "$out" | tail -1 | sed 's/^MHeard: //')
  [[ -n "$saved" && -f "$saved" ]] || e2e_fail "no report written"$'\n'"$(report)"
  total=$(sed -n 's/^Total Stations = \([0-9]*\)\r$/\1/p' "$saved")
  e2e_log "attempt $attempt: report $saved with $total stations, :stats says $heard"
  if [[ -n "$total" && "$total" == "$heard" ]]; then
    matched=1
    break
  fi
done
[[ -n "$matched" ]] || e2e_fail "Total Stations never matched the MHeard count"$'\n'"$(report)"
[[ "$(basename "$saved")" =~ ^TESKReport.*[0-9]\.txt$ ]] ||
  e2e_fail "unexpected report name $saved"
((total >= 3)) || e2e_fail "the report lists $total stations"$'\n'"$(report)"

# Every row of Stations Heard names a call whose frame the console printed.
rows=$(awk '/^Stations Heard\r$/ {on=1; getline; next} /^Total Stations = / {on=0} on' "$saved" |
  tr -d '\r')
count=0
while read -r call _; do
  [[ -n "$call" ]] || continue
  count=$((count + 1))
  grep -qE "^Fm ${call} " "$out" || e2e_fail "report row $call has no frame on the console"
done <<<"$rows"
((count == total)) || e2e_fail "$count rows under Stations Heard, total says $total"
grep -q $'^\\*\\*\\* End of TESK Report \\*\\*\\*\r$' "$saved" || e2e_fail "no end line"

# The mail hand-off: the stand-in gets one mailto: address naming the __.txt file.
printf ':report mail\n' >&8
e2e_wait_grep -F "$out" 'Report written: ' 10 "$tesk_pid" ||
  e2e_fail "no mail report"$'\n'"$(report)"
mailed=$(grep 'Report written: ' "$out" | tail -1 | sed 's/^Report written: //')
[[ "$mailed" == *__.txt && -f "$mailed" ]] || e2e_fail "no __.txt report: '$mailed'"
for _ in $(seq 50); do
  [[ -s "$handed" ]] && break
  sleep 0.1
done
[[ -s "$handed" ]] || e2e_fail "xdg-email was not run"$'\n'"$(report)"
url=$(head -1 "$handed")
decoded=$(python3 -c 'import sys, urllib.parse as u
q = u.parse_qs(u.urlsplit(sys.argv[1]).query)
print(q["subject"][0] + "|" + q["body"][0])' "$url") || e2e_fail "not a mailto: address: $url"
[[ "$url" == mailto:\?subject=* ]] || e2e_fail "the address has a recipient or no subject: $url"
[[ "$decoded" == "$mailed |$mailed Attached" ]] ||
  e2e_fail "subject and body do not name the file: $decoded"

printf ':quit\n' >&8
for _ in $(seq 150); do
  kill -0 "$tesk_pid" 2>/dev/null || break
  sleep 0.1
done
kill -0 "$tesk_pid" 2>/dev/null && e2e_fail "tesk did not end after :quit"
echo "PASS: report of $total stations saved and mailed ($url)"
