#!/bin/bash
# bench/schaal.sh N DIR [SOURCE]
# Builds DIR/xN: N hard-linked copies (cp -al) of a source tree, then measures
# on it `find -L` with the seven patterns, klavermol-cli, and, when a display
# is there, klavermol-bench add and execute. Prints key=value lines.
# Without SOURCE a tree shaped like a large C code base is generated once in
# DIR/basis (57,600 files in 3,600 directories, 50,400 of them sources).
# KLAVERMOL_BIN names the directory of the programs (default: build/bin).
set -euo pipefail
n=${1:?usage: schaal.sh N DIR [SOURCE]}
dir=${2:?usage: schaal.sh N DIR [SOURCE]}
bin=${KLAVERMOL_BIN:-$(cd "$(dirname "$0")/.." && pwd)/build/bin}
mkdir -p "$dir"
dir=$(cd "$dir" && pwd)

bron=${3:-$dir/basis}
if [ -z "${3:-}" ] && [ ! -e "$bron/klaar" ]; then
    rm -rf "$bron"
    for a in $(seq 0 14); do
        for b in $(seq 0 15); do
            for c in $(seq 0 14); do
                m="$bron/sub$a/deel$b/map$c"
                mkdir -p "$m"
                (cd "$m" && touch bron{0..5}.c kop{0..5}.h code{0..1}.S lees{0..1}.txt)
            done
        done
    done
    touch "$bron/klaar"
fi

boom="$dir/x$n"
if [ ! -d "$boom" ]; then
    mkdir -p "$boom.tmp"
    for i in $(seq 1 "$n"); do
        cp -al "$bron" "$boom.tmp/kopie$i"
    done
    mv "$boom.tmp" "$boom"
fi
echo "tree=$boom"

# Runs a command under /usr/bin/time: sets cpu (user + system), wall and peak.
meet() {
    local tijden="$dir/tijden.txt"
    /usr/bin/time -o "$tijden" -f '%U %S %e %M' "$@" > /dev/null 2> /dev/null
    read -r user sys wall kb < "$tijden"
    cpu=$(awk "BEGIN { printf \"%.2f\", $user + $sys }")
    peak=$((kb / 1024))
}

meet find -L "$boom" -type f \( -name '*.c' -o -name '*.h' -o -name '*.cpp' -o -name '*.cxx' -o -name '*.hpp' \
    -o -name '*.s' -o -name '*.S' \)
echo "files=$(find -L "$boom" -type f \( -name '*.c' -o -name '*.h' -o -name '*.cpp' -o -name '*.cxx' \
    -o -name '*.hpp' -o -name '*.s' -o -name '*.S' \) | wc -l)"
find_cpu=$cpu
echo "find_cpu_s=$cpu"
echo "find_wall_s=$wall"

meet "$bin/klavermol-cli" -o "$boom" -m recursive --c --cpp --h --asm "$boom"
echo "cli_cpu_s=$cpu"
echo "cli_wall_s=$wall"
echo "cli_peak_mb=$peak"
echo "cli_vs_find=$(awk "BEGIN { printf \"%.2f\", $cpu / ($find_cpu > 0 ? $find_cpu : 0.01) }")"

if [ -n "${DISPLAY:-}" ] && [ -x "$bin/klavermol-bench" ]; then
    "$bin/klavermol-bench" add "$boom" 2> /dev/null | sed 's/^/add_/'
    "$bin/klavermol-bench" execute "$boom" 2> /dev/null | sed 's/^/execute_/'
else
    echo "bench=skipped (no DISPLAY or no klavermol-bench)"
fi
