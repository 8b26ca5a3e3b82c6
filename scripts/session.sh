# A session: a Wine prefix with a handheld running in it, on a display or without a screen. Sourced after common.sh,
# display.sh and prefix.sh.
# shellcheck shell=bash

# What the program's folder is called inside a prefix.
QV_PROGRAM_PATH='C:\Program Files\Quorvane'

# profile_file <build folder> <profile>: the path of its description; fails when there is none.
profile_file()
{
    local file=$1/bin/profiles/$2.ini
    [[ -f $file ]] || fail "there is no profile $2; known: $(known_profiles "$1/bin/profiles")"
    printf '%s\n' "$file"
}

known_profiles()
{
    local file names=()
    for file in "$1"/*.ini; do
        file=${file##*/}
        names+=("${file%.ini}")
    done
    printf '%s\n' "${names[*]}"
}

# start_handheld <prefix> <build folder> <profile> <log>: starts what a device has around its programs and waits until
# it is there. Its process id is in QV_HANDHELD_PID. It is also what keeps Wine's own services running.
start_handheld()
{
    local prefix=$1 build=$2 profile=$3 log=$4
    QV_FOCUS_LIBRARY=$build/wine/libx11_focus.so
    [[ -f $QV_FOCUS_LIBRARY ]] || fail "the build lacks $QV_FOCUS_LIBRARY"
    rm -f "$prefix/drive_c/handheld.ready"
    start_in_prefix "$prefix" "$log" "$QV_WINE" "$QV_PROGRAM_PATH\\handheld.exe" \
        --profile "$QV_PROGRAM_PATH\\profiles\\$profile.ini" --ready 'C:\handheld.ready'
    QV_HANDHELD_PID=$QV_STARTED
    if ! wait_until 60 handheld_started "$prefix" "$QV_HANDHELD_PID" ||
        process_ended "$QV_HANDHELD_PID"; then
        tail -n 20 "$log" >&2
        fail "the handheld did not start (its output: $log)"
    fi
}

# Ready, or ended without having become ready: both stop the waiting.
handheld_started()
{
    [[ -e $1/drive_c/handheld.ready ]] || process_ended "$2"
}
