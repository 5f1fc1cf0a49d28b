#!/bin/bash
# Builds the instrument and its processor stand-in, and runs both on this desk until Ctrl-C or power-off.
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd) || exit 1
. "$top/packaging/common.sh"

usage()
{
    cat <<EOF
Usage: ./run.sh [options]
  --fresh             start with a new desk root: factory settings, empty storage
  --root DIR          the folder that stands for the board's "/" (default: build/desk, kept between runs)
  --scenario NAME     what stands at the inputs: a file, or a name of processor/scenarios (default: living)
  --speed N           let the supply's time run N times faster; the instrument's own clock stays as it is
  --modbus-port N     TCP port of the Modbus server (default 1502; the board's is 502)
  --remote-port N     UDP port of the remote control (default 3527)
  --panel-port N      TCP port of the panel for browsers (default 8080)
  --no-panel          without that panel
  --offscreen         no window, even with a display
  --build-only        install and build, start nothing
  -h, --help          this text
Other options (--seed N, --record FILE, --replay FILE, --log-frames FILE) go to the processor stand-in.
EOF
}

root=$top/build/desk fresh= offscreen= build_only= no_panel=
modbus_port=${QUVERA_MODBUS_PORT:-1502} remote_port=${QUVERA_REMOTE_PORT:-3527} panel_port=8080
scenario= replay=
processor_options=()
value() { case "${2:-}" in ''|--*) die "option $1 needs a value" ;; esac; printf '%s' "$2"; }
while [ $# -gt 0 ]; do
    case "$1" in
    -h|--help) usage; exit 0 ;;
    --fresh) fresh=yes ;;
    --offscreen) offscreen=yes ;;
    --build-only) build_only=yes ;;
    --no-panel) no_panel=yes ;;
    --panel-port) panel_port=$(value "$@") || exit; shift ;;
    --root) root=$(value "$@") || exit; shift ;;
    --scenario) scenario=$(value "$@") || exit; shift ;;
    --modbus-port) modbus_port=$(value "$@") || exit; shift ;;
    --remote-port) remote_port=$(value "$@") || exit; shift ;;
    --speed|--seed|--record|--replay|--log-frames)
        [ "$1" != --replay ] || replay=yes
        processor_options+=("$1" "$(value "$@")") || exit; shift ;;
    *) die "unknown option $1 (./run.sh --help lists them)" ;;
    esac
    shift
done
for port in "$modbus_port" "$remote_port" "$panel_port"; do
    [[ $port =~ ^[1-9][0-9]{0,4}$ ]] && [ "$port" -le 65535 ] || die "ports are numbers from 1 to 65535, not \"$port\""
done
case "$root" in /*) ;; *) root=$PWD/$root ;; esac
# Said before the build, for the instrument would refuse it after: its shell commands hold the root's name.
case "$root" in
*[!A-Za-z0-9_./+@%,-]*)
    odd=$(printf '%s' "$root" | tr '\n' ' ' | LC_ALL=C.UTF-8 sed 's|[A-Za-z0-9_./+@%,-]||g; s|^\(.\).*|\1|')
    die "the root $root has \"$odd\" in its name, which can hold letters from A to z, digits and _ . / + @ % , - only; choose another with --root" ;;
esac
[ -n "$scenario$replay" ] || scenario=living # a recording is its own supply
if [ -n "$scenario" ] && [ ! -f "$scenario" ]; then
    [ -f "$top/processor/scenarios/$scenario.json" ] ||
        die "no scenario $scenario (names: $(cd "$top/processor/scenarios" && echo *.json | sed 's/\.json//g'))"
    scenario=$top/processor/scenarios/$scenario.json
fi

# The desk root. Only a folder that this script made is ever emptied.
take_root()
{
    mkdir -p "$root" 2>/dev/null && [ -w "$root" ] && [ -x "$root" ] || die "the root $root cannot be written"
    mark=$root/.quvera-desk
    exec 9>>"$mark" || die "the root $root cannot be written"
    flock -n 9 || die "the root $root is in use by another run"
    if [ -n "$fresh" ]; then
        if [ -n "$(ls -A "$root" | grep -vx .quvera-desk)" ] && [ ! -s "$mark" ]; then
            die "--fresh would empty $root, which was not made by this script"
        fi
        find "$root" -mindepth 1 -maxdepth 1 ! -name .quvera-desk -exec rm -rf {} + || die "the root $root cannot be emptied"
    fi
    [ -s "$mark" ] || [ -n "$(ls -A "$root" | grep -vx .quvera-desk)" ] || echo "desk root of the instrument" >&9
}

# served_by_tcp PORT: somebody listens there.
served_by_tcp()
{
    awk -v p="$(printf ':%04X' "$1")" '$2 ~ p"$" && $4 == "0A" { found = 1 } END { exit !found }' \
        /proc/net/tcp /proc/net/tcp6 2>/dev/null
}

# The ports, before anything starts: the instrument ends at once when its remote control finds no port.
check_ports()
{
    awk -v p="$(printf ':%04X' "$remote_port")" '$2 ~ p"$" { found = 1 } END { exit !found }' /proc/net/udp /proc/net/udp6 2>/dev/null &&
        die "UDP port $remote_port is in use; choose another with --remote-port"
    check_tcp_port "$modbus_port" --modbus-port
    [ -n "$no_panel" ] ||
        check_tcp_port "$panel_port" "--panel-port, or leave the panel out with --no-panel"
}

# check_tcp_port PORT REMEDY: refuses a port that cannot be had, and names the option that chooses another.
check_tcp_port()
{
    served_by_tcp "$1" && die "TCP port $1 is in use; choose another with $2"
    lowest=$(cat /proc/sys/net/ipv4/ip_unprivileged_port_start 2>/dev/null || echo 1024)
    [ "$1" -ge "$lowest" ] || [ "$(id -u)" -eq 0 ] ||
        die "TCP port $1 needs root; choose one above $((lowest - 1)) with $2"
}

# What can be refused is refused before the build, which takes minutes.
if [ -z "$build_only" ]; then
    take_root
    check_ports
fi
install_packages
configure_and_build release "$top/build" quvera quvera-processor quvera-remote quvera-gallery quvera-panel quvera-files \
    make-update update-unpack
[ -z "$build_only" ] || exit 0

export QUVERA_ROOT=$root QUVERA_MODBUS_PORT=$modbus_port QUVERA_REMOTE_PORT=$remote_port
if [ -n "$offscreen" ] || { [ -z "${QT_QPA_PLATFORM:-}" ] && [ -z "${DISPLAY:-}" ]; }; then
    export QT_QPA_PLATFORM=offscreen
fi

processor= instrument= panel=
finish()
{
    trap '' INT TERM EXIT
    [ -z "$panel" ] || kill "$panel" 2>/dev/null
    [ -z "$instrument" ] || kill "$instrument" 2>/dev/null
    [ -z "$processor" ] || kill "$processor" 2>/dev/null
    wait 2>/dev/null
    exit "${1:-0}"
}
trap 'say; finish 0' INT TERM
trap 'finish $?' EXIT

power_latch=$root/sys/class/gpio/gpio47/value
[ ! -e "$power_latch" ] || echo 0 >"$power_latch"

# The shell's own lines about a child that a signal ended go nowhere: what happened is said below.
exec 3>&2 2>/dev/null
say_to=3

# The children get Ctrl-C from this script only, so that they end in order.
node=$root/dev/mcasp
rm -f "$node" 2>/dev/null
setsid "$top/build/bin/quvera-processor" --root "$root" ${scenario:+--scenario "$scenario"} \
    "${processor_options[@]}" 2>&3 3>&- 9>&- </dev/null &
processor=$!
for _ in $(seq 100); do
    [ -S "$node" ] && break
    kill -0 "$processor" 2>/dev/null || { processor=; die "the processor stand-in did not start"; }
    sleep 0.1
done
[ -S "$node" ] || die "the processor stand-in did not open $node"

setsid "$top/build/bin/quvera" 2>&3 3>&- 9>&- </dev/null &
instrument=$!
answered=
for _ in $(seq 100); do
    kill -0 "$instrument" 2>/dev/null || break
    if "$top/build/bin/quvera-remote" --port "$remote_port" --timeout 200 identify >/dev/null 2>&1; then
        answered=yes
        break
    fi
    sleep 0.1
done
if ! kill -0 "$instrument" 2>/dev/null; then
    instrument=
    [ "${QT_QPA_PLATFORM:-}" = offscreen ] || die "the instrument did not start; without a usable display add --offscreen"
    die "the instrument did not start"
fi
[ -n "$answered" ] || die "the instrument does not answer on UDP port $remote_port"

remote="build/bin/quvera-remote$([ "$remote_port" = 3527 ] || echo " --port $remote_port")"
if [ "${QT_QPA_PLATFORM:-}" = offscreen ]; then
    say "The instrument runs without a window. Look and press from another terminal, in $top:"
    say "  $remote screen screen.png"
    say "  $remote key Menu Enter"
else
    say "The instrument's window is open. Its keys can also be pressed from another terminal, in $top:"
    say "  $remote key Menu Enter"
fi
if [ -z "$no_panel" ]; then
    panel_address=$root/run/panel.address
    rm -f "$panel_address"
    setsid "$top/build/bin/quvera-panel" --port "$panel_port" 2>&3 3>&- 9>&- </dev/null >"$panel_address" &
    panel=$!
    for _ in $(seq 100); do
        [ -s "$panel_address" ] && break
        kill -0 "$panel" 2>/dev/null || break
        sleep 0.1
    done
    if [ -s "$panel_address" ]; then
        say "In a browser: $(cat "$panel_address")"
    else
        kill "$panel" 2>/dev/null # one that is only late would stay behind
        panel=
        say "The panel for browsers did not start; the instrument runs without it."
    fi
fi
say "Modbus: TCP port $modbus_port. Settings and files: $root. Ctrl-C ends."

while kill -0 "$instrument" 2>/dev/null; do
    # Read by the shell itself: a signal that comes while bash begins a command substitution can be lost.
    latch=
    [ ! -e "$power_latch" ] || read -r latch <"$power_latch"
    if [ "$latch" = 1 ]; then
        say "The instrument switched its supply off."
        finish 0
    fi
    if [ -n "$processor" ] && ! kill -0 "$processor" 2>/dev/null; then
        processor=
        say "The processor stand-in has ended; the instrument goes on without a signal."
    fi
    sleep 0.25
done
wait "$instrument"
status=$?
instrument=
[ "$status" -eq 0 ] || say "The instrument ended with status $status."
finish "$status"
