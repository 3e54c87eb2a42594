#!/usr/bin/env bash
# package.sh [twice]: builds the Debian packages from a copy of the tree in build/package, without the tests, which
# `./check` runs, and validates what they bring: the packages, the menu entry, what software centres show, the manual pages.
# With "twice" it builds them in another folder as well, and fails if a byte differs.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
source "$root/tools/setup.sh"
cd "$root"
name=$(dpkg-parsechangelog -S Source)
version=$(dpkg-parsechangelog -S Version)
target=$root/build/package

# Prints the project's files, each with a closing zero. A copy without git, or one that git mistrusts, is searched.
files() {
    git ls-files -z --cached --others --exclude-standard 2>/dev/null ||
        find . \( -path ./build -o -path './.*' \) -prune -o -type f -printf '%P\0'
}

build_in() {
    rm -rf "${target:?}/$1"
    mkdir -p "$target/$1/$name-$version"
    files | tar -c --null --ignore-failed-read -T - | tar -x -C "$target/$1/$name-$version"
    (cd "$target/$1/$name-$version" &&
        DEB_BUILD_PROFILES=nocheck DEB_BUILD_OPTIONS="nocheck noautodbgsym parallel=$(nproc)" \
            dpkg-buildpackage -us -uc -b >"../build.log" 2>&1) ||
        { tail -n 40 "$target/$1/build.log"; return 1; }
}

say "== packages"
build_in first
if [ "${1:-}" = twice ]; then
    build_in second/elsewhere
    for package in "$target"/first/*.deb; do
        cmp "$package" "$target/second/elsewhere/${package##*/}"
    done
fi
(cd "$target/first" && sha256sum -- *.deb && du -h -- *.deb)

say "== validation"
lintian --allow-root --fail-on error,warning "$target"/first/*.changes
installed=$target/first/$name-$version/debian/$name/usr
desktop-file-validate "$installed"/share/applications/*.desktop
appstreamcli validate --pedantic --no-net "$installed"/share/metainfo/*.xml
for page in docs/*.6; do
    warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -T utf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$warnings" ] || { printf '%s\n' "$page: $warnings"; exit 1; }
done
