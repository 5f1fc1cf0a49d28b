#!/bin/bash
# Lets simulated instruments record, each with a serial number and a supply of its own, four of them at a time.
#
#     record-fleet.sh BIN OUT [COUNT [SECONDS]]
#
# BIN is the folder of the programs (build/bin), OUT one that does not exist yet. Twenty instruments record a minute
# each, if nothing else is said. Their recordings then lie in OUT/FLEET01/mnt/storage/ and so on. UDP and TCP ports from
# FLEET_PORT on are used, 43000 without it.
set -u
bin=${1:?the folder of the programs is missing} out=${2:?the folder for the recordings is missing}
count=${3:-20} seconds=${4:-60} port=${FLEET_PORT:-43000} at_once=4
scenarios=(living dip harmonics nominal unbalance interruption swell frequency-drift load-steps rapid-changes)
mkdir "$out" || exit 1
export QT_QPA_PLATFORM=offscreen

# wait_for SECONDS COMMAND...: until the command succeeds.
wait_for()
{
    local i
    for ((i = $1 * 10; i > 0; --i)); do
        "${@:2}" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    return 1
}

recorded() { [ -n "$(find "$1/mnt/storage" -name Common.pqa2)" ]; }
saved() { [ ! -s "$1/mnt/storage/.running" ]; } # what is not whole yet is noted there

# record_one NUMBER: in a shell of its own; what it started ends with it.
record_one()
{
    local name root remote
    printf -v name 'FLEET%02d' "$1"
    root=$(realpath "$out")/$name
    mkdir -p "$root/mnt/userfs/sys" && echo "SN=$name" >"$root/mnt/userfs/sys/sn"
    export QUVERA_ROOT=$root QUVERA_REMOTE_PORT=$((port + 2 * $1)) QUVERA_MODBUS_PORT=$((port + 2 * $1 + 1))
    remote="$bin/quvera-remote --port $QUVERA_REMOTE_PORT"
    trap 'kill $(jobs -p) 2>/dev/null; wait' EXIT
    "$bin/quvera-processor" --root "$root" --scenario "${scenarios[$1 % ${#scenarios[@]}]}" --seed "$1" &
    wait_for 30 test -S "$root/dev/mcasp" || return 1
    "$bin/quvera" &
    wait_for 60 $remote --timeout 500 identify || return 1
    # The menu's tile "Logger", there the shortest interval, then Start: the recording begins ten seconds later.
    $remote --timeout 5000 key Down Down Right Enter Down Down Left Left Left F5 || return 1
    wait_for 60 recorded "$root" || return 1
    sleep "$seconds"
    $remote --timeout 5000 key F5 F4 || return 1 # Stop, Save
    wait_for 60 saved "$root"
}

failed=0
trap 'kill $(jobs -p) 2>/dev/null; wait; exit 1' INT TERM
for ((n = 1; n <= count; ++n)); do
    (record_one "$n") >"$out/log-$n" 2>&1 &
    pids[n]=$!
    if ((n % at_once == 0 || n == count)); then
        for ((m = n - (n - 1) % at_once; m <= n; ++m)); do
            wait "${pids[m]}" || { echo "instrument $m: see $out/log-$m" >&2; failed=1; }
        done
    fi
done
exit $failed
