#!/bin/bash
# packaging/debian/test.sh [FOLDER]: builds the packages twice, from two folders, and asks whether they are the same to
# the byte; has them looked at by lintian; then installs, runs, upgrades, removes and purges them in a fresh Debian 12
# that boots in a container of its own. As root; needs debootstrap, systemd-container, lintian, and half an hour the first
# time. FOLDER keeps the packages and what was seen (default: build/packages). No part of the repository's test.sh.
set -eu
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$top/packaging/common.sh"
here=$top/packaging/debian
out=${1:-$top/build/packages}
[ "$(id -u)" -eq 0 ] || die "a fresh root wants root"
install_packages debian/debian-packages.txt
mkdir -p "$out"
out=$(cd "$out" && pwd)

say "1. Two builds from two folders"
"$here/build" "$out/first" >"$out/build.log" 2>&1 || die "the build failed: $out/build.log"
mkdir -p "$out/elsewhere/deep down"
TMPDIR="$out/elsewhere/deep down" "$here/build" "$out/second" >"$out/build2.log" 2>&1 || die "the build failed: $out/build2.log"
rm -rf "$out/elsewhere"
for package in "$out"/first/*.deb; do
    cmp "$package" "$out/second/${package##*/}" || die "${package##*/} differs from build to build"
done
say "   the same to the byte: $(cd "$out/first" && echo *.deb)"

say "2. Lintian"
lintian --fail-on error --suppress-tags bad-distribution-in-changes-file "$out"/first/*.changes | tee "$out/lintian.log" >&2 ||
    die "lintian finds errors"

say "3. A fresh Debian 12"
root=$out/root
rm -rf "$root"
if [ ! -d "$out/fresh" ]; then
    debootstrap --variant=minbase --include=systemd,systemd-sysv,dbus,udev,iproute2,procps,python3-minimal bookworm \
        "$out/fresh.new" >"$out/debootstrap.log" 2>&1 || die "no fresh root: $out/debootstrap.log"
    mv "$out/fresh.new" "$out/fresh"
fi
cp -a "$out/fresh" "$root"
rm -f "$root/usr/sbin/policy-rc.d" # services are to start
mkdir "$root/packages"
cp "$out"/first/quvera_*.deb "$out"/first/quvera-tools_*.deb "$root/packages"
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
container systemd-analyze verify /lib/systemd/system/quvera.service >&2 || die "systemd does not like the unit"
container systemd-analyze security --offline=true --no-pager quvera.service 2>/dev/null | tail -n 1 >&2

cp "$here/inside.sh" "$root/packages/inside.sh"
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
