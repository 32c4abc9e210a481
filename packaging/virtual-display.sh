# SPDX-License-Identifier: MIT
# Sourced by scripts that show the program on a machine without a display. The caller has an array `started` of the
# processes to end, last first. Everything is waited for by looking, up to a deadline; nothing sleeps for a fixed time.

deadline_seconds=30

# until_true COMMAND...: looks again and again until the command succeeds; fails at the deadline.
until_true() {
    local end=$((SECONDS + deadline_seconds))
    until "$@"; do
        if ((SECONDS >= end)); then
            echo "Waited $deadline_seconds seconds in vain: $*" >&2
            return 1
        fi
        sleep 0.1
    done
}

# start_display FOLDER: a virtual display of 1280 by 1024 with a window manager, on a number that is free.
start_display() {
    # Without -noreset the server starts anew when its last client leaves, and turns away whoever comes meanwhile.
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$1/display" 2>"$1/xvfb.log" &
    started+=($!)
    until_true test -s "$1/display"
    DISPLAY=:$(cat "$1/display")
    export DISPLAY
    unset WAYLAND_DISPLAY
    openbox --sm-disable >"$1/openbox.log" 2>&1 &
    started+=($!)
    until_true window_manager_is_there
}

window_manager_is_there() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# wait_for_window PROCESS: prints the first visible window of the process.
wait_for_window() {
    until_true has_window "$1" && xdotool search --onlyvisible --pid "$1" --name . | head -n 1
}

has_window() { [ -n "$(xdotool search --onlyvisible --pid "$1" --name . 2>/dev/null)" ]; }

# wait_for_picture WINDOW: until the window shows more than bare ground, and shows the same twice.
wait_for_picture() {
    last_look=
    until_true is_painted "$1"
}

is_painted() {
    local colors look
    colors=$(import -window "$1" -format '%k' info: 2>/dev/null) || return 1
    look=$(import -window "$1" -format '%#' info: 2>/dev/null) || return 1
    [ "${colors:-0}" -ge 24 ] && [ "$look" = "$last_look" ] && return 0
    last_look=$look
    return 1
}

# wait_for_end PROCESS: until the process has ended by itself.
wait_for_end() { until_true has_ended "$1"; }

has_ended() { ! kill -0 "$1" 2>/dev/null; }
