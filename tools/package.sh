#!/usr/bin/env bash
# package.sh [twice]: builds the Debian packages in build/package from a copy of the tree, without the tests, which `./check`
# runs, and validates what they bring: the packages, the menu entry, what software centres show, the manual pages. With "twice"
# it builds them in another folder as well, and fails if a byte differs.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
source "$root/tools/setup.sh"
cd "$root"
target=$root/build/package
again=$root/build/package-again/elsewhere

say "== packages"
install_missing
name=$(dpkg-parsechangelog -S Source)
version=$(dpkg-parsechangelog -S Version)
if ! grep -q "^project(.* VERSION $version " CMakeLists.txt || ! grep -q "^## \[$version\]" CHANGELOG.md; then
    say "debian/changelog is at version $version, but CMakeLists.txt or CHANGELOG.md is not."
    exit 1
fi

# Prints the project's files, each with a closing zero. A copy without git, or one that git mistrusts, is searched.
files() {
    git ls-files -z --cached --others --exclude-standard 2>/dev/null ||
        find . \( -path ./build -o -path './.*' \) -prune -o -type f -printf '%P\0'
}

build_in() {
    rm -rf "$1"
    mkdir -p "$1/$name-$version"
    files | tar -c --ignore-failed-read --null -T - | tar -x -C "$1/$name-$version"
    if ! (cd "$1/$name-$version" &&
        DEB_BUILD_PROFILES=nocheck DEB_BUILD_OPTIONS="nocheck noautodbgsym parallel=$(nproc)" \
            dpkg-buildpackage -us -uc -b >../build.log 2>&1); then
        tail -n 40 "$1/build.log" >&2
        return 1
    fi
}

build_in "$target"
if [ "${1:-}" = twice ]; then
    build_in "$again"
    for package in "$target"/*.deb; do
        cmp "$package" "$again/${package##*/}"
    done
fi
(cd "$target" && sha256sum -- *.deb >&2)

say "== validation"
lintian --allow-root --fail-on error,warning "$target"/*.changes
installed=$target/$name-$version/debian/$name/usr
desktop-file-validate "$installed"/share/applications/*.desktop
appstreamcli validate --pedantic --no-net "$installed"/share/metainfo/*.xml
for page in docs/*.6; do
    warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -Tutf8 -Z -l "$page" 2>&1 >/dev/null)
    if [ -n "$warnings" ]; then
        printf '%s\n' "$page: $warnings" >&2
        exit 1
    fi
done
