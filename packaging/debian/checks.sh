# How test.sh and inside.sh, which read this, ask programs whose status alone tells too little.

# without_errors LOG PACKAGES...: lintian finds no error. What it says is kept, and shown either way.
without_errors()
{
    log=$1
    shift
    found=0
    lintian --fail-on error "$@" >"$log" 2>&1 || found=$?
    cat "$log" >&2
    return "$found"
}

# says_nothing COMMAND...: it ends well and without a word, for `systemd-analyze verify` ends well with mere warnings.
says_nothing()
{
    words=$("$@" 2>&1) && [ -z "$words" ] && return 0
    printf '%s\n' "$words" >&2
    return 1
}

# has_title PICTURE TITLE: the instrument drew it with this title in its bar, as the picture's note says.
has_title()
{
    python3 -c 'if True:
        import sys
        picture, title = sys.argv[1], sys.argv[2].encode()
        note = b"tEXtTitle\0" + title
        length = (len(note) - 4).to_bytes(4, "big")
        sys.exit(length + note not in open(picture, "rb").read())
    ' "$1" "$2"
}
