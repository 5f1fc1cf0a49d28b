#!/bin/bash
# packaging/debian/test.sh [--once|--board] [FOLDER]: builds the packages twice, from two folders, with the cache of
# compilations and without it, and asks whether they are the same to the byte; has them looked at by lintian; makes an
# update of them and installs it on a desk; then installs, runs, updates, upgrades, removes and purges them in a fresh
# Debian 12 that boots in a container of its own. --once builds them once and compares nothing; --board does so with the
# board's packages, which run by an emulator. As root; needs debootstrap, systemd-container, lintian. FOLDER keeps the
# packages and what was seen (default: build/packages, of the board build/packages-armhf).
set -eu
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
here=$top/packaging/debian
. "$top/packaging/common.sh"
. "$here/checks.sh"
once=
architecture=$(dpkg --print-architecture)
packages=$here/build
out=$top/build/packages
case "${1:-}" in
-h|--help) sed -n '2,7s/^# //p' "$0"; exit 0 ;;
--once) once=yes; shift ;;
--board)
    once=yes
    architecture=armhf
    packages=$top/packaging/armhf/packages
    out=$top/build/packages-armhf
    # The emulator takes the board's libraries from there for what runs outside the container.
    export QUVERA_SYSROOT=${QUVERA_SYSROOT:-$top/build/armhf-sysroot}
    export QEMU_LD_PREFIX=$QUVERA_SYSROOT
    shift
    ;;
esac
out=${1:-$out}
[ "$(id -u)" -eq 0 ] || die "run it as root, which a fresh Debian and its container take"
install_packages debian/debian-packages.txt
[ "$packages" = "$here/build" ] || install_packages armhf/debian-packages.txt
[ "$packages" = "$here/build" ] || [ -e /proc/sys/fs/binfmt_misc/qemu-arm ] ||
    die "this machine does not run programs of the board; have it do so by: update-binfmts --enable qemu-arm"
mkdir -p "$out"
out=$(cd "$out" && pwd)
rm -rf "$out/first" "$out"/*.log "$out/seen" "$out/errors" "$out/menu.png"

say "1. The packages"
"$packages" "$out/first" >"$out/build.log" 2>&1 || die "the build failed: $out/build.log"
if [ -z "$once" ]; then
    # Debian's flags hide a folder's name from the debug information only where it has no unusual characters.
    CCACHE_DISABLE=1 "$here/build" "$out/elsewhere/deeper" >"$out/build2.log" 2>&1 ||
        die "the build failed: $out/build2.log"
    for package in "$out"/first/*.deb; do
        cmp "$package" "$out/elsewhere/deeper/${package##*/}" || die "${package##*/} differs from build to build"
    done
    rm -rf "$out/elsewhere"
    say "   the same to the byte: $(cd "$out/first" && echo *.deb)"
fi

say "2. Lintian"
without_errors "$out/lintian.log" "$out"/first/*.changes || die "lintian finds errors"

say "3. An update out of the package"
desk=$out/desk
rm -rf "$desk"
mkdir -p "$desk/packages" "$desk/root/etc/quvera" "$desk/root/opt/quvera"
for package in "$out"/first/quvera_*.deb "$out"/first/quvera-tools_*.deb; do
    dpkg-deb --extract "$package" "$desk/packages"
done
PATH=$desk/packages/usr/bin:$PATH
make-update keys "$desk/key" "$desk/root/etc/quvera/update.pub"
"$here/make-software-update" "$out"/first/quvera_*.deb "$desk/key" 99999 0 "$desk/Software.upd"
QUVERA_ROOT=$desk/root QUVERA_UPDATE_KIND=software "$desk/packages/usr/lib/quvera/bin/update-unpack" "$desk/Software.upd" ||
    die "the instrument's unpacker does not take it"
diff -r "$desk/packages/usr/lib/quvera/bin" "$desk/root/opt/quvera/current/bin" >&2 || die "the update holds something else"
say "   taken, and the same programs and languages: $(stat -c %s "$desk/Software.upd") bytes"

say "4. A fresh Debian 12"
root=$out/root
rm -rf "$root"
if [ ! -d "$out/fresh" ]; then
    debootstrap --arch="$architecture" --variant=minbase --include=systemd,systemd-sysv,dbus,udev,iproute2,procps,python3-minimal bookworm \
        "$out/fresh.new" >"$out/debootstrap.log" 2>&1 || die "no fresh root: $out/debootstrap.log"
    mv "$out/fresh.new" "$out/fresh"
fi
cp -a "$out/fresh" "$root"
rm -f "$root/usr/sbin/policy-rc.d" # services are to start
mkdir "$root/packages"
cp "$out"/first/quvera_*.deb "$out"/first/quvera-tools_*.deb "$desk/Software.upd" "$desk/root/etc/quvera/update.pub" \
    "$here/inside.sh" "$here/checks.sh" "$root/packages"
rm -rf "$desk"
# The next version, which differs in its number only.
dpkg-deb -R "$out"/first/quvera_*.deb "$out/next"
sed -i 's/^Version: .*/&+1/' "$out/next/DEBIAN/control"
dpkg-deb --root-owner-group -b "$out/next" "$root/packages/next.deb" >/dev/null
rm -rf "$out/next"
# No screen here; everything else as on the board.
mkdir -p "$root/etc/quvera"
echo "QT_QPA_PLATFORM=offscreen" >"$root/etc/quvera/board.conf"
container() { systemd-nspawn --quiet --directory="$root" --register=no --keep-unit "$@"; }
container sh -c 'apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    /packages/quvera_*.deb /packages/quvera-tools_*.deb' >"$out/install.log" 2>&1 || die "not installed: $out/install.log"
# Asked inside, for the container has words of its own.
container sh -c '. /packages/checks.sh
    says_nothing systemd-analyze verify --man=no $(printf "/lib/systemd/system/%s.service " quvera quvera-board networking)
' || die "systemd does not like the units"
for unit in quvera quvera-board; do
    container env SYSTEMD_COLORS=0 SYSTEMD_URLIFY=0 SYSTEMD_EMOJI=0 \
        systemd-analyze security --offline=true --no-pager $unit.service 2>/dev/null | tail -n 1 >&2
done

[ "$packages" = "$here/build" ] || touch "$root/packages/emulated"
cat >"$root/etc/systemd/system/packages-check.service" <<EOF
[Unit]
After=multi-user.target
[Service]
Type=oneshot
ExecStart=/bin/sh /packages/inside.sh
StandardOutput=file:/packages/seen
StandardError=file:/packages/errors
ExecStopPost=/bin/systemctl --no-block poweroff
EOF
mkdir -p "$root/etc/systemd/system/default.target.wants"
ln -s ../packages-check.service "$root/etc/systemd/system/default.target.wants/"
timeout 600 systemd-nspawn --quiet --directory="$root" --register=no --keep-unit --boot --private-network \
    >"$out/boot.log" 2>&1 || true
cp "$root/packages/seen" "$root/packages/errors" "$out" 2>/dev/null || die "the container did not come up: $out/boot.log"
cp "$root/packages/menu.png" "$out" 2>/dev/null || true
cat "$out/seen" >&2
grep -q '^all is well$' "$out/seen" || { tail -n 20 "$out/errors" >&2; die "something is wrong (above)"; }
rm -rf "$root"
