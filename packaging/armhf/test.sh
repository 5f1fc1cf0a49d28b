#!/bin/bash
# Builds everything for the board and compares it, under an emulator, with what was built for this machine: pictures,
# Modbus, a recording; and tries the tools. Then sizes, and instructions of a start (figures). No part of the repository's test.sh.
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
"$here/figures"
