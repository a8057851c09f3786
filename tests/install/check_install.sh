#!/usr/bin/env bash
# Installs the build into a DESTDIR as a desktop would find it, validates the
# desktop entry and the AppStream metadata, checks the entry's program and
# icons and that the program starts; then checks the Debian package.
#   tests/install/check_install.sh BUILD_DIR
set -euo pipefail
build=$(realpath "$1")
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
usr=$tmp/root/usr
fail() { echo "$*"; exit 1; }

DESTDIR=$tmp/root cmake --install "$build" --prefix /usr >/dev/null
desktop=$(echo "$usr"/share/applications/*.desktop)
desktop-file-validate "$desktop"
appstreamcli validate-tree --no-net "$usr"  # also checks the launchable desktop entry exists
# Each language the program speaks: the entry's four texts, the metadata's name, summary and every paragraph and item.
metainfo=$(echo "$usr"/share/metainfo/*.xml)
for lang in de fr es it pt_BR ru zh_CN ja; do
  for key in Name GenericName Comment Keywords; do
    grep -q "^$key\[$lang\]=." "$desktop" || fail "$key[$lang] missing from the desktop entry"
  done
  (($(grep -c "xml:lang=\"$lang\"" "$metainfo") == 7)) || fail "metainfo texts in $lang missing"
done
program=$usr/bin/$(sed -n 's/^Exec=//p' "$desktop")  # the program takes no arguments
test -x "$program" || fail "Exec does not name an installed program: $program"
icon=$(sed -n 's/^Icon=//p' "$desktop")
for size in 48 128 256; do
  file "$usr/share/icons/hicolor/${size}x$size/apps/$icon.png" | grep -q "PNG image data, $size x $size" ||
    fail "no ${size}px hicolor icon $icon"
done
status=0  # the program starts and keeps running until it is stopped
XDG_DATA_HOME=$tmp/data QT_QPA_PLATFORM=offscreen timeout 5 "$program" 2>/dev/null || status=$?
((status == 124)) || fail "the installed program ended with status $status"

(cd "$tmp" && cpack --config "$build/CPackConfig.cmake" -B "$tmp/deb" >/dev/null)
deb=$(echo "$tmp"/deb/sudoku-vantu_*.deb)
dpkg-deb --field "$deb" Section | grep -qx games
# The Qt build the game was made against, then what dpkg-shlibdeps found; the Wayland platform plugin recommended.
depends=$(dpkg-deb --field "$deb" Depends) recommends=$(dpkg-deb --field "$deb" Recommends)
{ grep -Eq '^qtbase-abi-5-15-[0-9]+, .*libqt5widgets5' <<<"$depends" && [[ $recommends == qtwayland5 ]]; } ||
  { grep -Eq '^qt6-base-abi \(= 6\.[0-9.]+\), .*libqt6widgets6' <<<"$depends" && [[ $recommends == qt6-wayland ]]; } ||
  fail "the package's Qt dependencies: $depends; recommends: $recommends"
contents=$(dpkg-deb --contents "$deb")
for path in usr/bin/sudoku-vantu "usr/share/applications/${desktop##*/}" usr/share/metainfo/ \
            "usr/share/icons/hicolor/256x256/apps/$icon.png"; do
  grep -q "\./$path" <<<"$contents" || fail "$deb lacks $path"
done
echo "installed tree and $(basename "$deb") are complete"
