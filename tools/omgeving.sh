# Shared by ./run and ./test: installs what is missing, configures and builds.
# Sourced, not run.

KLAVERMOL_PAKKETTEN=(build-essential cmake pkg-config libwxgtk3.2-dev libgtk-3-dev wx3.2-i18n gettext librsvg2-bin iso-flags-svg)
KLAVERMOL_TEST_PAKKETTEN=(libgtest-dev googletest xvfb xauth xdotool locales imagemagick
                          desktop-file-utils appstream dpkg-dev file time openbox)
KLAVERMOL_TALEN=(en_US.UTF-8 de_DE.UTF-8 nl_NL.UTF-8 fr_FR.UTF-8 en_GB.UTF-8)

als_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

installeer_ontbrekende() {
    local ontbreekt=()
    local p
    for p in "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || ontbreekt+=("$p")
    done
    if [ ${#ontbreekt[@]} -gt 0 ]; then
        echo "Installing missing packages: ${ontbreekt[*]}"
        als_root apt-get update -q
        als_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${ontbreekt[@]}"
    fi
}

zorg_voor_locales() {
    local nodig=0 l
    for l in "${KLAVERMOL_TALEN[@]}"; do
        locale -a 2>/dev/null | grep -qix "$(echo "$l" | sed 's/UTF-8/utf8/')" || nodig=1
    done
    [ $nodig = 0 ] && return 0
    for l in "${KLAVERMOL_TALEN[@]}"; do
        als_root sed -i "s/^# *\($l UTF-8\)/\1/" /etc/locale.gen
        grep -q "^$l UTF-8" /etc/locale.gen || echo "$l UTF-8" | als_root tee -a /etc/locale.gen >/dev/null
    done
    als_root locale-gen
}

bouw() {
    local map="$1"
    cmake -S . -B "$map" -DCMAKE_BUILD_TYPE=Release >/dev/null
    cmake --build "$map" -j"$(nproc)"
}
