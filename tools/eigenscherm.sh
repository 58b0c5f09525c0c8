#!/usr/bin/env bash
# Runs a command on an X display and under a window manager of its own
# (Xvfb and openbox), so that tests run side by side never share a screen,
# a pointer or a keyboard focus. Both go when this script goes, also when it
# is killed. Listing a test program's tests needs no display.
set -euo pipefail
case " $* " in *" --gtest_list_tests "*) exec "$@" ;; esac

map=$(mktemp -d "${TMPDIR:-/tmp}/klavermol-scherm-XXXXXX")
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$map"' EXIT
# Xvfb picks a free display number and writes it once it takes connections.
exec 3< <(exec setpriv --pdeathsig TERM Xvfb -displayfd 1 -screen 0 1366x768x24 -nolisten tcp 2>/dev/null)
read -r -t 30 -u 3 nummer
export DISPLAY=":$nummer"
unset WAYLAND_DISPLAY
# openbox runs its start-up command once it manages the screen.
mkfifo "$map/wm"
exec 4<>"$map/wm"
setpriv --pdeathsig TERM openbox --sm-disable --startup "sh -c 'echo > $map/wm'" >/dev/null 2>&1 &
read -r -t 30 -u 4 _
# As root the command also gets a /tmp of its own (the program keeps its
# single-instance lock there); the display stays reachable through its
# abstract socket.
if [ "$(id -u)" = 0 ]; then
    unshare --mount --propagation private sh -c 'mount -t tmpfs klavermol /tmp && exec "$@"' sh "$@"
else
    "$@"
fi
