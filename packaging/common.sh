# Shared by run.sh, test.sh and bench.sh, which set `top` to the repository's folder before they read this.

say_to=2 # the descriptor that takes what the scripts say
say() { printf '%s\n' "$*" >&"$say_to"; }
die() { printf 'quvera: %s\n' "$*" >&"$say_to"; exit 1; }

# missing_packages <lists...>: names of their packages that are not installed.
missing_packages()
{
    wanted=$(cd "$top/packaging" && sed -e 's/#.*//' "$@")
    # shellcheck disable=SC2086  # a list of names
    installed=$(dpkg-query -W -f='${Package} ${Status}\n' $wanted 2>/dev/null | sed -n 's/ [a-z]* ok installed$//p')
    for package in $wanted; do
        printf '%s\n' "$installed" | grep -qxF "$package" || printf '%s ' "$package"
    done
}

# install_packages [lists...]: installs what is missing of these and of the common list, by apt, and only then asks for
# rights. No server is started by that.
install_packages()
{
    command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
        die "this script installs by apt; on another system install the peers of packaging/debian-packages.txt by hand"
    missing=$(missing_packages debian-packages.txt "$@")
    [ -n "$missing" ] || return 0
    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            die "packages are missing and there is no sudo; as root run: apt-get install $missing"
        as_root=sudo
    fi
    say "Installing: $missing"
    log=$(mktemp "${TMPDIR:-/tmp}/quvera-apt.XXXXXX") || die "no temporary file can be written"
    # Lists that are a little old are good enough when the network hiccups: only the installation decides.
    $as_root apt-get update >"$log" 2>&1 </dev/null || say "apt-get update failed; trying with the lists at hand"
    # shellcheck disable=SC2086  # a list of names
    if ! $as_root env DEBIAN_FRONTEND=noninteractive SYSTEMD_OFFLINE=1 \
        apt-get install -y --no-install-recommends $missing >>"$log" 2>&1 </dev/null; then
        die "apt-get could not install: $missing(what it said: $log)"
    fi
    rm -f "$log"
}

# alone <command...>: runs it while nobody else configures or builds here: two at a time spoil each other's records.
# Only this script holds the lock: a child that outlives it does not keep others waiting.
alone()
{
    mkdir -p "$top/build" 2>/dev/null && [ -w "$top/build" ] || die "$top/build cannot be written"
    exec 8<"$top/build" || die "$top/build cannot be read"
    if ! flock -n 8; then
        say "Another start builds in $top/build; this one waits for it."
        flock 8 || die "the lock of $top/build cannot be had"
    fi
    "$@" 8<&-
    exec 8<&-
}

# configure_and_build <preset> <folder> [target...]: nobody comes in between.
configure_and_build() { alone configure_and_build_now "$@"; }
configure_and_build_now()
{
    configure_now "$1"
    shift
    build_now "$@"
}

# configure <preset>: configures once; CMake itself notices later changes of its files.
configure() { alone configure_now "$@"; }
configure_now()
{
    log="$top/build/configure-$1.log"
    if ! (cd "$top" && cmake --preset "$1") >"$log" 2>&1; then
        tail -n 25 "$log" >&2
        die "configuring failed (preset $1; all of it: $log)"
    fi
    rm -f "$log"
}

# build <folder> [target...]
build() { alone build_now "$@"; }
build_now()
{
    folder=$1
    shift
    cmake --build "$folder" --parallel "${QUVERA_JOBS:-$(nproc)}" ${1:+--target "$@"} >&2 ||
        die "the build failed"
}

# Where packaging/armhf/figures leaves sizes and instructions of the board's build.
board_figures_file() { printf '%s\n' "$top/build/armhf/figures"; }
# board_figures: prints them, or what counts them.
board_figures()
{
    if [ -s "$(board_figures_file)" ]; then
        cat "$(board_figures_file)"
    else
        echo "not counted here yet: packaging/armhf/test.sh does it"
    fi
}
