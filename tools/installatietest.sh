#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks the installation:
# the files are where the program looks for them, the desktop entry and the
# metainfo validate, and the installed program starts in German and Dutch
# with its catalogues from the prefix. Needs a display of its own (ctest runs
# it through tools/eigenscherm.sh).
set -euo pipefail
bouw="$1"
prefix=$(mktemp -d /tmp/klavermol-installatie-XXXXXX)
thuis=$(mktemp -d /tmp/klavermol-thuis-XXXXXX)
trap 'rm -rf "$prefix" "$thuis"' EXIT

cmake --install "$bouw" --prefix "$prefix" >/dev/null

fout=0
controleer() { if ! "$@"; then echo "FAILED: $*"; fout=1; fi; }
is_png() { file "$1" | grep -q "PNG image data, $2,"; }
for taal in de nl en; do
    for domein in Klavermol Zelvanodesktop; do
        controleer test -f "$prefix/share/Zelvano/Klavermol/locale/$taal/LC_MESSAGES/$domein.mo"
    done
done
for beeld in thuis.svg uitvoeren.svg klavermol.svg zelvano.svg; do
    controleer test -f "$prefix/share/klavermol/ikonen/$beeld"
done
controleer test -x "$prefix/bin/klavermol"
controleer test -x "$prefix/bin/klavermol-cli"
controleer test -f "$prefix/share/icons/hicolor/scalable/apps/klavermol.svg"
for n in 16 32 48 64 128 256; do
    controleer is_png "$prefix/share/icons/hicolor/${n}x${n}/apps/klavermol.png" "$n x $n"
done
controleer desktop-file-validate "$prefix/share/applications/nl.zelvano.Klavermol.desktop"
controleer appstreamcli validate --no-net "$prefix/share/metainfo/nl.zelvano.Klavermol.metainfo.xml"

# The installed catalogues are the translated ones.
controleer_vertaling() { msgunfmt "$prefix/share/Zelvano/Klavermol/locale/$1/LC_MESSAGES/$2.mo" | grep -x "msgstr \"$3\"" >/dev/null; }
controleer controleer_vertaling de Klavermol Allgemein
controleer controleer_vertaling nl Klavermol Algemeen
controleer controleer_vertaling de Zelvanodesktop "Anwendung neu starten"
controleer controleer_vertaling nl Zelvanodesktop "Applicatie opnieuw starten"

# The installed program, started with each language pinned in its settings
# and closed as a user would (Ctrl+Q): it found the catalogues below its own
# prefix when the name it wrote back at exit is the translated default. A
# screenshot of the main window is left beside the build for a person to
# look at (the labels themselves are checked by the GUI tests).
start_in_taal() {
    local taal="$1" naam="$2" beeld="$3"
    printf '[Gebruikersinstellingen]\nEncoding=%s\n' "$taal" > "$thuis/.Klavermol"
    HOME="$thuis" "$prefix/bin/klavermol" > "$thuis/uitvoer.txt" 2>&1 &
    local pid=$! venster="" vensters=""
    # Up to a minute (a loaded machine) for the main window (titled, unlike
    # the splash screen) to stand alone, once the splash screen has gone.
    for _ in $(seq 600); do
        venster=$(xdotool search --onlyvisible --pid "$pid" --name '^Klavermol' 2>/dev/null | head -n 1 || true)
        vensters=$(xdotool search --onlyvisible --pid "$pid" 2>/dev/null || true)
        [ -n "$venster" ] && [ "$vensters" = "$venster" ] && break
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.1
    done
    controleer test -n "$venster"
    controleer kill -0 "$pid"
    if command -v import >/dev/null; then
        import -window root "$beeld" && echo "screenshot: $beeld"
    fi
    # Ctrl+Q once a second until the program has gone (a key sent while the
    # window manager still moves the focus can be lost), for half a minute.
    for _ in $(seq 30); do
        kill -0 "$pid" 2>/dev/null || break
        xdotool windowfocus --sync "$venster" key ctrl+q 2>/dev/null || true
        for _ in $(seq 10); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
    done
    if kill -0 "$pid" 2>/dev/null; then echo "FAILED: Ctrl+Q did not close the program"; fout=1; kill "$pid"; fi
    wait "$pid" 2>/dev/null || true
    controleer grep -q "^Projektnaam=$naam\$" "$thuis/.Klavermol"
    if [ -s "$thuis/uitvoer.txt" ]; then echo "output of the program:"; cat "$thuis/uitvoer.txt"; fi
}
start_in_taal "$(cat "$bouw/taalnummers/duits")" MeinErstesProjekt "$bouw/installatie-duits.png"
start_in_taal "$(cat "$bouw/taalnummers/nederlands")" MijnEersteProject "$bouw/installatie-nederlands.png"

if [ $fout = 0 ]; then echo "1 passed, 0 failed"; else echo "0 passed, 1 failed"; fi
exit $fout
