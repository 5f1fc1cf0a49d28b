#!/bin/bash
# Builds the benchmarks and prints each figure beside its limit in the same run, as a ratio; then the figures of
# the board's build, as they were counted last.
# Usage: ./bench.sh [name...]    (names of tests/bench without "bench_"; default: all)
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd) || exit 1
. "$top/packaging/common.sh"
case "${1:-}" in -h|--help) sed -n '2,4s/^# //p' "$0"; exit 0 ;; esac

names=$(sed -n 's/^ *quvera_bench(\(bench_[a-z0-9_]*\).*/\1/p' "$top"/tests/bench/CMakeLists.txt | sort)
for name in "$@"; do
    printf '%s\n' "$names" | grep -qxF "bench_$name" || die "no benchmark $name (names: $(echo ${names//bench_/}))"
done
[ $# -eq 0 ] || names=$(printf 'bench_%s\n' "$@")
[ -n "$names" ] || die "there are no benchmarks"

install_packages
configure release
export QT_QPA_PLATFORM=offscreen
# shellcheck disable=SC2086  # a list of names
build "$top/build" quvera quvera-processor $names
status=0
for name in $names; do
    echo "== ${name#bench_}"
    "$top/tests/with-root" "$top/build/bench/$name" || status=1
done
[ $# -ne 0 ] || { echo "== board"; board_figures; }
exit $status
