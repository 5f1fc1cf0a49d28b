#!/bin/sh
# Run as a service in the fresh root: what a maker would look at after each step.
set -eu
. /packages/checks.sh
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
say "the service runs"
process=$(systemctl show -p MainPID --value quvera.service)
[ "$(ps -o user= -p "$process")" = quvera ] || fail "it runs as $(ps -o user= -p "$process")"
ss -ltnp | grep -q ':502 .*quvera' || fail "nobody listens on port 502"
shows_menu() { quvera-remote screen /packages/menu.png && has_title /packages/menu.png Menu; }
wait_for shows_menu || fail "no picture of the menu"
say "its user serves port 502 and shows the menu ($(stat -c %s /packages/menu.png) bytes)"

# Bits of the kernel's list: 10 port, 12 and 13 network, 25 clock, less what this container may not do itself (the clock).
# What the program calls inherits them, and can get no others.
own=$(sed -n 's/^CapBnd:[[:space:]]*//p' /proc/1/status)
expected=$(printf '%016x' $(((1 << 10 | 1 << 12 | 1 << 13 | 1 << 25) & 0x$own)))
[ $((0x$expected & 0x3400)) -eq $((0x3400)) ] || fail "the container has too few rights: $own"
for kind in CapInh CapPrm CapEff CapBnd CapAmb; do
    has=$(sed -n "s/^$kind:[[:space:]]*//p" "/proc/$process/status")
    [ "$has" = "$expected" ] || fail "$kind of the program is $has, not $expected"
done
say "it has its rights of root and no others: $expected"

# The user tries to become root. Whoever is root can make the mark, nobody else.
mark=/root/mark
as_user() { runuser -u quvera -- "$@"; }
is_no_root() { [ ! -e "$mark" ] || fail "its user became root by $1"; }

# By the settings of the service: programs of its own in place of those that board-rights calls, and a file that makes it call them.
own=/var/lib/quvera/own
as_user mkdir -p $own/bin $own/sys/class/backlight/backlight
as_user touch $own/sys/class/backlight/backlight/brightness
for program in chgrp chmod ps udevadm; do
    printf '#!/bin/sh\ntouch %s\n' "$mark" >$own/bin/$program
    chmod 755 $own/bin/$program
done
settings="PATH=$own/bin:/usr/sbin:/usr/bin:/sbin:/bin
QUVERA_ROOT=$own"
cp -p /etc/quvera/board.conf /root/board.conf
wrote=no
# shellcheck disable=SC2016  # for the shell that runs it
if as_user sh -c 'rm -f /etc/quvera/board.conf; echo "$0" >>/etc/quvera/board.conf' "$settings" 2>/dev/null; then wrote=yes; fi
systemctl restart quvera.service || true
is_no_root "settings that it wrote"
[ $wrote = no ] || fail "its user may write the settings of the service"
# Even such settings of root's reach nothing that runs as root.
echo "$settings" >>/etc/quvera/board.conf
systemctl restart quvera.service || true
is_no_root "settings of the service"
cp -p /root/board.conf /etc/quvera/board.conf
systemctl reset-failed quvera.service
systemctl restart quvera.service
wait_for answers || fail "it does not answer with its own settings again"
process=$(systemctl show -p MainPID --value quvera.service)
rm -r $own
say "its user cannot become root by settings of the service"

# By the description of the network, which it may have put into use.
network() { systemctl show -p InvocationID --value networking.service; }
restarts_the_network() # COMMAND: as the user gives it
{
    before=$(network)
    as_user env PATH="/usr/lib/quvera/scripts:$PATH" sh -c "$1" >&2 || true
    [ "$(network)" != "$before" ] || fail "its user may not restart the network"
}
description=/etc/network/interfaces.d/quvera
[ -e /packages/emulated ] || ip link add eth0 type veth peer name other0 || fail "no interface to try"
# shellcheck disable=SC2016  # for the shell that runs it
as_user sh -c 'printf "auto lo:9\niface lo:9 inet static\n    address 127.0.0.9\n    netmask 255.0.0.0\n    pre-up touch %s\n" "$0" |
    tee /var/lib/quvera/interfaces >/etc/network/interfaces.d/quvera' "$mark" 2>/dev/null || true
# shellcheck disable=SC2016
as_user sh -c 'printf "USE_DHCP=0\nIPADDR=192.168.7.9;touch %s\nGATEWAY=\n    pre-up touch %s\nMAC=02:00:00:00:00:01 pre-up touch %s\n" \
    "$0" "$0" "$0" >/mnt/userfs/config/eth0.conf' "$mark"
restarts_the_network '/etc/init.d/networking restart'
is_no_root "the description of the network"
[ "$(stat -c %F:%U:%a $description)" = "regular file:root:644" ] || fail "whose is the network's description?"
grep -qx '    address 192.168.2.100' $description || fail "an address that is none was taken"
! grep -q 'touch\|hwaddress' $description || fail "a command is in the network's description"
printf 'USE_DHCP=0\nIPADDR=192.168.7.9\nNETMASK=255.255.255.0\nGATEWAY=192.168.7.1\n' | as_user tee /mnt/userfs/config/eth0.conf >/dev/null
restarts_the_network 'networking.sh eth0;/etc/init.d/networking restart; sleep 1' # as the page does
grep -qx '    address 192.168.7.9' $description || fail "the address of the page was not taken"
[ ! -d /sys/class/net/eth0 ] || ip address show dev eth0 | grep -q ' 192\.168\.7\.9/24 ' ||
    fail "the network has not the address of the page"
say "its user may restart the network with its settings, and cannot become root by them"

# The tools: each program has its manual page, and they do something.
programs=0
for program in $(dpkg -L quvera quvera-tools | grep -E '^/usr/(lib/quvera/)?bin/[a-z-]+$'); do
    [ ! -d "$program" ] || continue
    name=${program##*/}
    ls /usr/share/man/man[18]/"$name".[18].gz >/dev/null 2>&1 || fail "$name has no manual page"
    programs=$((programs + 1))
done
[ "$programs" -ge 9 ] || fail "only $programs programs"
for tool in quvera-files quvera-panel quvera-remote quvera-processor quvera-gallery; do
    "$tool" --help >/dev/null || fail "$tool --help"
done
[ -e /usr/share/bash-completion/completions/quvera-files ] || fail "no completion for the shell"
say "$programs programs, each with its manual page"

quvera-panel --port 8181 >/tmp/panel.log 2>&1 &
panel=$!
page() # PATH: what the panel serves
{
    bash -c 'exec 3<>/dev/tcp/127.0.0.1/8181; printf "GET $0 HTTP/1.1\r\nHost: 127.0.0.1:8181\r\nConnection: close\r\n\r\n" >&3; cat <&3' "$1"
}
serves() { page / | grep -q '^HTTP/1.1 200'; }
wait_for serves || { cat /tmp/panel.log; fail "the panel does not answer"; }
page /guide/user-guide.html | grep -q '<html' || fail "the panel has no guide"
page /guide/guide/tools.html | grep -q 'quvera-files' || fail "the guide lacks its pages"
kill "$panel"
say "the panel answers on this machine, and has the guide"

runuser -u nobody -- quvera-gallery --out /tmp/gallery --pages menu --warm-up 0 >/tmp/gallery.log 2>&1 ||
    { cat /tmp/gallery.log; fail "the gallery"; }
[ -n "$(find /tmp/gallery -name '*.png')" ] || fail "no pictures"
say "the gallery takes pictures of the installed instrument, with the processor stand-in"

systemd-hwdb query 'evdev:name:quvera-panel:' | grep -qx 'KEYBOARD_KEY_12=b' || fail "the letters of the front panel"

main_process() { systemctl show -p MainPID --value quvera.service; }
is_another() { [ "$(main_process)" != "$process" ] && [ "$(main_process)" != 0 ] && answers; }
kill -KILL "$process"
wait_for is_another || fail "it was not started anew after its end"
say "it is started anew after a crash"

# The same with a program that stands still, and a watchdog that this test can wait for.
mkdir -p /run/systemd/system/quvera.service.d
printf '[Service]\nWatchdogSec=10s\n' >/run/systemd/system/quvera.service.d/watchdog.conf
systemctl daemon-reload
systemctl restart quvera.service
process=$(main_process)
wait_for answers || fail "it does not answer with a short watchdog"
sleep 15
[ "$(main_process)" = "$process" ] || fail "the watchdog ends a program that runs well"
kill -STOP "$process"
wait_for is_another || fail "it was not started anew when it stood still"
journalctl -u quvera.service --no-pager | grep -q 'Watchdog timeout' || fail "something else than the watchdog ended it"
rm -r /run/systemd/system/quvera.service.d
systemctl daemon-reload
systemctl restart quvera.service
wait_for answers || fail "it does not answer with its own watchdog again"
say "it runs on under a watchdog of 10 s, and is started anew when it stands still"

# A disk that is mounted below /run/media while the service runs: its user sees it and may write there. What stands for the
# partition is a file system in memory; the script's own way with a device needs one.
shows_disks()
{
    mkdir -p /run/media/sdz1
    mount -t tmpfs -o uid=quvera,gid=quvera,mode=755,nosuid,nodev,noexec tmpfs /run/media/sdz1
    process=$(main_process)
    nsenter --target "$process" --mount -- runuser -u quvera -- /bin/sh -c 'echo mark >/run/media/sdz1/mark' || fail "no writing to a disk"
    [ "$(cat /run/media/sdz1/mark)" = mark ] || fail "what the program wrote is not on the disk"
    /usr/lib/quvera/scripts/usb-disk unmount sdz1 quvera || fail "the disk cannot be taken away"
    [ ! -e /run/media/sdz1 ] || fail "the disk stayed in the list"
    ! nsenter --target "$process" --mount -- test -e /run/media/sdz1 || fail "the program still sees the disk"
    says_nothing systemd-analyze verify --man=no /lib/systemd/system/quvera-usb@sdz1.service || fail "the unit of the disks"
    say "a disk mounted below /run/media is the program's to write, and goes"
}

# A lost wireless network ends its DHCP client: the program's command line, among the processes that its user sees.
ends_the_dhcp_client()
{
    client() { pgrep -u quvera -f '^udhcpc -i wlan0'; }
    no_client() { ! client; }
    runuser -u quvera -- bash -c 'exec -a "udhcpc -i wlan0" sleep 1000' &
    wait_for client || fail "no stand-in of the DHCP client"
    # shellcheck disable=SC2016  # for the shell that runs it
    nsenter --target "$process" --mount -- runuser -u quvera -- env PATH="/usr/lib/quvera/scripts:$PATH" \
        sh -c 'ps | grep "udhcpc -i wlan0" | awk '\''{print $1}'\'' | xargs kill -9' >/dev/null 2>&1 || true
    wait_for no_client || fail "the DHCP client of a lost network runs on"
    say "the DHCP client of a lost wireless network is ended"
}

if [ -e /packages/emulated ]; then
    say "(disks and the DHCP client are not tried: the emulator enters no other program's mounts)"
else
    shows_disks
    ends_the_dhcp_client
fi

quvera-remote key Setup >/dev/null
for file in /mnt/userfs/config/user.conf /mnt/storage/recorded; do
    echo "mark=1" >>"$file"
done
chown quvera: /mnt/userfs/config/user.conf /mnt/storage/recorded
[ -L /mnt/userfs/language/lang_ru.qm ] && [ -e /mnt/userfs/language/lang_ru.qm ] || fail "the languages are missing"
[ -e /usr/lib/fonts/arial.ttf ] && [ -e /usr/lib/fonts/WenQuanYiZenHei.ttf ] || fail "the fonts are missing"
is_the_users /opt/quvera/current/bin/quvera || fail "updates could not replace the program"
first=$(readlink /opt/quvera/current)

cp /packages/update.pub /etc/quvera/
runuser -u quvera -- env QUVERA_UPDATE_KIND=software update-unpack /packages/Software.upd || fail "the update is not taken"
[ "$(readlink /opt/quvera/current)" = versions/99999 ] || fail "the update is not in its place"
systemctl restart quvera.service
wait_for answers || fail "it does not answer after the update"
# By what it has mapped: the program of an emulated process is the emulator.
grep -q ' /opt/quvera/versions/99999/bin/quvera$' "/proc/$(main_process)/maps" || fail "the service runs something else"
say "updated by the instrument's user: $first -> versions/99999"
first=versions/99999

# As an earlier package left it: a folder of the user's, who may have left links in it and in its other folders.
chown -R quvera: /etc/quvera
as_user sh -c 'echo "# kept" >>/etc/quvera/board.conf; ln -s /etc/shadow /etc/quvera/planted
    printf "software 3\nfirmware 0\n" >/etc/quvera/update.minimum; rm -f /var/lib/quvera/update.minimum
    cd /mnt/userfs; for folder in sys language; do mv $folder $folder.aside; ln -s /etc $folder; done'
rm -f $description
ln -s /var/lib/quvera/interfaces $description

# An update is being written meanwhile.
runuser -u quvera -- flock /opt/quvera/.lock sh -c 'echo held >/tmp/update.lock; sleep 5; echo ended >/tmp/update.lock' &
wait_for test -s /tmp/update.lock
dpkg -i /packages/next.deb >&2
[ "$(cat /tmp/update.lock)" = ended ] || fail "the upgrade did not wait for an update that is being written"
wait_for answers || fail "it does not answer after the upgrade"
grep -q mark=1 /mnt/userfs/config/user.conf && grep -q mark=1 /mnt/storage/recorded || fail "the upgrade lost settings"
[ "$(readlink /opt/quvera/current)" != "$first" ] && [ "$(readlink /opt/quvera/previous)" = "$first" ] || fail "the versions"
[ -z "$(find /etc/quvera ! -user root)" ] && [ ! -L /etc/quvera/planted ] || fail "its user can change settings of root's"
[ "$(stat -c %U /etc/shadow)" = root ] || fail "the upgrade followed a link"
grep -q '^# kept$' /etc/quvera/board.conf || fail "the upgrade lost screen and keys"
[ "$(cat /var/lib/quvera/update.minimum)" = "software 3
firmware 0" ] && [ ! -e /etc/quvera/update.minimum ] || fail "the oldest versions that are taken"
[ ! -L $description ] && grep -qx '    address 192.168.7.9' $description || fail "the upgrade lost the network's description"
[ ! -e /etc/limits ] && [ ! -L /etc/lang_ru.qm ] || fail "the upgrade wrote through links of the user's"
as_user sh -c 'cd /mnt/userfs; for folder in sys language; do rm $folder; mv $folder.aside $folder; done'
say "upgraded: $first -> $(readlink /opt/quvera/current), settings kept"

dpkg -r quvera >&2
! systemctl is-active --quiet quvera.service || fail "it runs on after its removal"
[ ! -e /opt/quvera/current ] || fail "the program stayed"
[ ! -e $description ] || fail "the network's description stayed"
grep -q mark=1 /mnt/userfs/config/user.conf || fail "the removal lost settings"
say "removed, settings kept"

dpkg -P quvera >&2
[ ! -e /mnt/userfs/config ] && [ ! -e /etc/quvera ] && [ ! -e /opt/quvera ] || fail "the purge left settings"
[ -e /mnt/storage/recorded ] || fail "the purge took recordings"
say "purged, recordings kept"
say "all is well"
