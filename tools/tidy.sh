#!/usr/bin/env bash
# tidy.sh BUILD-FOLDER: runs clang-tidy over the project's C++ that has been built there, tests aside: a folder at a time where
# the build compiles it so. What has passed is skipped until it, a header that it includes, .clang-tidy or clang-tidy itself
# changes.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
build=$(readlink -f "$1")
passed=$root/build/tidy
mkdir -p "$passed"
if [ ! -f "$build/compile_commands.json" ]; then
    echo "$build was not configured with -DCMAKE_EXPORT_COMPILE_COMMANDS=ON." >&2
    exit 1
fi
cd "$root"

# Prints a line for each object file built: its source and the project's files that it includes, as paths from the root
# separated by tabs.
dependencies() {
    ninja -C "$build" -t deps | awk -v root="$root/" '
        /^[^ ]/ { if (line != "") print line; line = ""; next }
        sub(/^    /, "") {
            path = $0
            if (index(path, root) == 1) path = substr(path, length(root) + 1)
            else if (!sub(/^(\.\.\/)+/, "", path)) next
            if (line == "") line = path
            else if (path !~ /^(build|usr)\//) line = line "\t" path
        }
        END { if (line != "") print line }'
}

tidy_one() {
    local files stamp log
    IFS=$'\t' read -r -a files <<<"$1"
    stamp=$passed/$( (clang-tidy --version; cat .clang-tidy "${files[@]}") | sha256sum | cut -c 1-40)
    [ ! -e "$stamp" ] || return 0
    log=$(mktemp)
    if clang-tidy -p "$build" --quiet --extra-arg=-Wno-unknown-warning-option "${files[0]}" >"$log" 2>&1; then
        touch "$stamp"
    else
        cat "$log"
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
export -f tidy_one
export passed build

dependencies | awk -F '\t' '$1 ~ /\.(cpp|cxx)$/ && $1 !~ /(^|\/)(tests|bench)\/|_autogen\//' |
    sort -u | tr '\n' '\0' | xargs -0 -r -n 1 -P "$(nproc)" bash -c 'tidy_one "$1"' tidy
