# What `play` and `check` share. To be sourced; `root` is the folder of the project.

# These scripts write their messages to standard error: standard output belongs to the game or the tests.
say() { printf '%s\n' "$*" >&2; }

# On a terminal, one line that is drawn again and again: a stage and how far it is, from 0 to 100.
bar() {
    local full=$(($2 * 30 / 100))
    [ ! -t 2 ] || printf '\r%-20s [%-30s] %3d %%\033[K' "$1" "$(printf '%*s' "$full" '' | tr ' ' '#')" "$2" >&2
}
bar_ends() { [ ! -t 2 ] || printf '\r\033[K' >&2; }

give_up() {
    bar_ends
    say "$*"
    exit 1
}
trap 'bar_ends; say "Stopped. Start it again to go on from here."; exit 130' INT

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

# As root: installs packages. Standard output tells how it goes, a line each: "granted" as soon as it runs, apt's own status
# lines, "plan:..." before anything is installed, "failure:..." at the end; everything else goes to the log. A mirror may fail
# once: up to three tries.
install_as_root() {
    local log=$1 try plan unknown
    local apt=(apt-get -q -y -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
    shift
    export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
    echo granted
    exec 3>&1 >>"$log" 2>&1 </dev/null
    "${apt[@]}" -o APT::Status-Fd=3 -o APT::Update::Error-Mode=any update || echo "failure:lists" >&3
    unknown=$(apt-cache policy "$@" | awk '
        BEGIN { for (i = 1; i < ARGC; i++) unknown[ARGV[i]]; ARGC = 1 }
        /^[^ ]/ { name = substr($1, 1, length($1) - 1) }
        /^  Candidate:/ && $2 != "(none)" { delete unknown[name] }
        END { for (name in unknown) printf " %s", name }' "$@")
    if [ -n "$unknown" ]; then
        echo "failure:unknown$unknown" >&3
        return
    fi
    plan=$("${apt[@]}" install --no-install-recommends --assume-no "$@" | sed -n \
        -e 's/.* \([0-9]*\) newly installed.*/\1 packages/p' -e 's/^Need to get \(.*B\)\(\/.*B\)\? of.*/, \1 to fetch/p' \
        -e 's/^After this operation, \(.*B\) of additional.*/, \1 on the disk/p' | tr -d '\n')
    echo "plan:$plan" >&3
    for try in 1 2 3; do
        "${apt[@]}" -o APT::Status-Fd=3 install --no-install-recommends "$@" && return
        sleep "$try"
    done
    echo "failure:install" >&3
}

# why_not LOG FAILURE: what the player can do about an installation that has failed.
why_not() {
    local system
    system=$(sed -n 's/^PRETTY_NAME="\(.*\)"/\1/p' /etc/os-release)
    if [ "$2" = none ]; then
        give_up "Only root can install packages, and sudo does not let you: ask whoever looks after this machine to run:" \
            "apt install ${missing[*]}"
    elif grep -q "enough free space\|No space left" "$1"; then
        give_up "The disk is too full for these packages: make room on it and start again."
    elif [[ $2 = *lists* ]]; then
        give_up "The packages cannot be fetched: check the network and start again. (What apt says is in $1.)"
    elif [[ $2 = *unknown* ]]; then
        give_up "$system does not have${2##*unknown}: it takes Debian 12 or a relative of its age or younger."
    fi
    give_up "The packages cannot be installed; what apt says is in $1, and \"apt --fix-broken install\" may help."
}

# install_missing [game]: installs what is missing, after it has said what that is.
install_missing() {
    local needed missing log as_root=() status percent kind text failure=none
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "This is not a Debian system, so nothing is installed. The contents of these Debian packages are needed:" \
            "$(needed_packages "$@" | tr '\n' ' ')"
        return
    fi
    mapfile -t needed < <(needed_packages "$@")
    mapfile -t missing < <(missing_packages "${needed[@]}")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || why_not "" none
        as_root=(sudo)
    fi
    say "These packages will be installed, with what they need: ${missing[*]}"
    log=$(mktemp --suffix=.log "${TMPDIR:-/tmp}/lexigrove-apt-XXXXXX")
    while IFS=: read -r kind text percent _; do
        percent=${percent%%.*}
        case $kind in
            granted) failure= ;;
            plan) bar_ends && say "That is $text: a minute or more, with the speed of the network." ;;
            dlstatus) bar "Fetching packages" "$percent" ;;
            pmstatus) bar "Installing packages" "$percent" ;;
            failure) failure+=" $text" ;;
        esac
    done < <("${as_root[@]}" bash -c "$(declare -f install_as_root); install_as_root \"\$@\"" install "$log" "${missing[@]}")
    bar_ends
    mapfile -t missing < <(missing_packages "${needed[@]}")
    [ ${#missing[@]} = 0 ] || why_not "$log" "$failure"
    rm -f "$log"
}

# forget_moved PRESET: a build folder that was set up somewhere else, before the project was moved, is to be set up anew.
forget_moved() {
    local build=$root/build/$1
    [ ! -f "$build/CMakeCache.txt" ] || grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$build/CMakeCache.txt" ||
        rm -rf "$build/CMakeCache.txt" "$build/CMakeFiles" "$build/build.ninja"
}
