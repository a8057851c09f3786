#!/usr/bin/env bash
# Installs the build into a DESTDIR as a desktop would find it, validates the
# desktop entry and the AppStream metadata, checks that the entry's program and
# icon are there and that the program starts; then builds the Debian package
# and checks its fields and files.
#   tests/install/check_install.sh BUILD_DIR
set -euo pipefail
build=$(realpath "$1")
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
usr=$tmp/root/usr

DESTDIR=$tmp/root cmake --install "$build" --prefix /usr >/dev/null
desktop=$(echo "$usr"/share/applications/*.desktop)
desktop-file-validate "$desktop"
# validate-tree also checks that the metainfo's launchable desktop entry exists.
appstreamcli validate-tree --no-net "$usr"

# Exec names the installed program alone (the program takes no arguments).
program=$usr/bin/$(sed -n 's/^Exec=//p' "$desktop")
test -x "$program" || { echo "Exec does not name an installed program: $program"; exit 1; }
icon=$(sed -n 's/^Icon=//p' "$desktop")
for size in 48 128 256; do
  file "$usr/share/icons/hicolor/${size}x$size/apps/$icon.png" | grep -q "PNG image data, $size x $size" ||
    { echo "no ${size}px hicolor icon $icon"; exit 1; }
done
# The program starts and keeps running until it is stopped.
status=0
QT_QPA_PLATFORM=offscreen timeout 5 "$program" 2>/dev/null || status=$?
((status == 124)) || { echo "the installed program ended with status $status"; exit 1; }

# The Debian package, with the dependencies dpkg-shlibdeps found.
(cd "$tmp" && cpack --config "$build/CPackConfig.cmake" -B "$tmp/deb" >/dev/null)
deb=$(echo "$tmp"/deb/sudoku-vantu_*.deb)
dpkg-deb --field "$deb" Section | grep -qx games
dpkg-deb --field "$deb" Depends | grep -q libqt5widgets5
contents=$(dpkg-deb --contents "$deb")
for path in usr/bin/sudoku-vantu "usr/share/applications/${desktop##*/}" usr/share/metainfo/ \
            "usr/share/icons/hicolor/256x256/apps/$icon.png"; do
  grep -q "\./$path" <<<"$contents" || { echo "$deb lacks $path"; exit 1; }
done
echo "installed tree and $(basename "$deb") are complete"
