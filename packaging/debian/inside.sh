#!/bin/sh
# Run as a service in the fresh root: what a maker would look at after each step.
set -eu
say() { echo "$*"; }
fail() { echo "wrong: $*"; journalctl -u quvera.service --no-pager | tail -n 30; exit 1; }
wait_for()
{
    for _ in $(seq 300); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.2
    done
    return 1
}
answers() { quvera-remote identify; }
is_the_users() { [ "$(stat -c %U "$1")" = quvera ]; }

ip link set lo up
wait_for answers || fail "the service does not answer"
systemctl is-active --quiet quvera.service || fail "the service is not active"
say "the service runs: $(systemctl show -p NotifyAccess,WatchdogUSec,NRestarts --value quvera.service | tr '\n' ' ')"
process=$(systemctl show -p MainPID --value quvera.service)
[ "$(ps -o user= -p "$process")" = quvera ] || fail "it runs as $(ps -o user= -p "$process")"
ss -ltnp | grep -q ':502 .*quvera' || fail "nobody listens on port 502"
quvera-remote screen /packages/menu.png || fail "no picture of the menu"
say "its user serves port 502 and shows the menu ($(stat -c %s /packages/menu.png) bytes)"

capabilities=$(grep -o 'CapAmb:.*' "/proc/$process/status")
say "capabilities of the program: $capabilities"

kill -KILL "$process"
sleep 2
wait_for answers || fail "it was not started anew after its end"
[ "$(systemctl show -p MainPID --value quvera.service)" != "$process" ] || fail "the same process"
say "it is started anew after a crash"
process=$(systemctl show -p MainPID --value quvera.service)
kill -STOP "$process"
say "a program that stands still is waited for $(systemctl show -p WatchdogUSec --value quvera.service)"
kill -CONT "$process"

quvera-remote key Setup >/dev/null
for file in /mnt/userfs/config/user.conf /mnt/storage/recorded; do
    echo "mark=1" >>"$file"
done
chown quvera: /mnt/userfs/config/user.conf /mnt/storage/recorded
[ -L /mnt/userfs/language/lang_ru.qm ] && [ -e /mnt/userfs/language/lang_ru.qm ] || fail "the languages are missing"
[ -e /usr/lib/fonts/arial.ttf ] && [ -e /usr/lib/fonts/WenQuanYiZenHei.ttf ] || fail "the fonts are missing"
is_the_users /opt/quvera/current/bin/quvera || fail "updates could not replace the program"
first=$(readlink /opt/quvera/current)

dpkg -i /packages/next.deb >&2
wait_for answers || fail "it does not answer after the upgrade"
grep -q mark=1 /mnt/userfs/config/user.conf && grep -q mark=1 /mnt/storage/recorded || fail "the upgrade lost settings"
[ "$(readlink /opt/quvera/current)" != "$first" ] && [ "$(readlink /opt/quvera/previous)" = "$first" ] || fail "the versions"
say "upgraded: $first -> $(readlink /opt/quvera/current), settings kept"

dpkg -r quvera >&2
! systemctl is-active --quiet quvera.service || fail "it runs on after its removal"
[ ! -e /opt/quvera/current ] || fail "the program stayed"
grep -q mark=1 /mnt/userfs/config/user.conf || fail "the removal lost settings"
say "removed, settings kept"

dpkg -P quvera >&2
[ ! -e /mnt/userfs/config ] && [ ! -e /etc/quvera ] && [ ! -e /opt/quvera ] || fail "the purge left settings"
[ -e /mnt/storage/recorded ] || fail "the purge took recordings"
say "purged, recordings kept"
say "all is well"
