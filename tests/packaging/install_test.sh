#!/usr/bin/env bash
# Installs what was built, moves it, and looks whether it works there: the data is whole, the desktop's files are
# valid, and the first start makes the user's tree and leaves the shipped one alone.
#   install_test.sh BUILD_FOLDER
set -euo pipefail

build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "failed: $*" >&2
    exit 1
}

DESTDIR=$work/staged cmake --install "$build" --prefix /usr >"$work/install.log" || fail "$(tail -5 "$work/install.log")"
mkdir "$work/moved place"
mv "$work/staged/usr" "$work/moved place/usr"
usr="$work/moved place/usr"
share=$usr/share

for file in applications/quillet.desktop mime/packages/quillet.xml metainfo/invalid.quillet.quillet.metainfo.xml \
    man/man6/quillet.6 man/man1/quillet-cli.1 doc/quillet/copyright icons/hicolor/{16x16,48x48,256x256}/apps/quillet.png; do
    [[ -s $share/$file ]] || fail "no $file"
done
[[ -z $(find "$share" -name '.*') ]] || fail "hidden files are installed"
if command -v desktop-file-validate >/dev/null; then desktop-file-validate "$share/applications/quillet.desktop"; fi
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$share/metainfo/invalid.quillet.quillet.metainfo.xml" >"$work/appstream.log" ||
        fail "$(cat "$work/appstream.log")"
fi
entry=$(sed -n 's:.*<launchable type="desktop-id">\(.*\)</launchable>.*:\1:p' "$share"/metainfo/*.xml)
[[ -f $share/applications/$entry ]] || fail "software centres look for $entry"
if command -v update-mime-database >/dev/null; then
    update-mime-database "$share/mime"
    grep -q '^50:application/x-quillet-game:\*.qlg$' "$share/mime/globs2" || fail "*.qlg has no type"
    rm -r "$share/mime"
fi
if command -v man >/dev/null; then
    for page in man6/quillet.6 man1/quillet-cli.1; do
        man --warnings -l "$share/man/$page" 2>&1 >"$work/page" | grep . && fail "$page has faults"
        [[ -s $work/page ]] || fail "$page shows nothing"
    done
fi

export HOME=$work/home XDG_DATA_HOME="$work/home/my data"
mkdir -p "$HOME"
cd "$HOME"
"$usr/bin/quillet-cli" check "$share/quillet"
"$usr/bin/quillet-cli" selfplay --games 1 --quiet >/dev/null || fail "quillet-cli does not find its data"
[[ ! -e $XDG_DATA_HOME ]] || fail "quillet-cli made a tree"

[[ -x $usr/bin/quillet ]] || exit 0
before=$(cd "$share/quillet" && find . -type f -exec sha256sum {} + | sort)
QT_QPA_PLATFORM=offscreen timeout -s KILL 60 "$usr/bin/quillet" >"$work/quillet.log" 2>&1 &
pid=$!
own=$XDG_DATA_HOME/quillet
for ((i = 0; i < 400; ++i)); do
    [[ -e $own/Data/Prefs/1000.str ]] && break
    sleep 0.05
done
sleep 0.5
pkill -KILL -P "$pid" || true
wait "$pid" 2>/dev/null || true
[[ -e $own/Data/Prefs/1000.str ]] || fail "no preferences in the user's tree: $(cat "$work/quillet.log")"
"$usr/bin/quillet-cli" check "$own"
[[ $(readlink "$own/Data/Sounds") == "$share/quillet/Data/Sounds" ]] || fail "the sounds are not linked"
[[ $(cd "$share/quillet" && find . -type f -exec sha256sum {} + | sort) == "$before" ]] || fail "shipped files changed"
