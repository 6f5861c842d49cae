#!/usr/bin/env bash
# Checks the end-to-end harness on its own, without the console: Dire Wolf started by lib.sh must
# hear the generated audio and hand each frame to an AGW client as a monitor frame of the form
# the link code expects. When this passes and the console's run fails, the fault is the console's.
# Usage: direwolf_harness_test.sh [ignored: the tesk binary, as CTest passes it]
set -uo pipefail
# shellcheck source=tests/e2e/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
e2e_init

LINES=(
  "XX9TK>CQ,RS0ISS*,ARISS:Hello from the e2e"
  "PA3ABC>APRS,ARISS:=5213.12N/00521.34E-Test"
)
e2e_make_wavs "${LINES[@]}"
e2e_start_direwolf XX9DW
e2e_log "Dire Wolf listens on 127.0.0.1:$E2E_AGW_PORT"

out="$E2E_TMP/client.out"
python3 "$E2E_DIR/agw_monitor.py" "$E2E_AGW_PORT" --frames "${#LINES[@]}" --seconds 40 \
  >"$out" 2>&1 7>&- &
client=$!
E2E_PIDS+=("$client")
e2e_wait_text "$E2E_DW_LOG" "datakind = 'm'" 15 "$client" ||
  e2e_fail "the client's monitor request never reached Dire Wolf"$'\n'"$(e2e_show "$E2E_DW_LOG")"
e2e_feed "${E2E_WAVS[@]}"

# The client ends by itself once it has seen every frame.
for ((i = 0; i < 150; i++)); do
  kill -0 "$client" 2>/dev/null || break
  sleep 0.1
done
e2e_stop "$client" 1
status=$?

report() {
  e2e_show "$out"
  e2e_show "$E2E_DW_LOG"
}
((status == 0)) || e2e_fail "the AGW client did not see ${#LINES[@]} monitor frames"$'\n'"$(report)"

# Dire Wolf 1.6: " 1:Fm SRC To DST Via D1,D2 <UI pid=F0 Len=n PF=0 >[hh:mm:ss]\r" + info + "\r\0",
# no "*" on digipeaters whatever the H bit says.
expect=(
  'frame kind=U port=0 pid=0x00 from=XX9TK to=CQ len=90 data= 1:Fm XX9TK To CQ Via RS0ISS,ARISS <UI pid=F0 Len=18 PF=0 >\[[0-9][0-9]:[0-9][0-9]:[0-9][0-9]\]\\rHello from the e2e\\r\\x00$'
  'frame kind=U port=0 pid=0x00 from=PA3ABC to=APRS len=92 data= 1:Fm PA3ABC To APRS Via ARISS <UI pid=F0 Len=24 PF=0 >\[[0-9][0-9]:[0-9][0-9]:[0-9][0-9]\]\\r=5213.12N/00521.34E-Test\\r\\x00$'
)
for re in "${expect[@]}"; do
  grep -qE -- "$re" "$out" || e2e_fail "no frame matching: $re"$'\n'"$(report)"
done
echo "harness: Dire Wolf on port $E2E_AGW_PORT delivered ${#LINES[@]} frames"
cat "$out"
