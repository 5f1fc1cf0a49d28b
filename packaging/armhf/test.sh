#!/bin/bash
# Builds everything for the board and compares it, under an emulator, with what was built for this machine: pictures,
# Modbus, a recording; and tries the tools. Then sizes, and instructions of a start. No part of the repository's test.sh.
set -eu
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$top/packaging/common.sh"
here=$top/packaging/armhf
export QUVERA_SYSROOT=${QUVERA_SYSROOT:-$top/build/armhf-sysroot}
install_packages armhf/debian-packages.txt
"$here/make-sysroot"

configure release
build "$top/build" quvera quvera-processor quvera-remote quvera-files
configure armhf
(cd "$top" && cmake --build --preset armhf --parallel "${QUVERA_JOBS:-$(nproc)}") >&2 || die "the build for the board failed"
/usr/bin/python3 "$here/check.py" --sysroot "$QUVERA_SYSROOT" --arm "$top/build/armhf/bin" --desk "$top/build/bin"

programs="quvera quvera-processor quvera-remote quvera-files quvera-panel quvera-gallery make-update update-unpack"
version=$(sed -n 's/^project(quvera VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt")
echo
echo "Version $version, built on $(date -I) by $(arm-linux-gnueabihf-g++ --version | head -n 1)"
echo "Sizes for the board, bytes of code and constants, of data, of zeros:"
# shellcheck disable=SC2086  # a list of names
(cd "$top/build/armhf/bin" && arm-linux-gnueabihf-size $programs |
    awk 'NR > 1 { printf "  %-18s %9d %8d %8d\n", $6, $1, $2, $3 }')

scratch=$(mktemp -d "${TMPDIR:-/tmp}/quvera-armhf.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
gcc -shared -fPIC -O2 -o "$scratch/count.so" "$here/countinstructions.c"
echo "Instructions of a start, without the kernel's:"
for point in splash menu; do
    mkdir "$scratch/$point"
    QUVERA_ROOT=$scratch/$point QT_QPA_PLATFORM=offscreen \
        QT_PLUGIN_PATH=$QUVERA_SYSROOT/usr/lib/arm-linux-gnueabihf/qt5/plugins \
        qemu-arm -L "$QUVERA_SYSROOT" -plugin "$scratch/count.so" "$top/build/armhf/bench/bench_start" "--$point" \
        >/dev/null 2>"$scratch/said" || true
    count=$(sed -n 's/^instructions: //p' "$scratch/said")
    [ -n "$count" ] || { cat "$scratch/said" >&2; die "the start to the $point was not counted"; }
    echo "  to the $point: $count"
done
