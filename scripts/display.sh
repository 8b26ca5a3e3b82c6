# The X display the handheld's screen is shown on. Sourced after common.sh.
# shellcheck shell=bash disable=SC2034

# display_usable: there is a display, and it lets us in.
display_usable()
{
    [[ -n ${DISPLAY:-} ]] && timeout 5 xdpyinfo >/dev/null 2>&1
}

# display_has_lines <count>: it is at least so high.
display_has_lines()
{
    local lines
    lines=$(timeout 5 xdpyinfo 2>/dev/null | sed -n 's/^ *dimensions: *[0-9]*x\([0-9]*\) pixels.*/\1/p' | head -n 1)
    ((${lines:-0} >= $1))
}

# start_display <folder>: starts a display server on a free number and sets QV_DISPLAY and QV_DISPLAY_PID. The screen is
# larger than any profile's in both directions, so that the handheld can be turned.
start_display()
{
    local number=$1/display
    make_folder "$1"
    command -v Xvfb >/dev/null || fail "there is no usable display and no display server (package xvfb)"
    rm -f "$number"
    setsid Xvfb -displayfd 3 -screen 0 800x800x24 -nolisten tcp -noreset \
        3>"$number" </dev/null >"$1/display.log" 2>&1 9>&- &
    QV_DISPLAY_PID=$!
    if ! wait_until 20 display_numbered "$number" "$QV_DISPLAY_PID"; then
        tail -n 20 "$1/display.log" >&2
        fail "the display server did not start"
    fi
    QV_DISPLAY=:$(<"$number")
}

# Ready, or ended without having become ready: both stop the waiting.
display_numbered()
{
    if process_ended "$2"; then
        fail "the display server ended at once: $(tail -n 3 "${1%/*}/display.log" | tr '\n' ' ')"
    fi
    [[ $(tail -c 1 "$1" 2>/dev/null | od -An -c) == *\\n* ]]
}
