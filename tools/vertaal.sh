#!/usr/bin/env bash
# Extracts the translatable texts into data/po/<domain>.pot and merges them
# into every data/po/<domain>/<lang>.po; the English catalogues take the
# texts as they stand. Run after changing user-visible texts.
set -euo pipefail
cd "$(dirname "$0")/.."

trek_uit() {
    local domein="$1"; shift
    xgettext --language=C++ --from-code=UTF-8 --keyword=_ --keyword=wxTRANSLATE --keyword=wxGetTranslation \
        --keyword=wxPLURAL:1,2 --add-comments=TRANSLATORS --sort-by-file --package-name=Klavermol \
        --msgid-bugs-address=klavermol@zelvano.nl -o "data/po/$domein.pot" "$@"
    mkdir -p "data/po/$domein"
    local taal po
    for taal in de nl en; do
        po="data/po/$domein/$taal.po"
        if [ -f "$po" ]; then
            msgmerge --quiet --update --backup=none --no-fuzzy-matching "$po" "data/po/$domein.pot"
        else
            msginit --no-translator --locale="$taal" --input="data/po/$domein.pot" --output-file="$po"
        fi
    done
    msgen --output-file="data/po/$domein/en.po" "data/po/$domein/en.po"
}

# The shared frame: start-up, language, about box. Headers too: a default
# argument such as a dialog's title is a text of its own.
trek_uit Zelvanodesktop desktop/*.cpp desktop/h/*.h dialogs/taalkeuzedialoog.*
# The program itself, its dialogs and the comment lines it writes.
trek_uit Klavermol toepassing/*.cpp toepassing/*.h $(ls dialogs/*.cpp dialogs/*.h | grep -v taalkeuzedialoog) \
    kern/*.cpp kern/*.h $(ls cli/*.cpp 2>/dev/null)
