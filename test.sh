#!/bin/bash
# Builds everything and runs every test: under the sanitizers first, then all of them as they are used.
# The last lines are CTest's summary of that last run.
top=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd) || exit 1
. "$top/packaging/common.sh"
case "$*" in
-h|--help)
    echo "Usage: ./test.sh [--quick]    (--quick: no sanitizer runs)"
    exit 0 ;;
''|--quick) ;;
*) die "unknown options: $* (./test.sh --help)" ;;
esac

install_packages debian-test-packages.txt
export QT_QPA_PLATFORM=offscreen
jobs=${QUVERA_JOBS:-$(nproc)}

# sanitized <preset> <ctest filters...>: builds only the tests that the filters choose, and runs them.
# Their names are the names of their executables.
sanitized()
{
    preset=$1
    shift
    configure "$preset"
    tests=$(ctest --test-dir "$top/build/$preset" -N "$@" | sed -n 's/^ *Test *#[0-9]*: *//p')
    [ -n "$tests" ] || die "no test is chosen by: $*"
    # shellcheck disable=SC2086  # a list of names
    build "$top/build/$preset" $tests
    (cd "$top" && ctest --preset "$preset" -j "$jobs") || die "tests fail under $preset"
}

if [ "${1:-}" != --quick ]; then
    sanitized asan -LE 'system|long|source'
    sanitized tsan -L tsan
fi

configure release
build "$top/build"
cd "$top" && exec ctest --preset release -j "$jobs"
