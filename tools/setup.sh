# What `play` and `check` share. To be sourced; `root` is the folder of the project.

# These scripts write their messages to standard error: standard output belongs to the game or the tests.
say() { printf '%s\n' "$*" >&2; }

# Prints the packages in debian/control's Build-Depends, one per line; with "game", without those that only checking and
# packaging need.
needed_packages() {
    awk -v game="${1:-}" '
        /^#/ { next }
        /^[^ \t]/ { inside = 0 }
        sub(/^Build-Depends:/, "") { inside = 1 }
        inside {
            count = split($0, entries, ",")
            for (i = 1; i <= count; i++) {
                if (game == "game" && entries[i] ~ /<|debhelper/) continue
                split(entries[i], words, /[ \t(<\[|]+/)
                name = words[1] == "" ? words[2] : words[1]
                sub(/^debhelper-compat$/, "debhelper", name) # a name that debhelper goes by
                if (name != "") print name
            }
        }' "$root/debian/control"
}

# Prints those of the named packages that are not installed.
missing_packages() {
    local installed
    # dpkg-query fails when it has never heard of one of them.
    installed=$( (dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true) |
        awk '$2 == "installed" { print $1 }')
    comm -23 <(printf '%s\n' "$@" | sort -u) <(printf '%s\n' "$installed" | sort -u)
}

# Runs apt-get as root. A mirror may fail once: up to three tries.
apt_get() {
    local as_root=() try
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    for try in 1 2 3; do
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get -q -y -o Acquire::Retries=3 \
            -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@" </dev/null >&2 && return
        say "apt-get $1 failed (try $try of 3)."
        sleep $((try * 3))
    done
    return 1
}

# install_missing [game]: installs what is missing.
install_missing() {
    local needed missing
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is not a Debian system, so nothing is installed. The contents of these Debian packages are needed:" \
            "$(needed_packages "$@" | tr '\n' ' ')"
        return
    fi
    mapfile -t needed < <(needed_packages "$@")
    mapfile -t missing < <(missing_packages "${needed[@]}")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        say "These packages are missing, and only root can install them: ${missing[*]}"
        return 1
    fi
    say "Installing ${#missing[@]} packages and what they need: ${missing[*]}"
    apt_get update
    apt_get install --no-install-recommends "${missing[@]}"
}
