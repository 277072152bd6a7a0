#!/usr/bin/env bash
# Installs the package on this machine, starts the installed kelvora under a virtual display as a
# new user would, checks that it made its store in the user's data folder and is still running
# with its main window up, then removes the package again. Needs root (or sudo) and
# scripts/install-deps.sh --gui; the package comes from scripts/package.sh unless given.
set -euo pipefail
cd "$(dirname "$0")/.."
deb="${1:-$(scripts/package.sh | tail -1)}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
if dpkg-query -W -f='${Status}' kelvora 2>/dev/null | grep -q 'install ok installed'; then
    echo "kelvora is installed already; remove it first" >&2
    exit 1
fi

home=$(mktemp -d)
display=""
for number in $(seq 90 130); do
    [ -e "/tmp/.X11-unix/X$number" ] || [ -e "/tmp/.X$number-lock" ] || { display=":$number"; break; }
done
cleanup() {
    [ -n "${program:-}" ] && kill "$program" 2>/dev/null || true
    [ -n "${xvfb:-}" ] && kill "$xvfb" 2>/dev/null || true
    $sudo dpkg -r kelvora >/dev/null 2>&1 || true
    rm -rf "$home"
}
trap cleanup EXIT

DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "$deb" >/dev/null
for path in /usr/bin/kelvora /usr/bin/kelvora-newstore /usr/share/applications/kelvora.desktop \
            /usr/share/icons/hicolor/48x48/apps/kelvora.png /usr/share/kelvora/states.tsv; do
    [ -e "$path" ] || { echo "missing after install: $path" >&2; exit 1; }
done

Xvfb "$display" -screen 0 1366x768x24 >/dev/null 2>&1 &
xvfb=$!
sleep 1
# The first start makes the store and tells where; the box is answered with Enter.
HOME="$home" XDG_DATA_HOME="$home/.local/share" DISPLAY="$display" /usr/bin/kelvora &
program=$!
store="$home/.local/share/Kelvora/Kelvora.db"
for _ in $(seq 30); do [ -f "$store" ] && break; sleep 1; done
[ -f "$store" ] || { echo "no store was made at $store" >&2; exit 1; }
sleep 2
DISPLAY="$display" xdotool key Return
sleep 3
kill -0 "$program" || { echo "kelvora ended on its first start" >&2; exit 1; }
DISPLAY="$display" xdotool search --name "Kelvora :--" >/dev/null \
    || { echo "the main window did not open" >&2; exit 1; }
echo "package checked: installed, started with a store at $store, removed"
