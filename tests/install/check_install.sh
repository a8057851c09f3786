#!/usr/bin/env bash
# Installs the build into a DESTDIR as a desktop finds it (valid, translated desktop entry and AppStream metadata, the
# entry's program and icons, the program starting), then checks the Debian package.   usage: check_install.sh BUILD_DIR
set -euo pipefail
build=$(realpath "$1") tmp=$(mktemp -d) usr=$tmp/root/usr
trap 'rm -rf "$tmp"' EXIT
fail() { echo "$*"; exit 1; }

DESTDIR=$tmp/root cmake --install "$build" --prefix /usr >/dev/null
desktop=$(echo "$usr"/share/applications/*.desktop) metainfo=$(echo "$usr"/share/metainfo/*.xml)
desktop-file-validate "$desktop"
appstreamcli validate-tree --no-net "$usr"  # also checks the launchable desktop entry exists
# Each language the program speaks: the entry's four texts, the metadata's name, summary and every paragraph and item.
for lang in de fr es it pt_BR ru zh_CN ja; do
  (($(grep -Ec "^(Name|GenericName|Comment|Keywords)\[$lang\]=." "$desktop") == 4)) || fail "desktop entry lacks $lang"
  (($(grep -c "xml:lang=\"$lang\"" "$metainfo") == 7)) || fail "metainfo texts in $lang missing"
done
program=$usr/bin/$(sed -n 's/^Exec=//p' "$desktop") icon=$(sed -n 's/^Icon=//p' "$desktop")  # Exec: no arguments
(($(file "$usr"/share/icons/hicolor/{48x48,128x128,256x256}/apps/"$icon".png |
  grep -Ec '/([0-9]+)x\1/apps/[^/]*: *PNG image data, \1 x \1,') == 3)) || fail "the icon $icon in 48, 128 and 256 px"
status=$(XDG_DATA_HOME=$tmp/data QT_QPA_PLATFORM=offscreen timeout 5 "$program" &>/dev/null; echo $?)
((status == 124)) || fail "the installed $program ended (status $status) before it was stopped"

(cd "$tmp" && cpack --config "$build/CPackConfig.cmake" -B "$tmp/deb" >/dev/null)
deb=$(echo "$tmp"/deb/sudoku-vantu_*.deb)
dpkg-deb --field "$deb" Section | grep -qx games
# The Qt build the game was made against, then what dpkg-shlibdeps found; the Wayland platform plugin recommended.
depends=$(dpkg-deb --field "$deb" Depends) recommends=$(dpkg-deb --field "$deb" Recommends)
{ grep -Eq '^qtbase-abi-5-15-[0-9]+, .*libqt5widgets5' <<<"$depends" && [[ $recommends == qtwayland5 ]]; } ||
  { grep -Eq '^qt6-base-abi \(= 6\.[0-9.]+\), .*libqt6widgets6' <<<"$depends" && [[ $recommends == qt6-wayland ]]; } ||
  fail "the package's Qt dependencies: $depends; recommends: $recommends"
diff <(cd "$tmp/root" && find . ! -type d | sort) <(dpkg-deb --contents "$deb" | awk '$1 !~ /^d/ {print $6}' | sort) ||
  fail "the package's files differ from the installed ones"
