#!/bin/bash
# Builds everything for the board and compares it, under an emulator, with what was built for this machine: pictures,
# Modbus, a recording. Then sizes, and instructions of a start. Takes some minutes and is no part of test.sh.
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
python3 "$here/check.py" --sysroot "$QUVERA_SYSROOT" --arm "$top/build/armhf/bin" --desk "$top/build/bin"

echo
echo "Sizes for the board, bytes of code and constants, of data, of zeros:"
(cd "$top/build/armhf/bin" && size quvera quvera-processor quvera-remote quvera-files update-unpack |
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
        2>&1 >/dev/null | sed -n "s/^instructions: /  to the $point: /p"
done
