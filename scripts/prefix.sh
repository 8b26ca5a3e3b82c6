# The Wine prefixes: a pristine one made once, and copies of it that a profile's settings are put into.
# Sourced after common.sh.
# shellcheck shell=bash disable=SC2034

# The program itself: the `wine` wrapper prints a hint about a missing 32-bit Wine.
QV_WINE=/usr/lib/wine/wine64
QV_WINESERVER=/usr/lib/wine/wineserver64
QV_PROGRAM_FOLDER='Program Files/Quorvane'

# prefix_environment <prefix>: sets QV_ENVIRONMENT, what every Wine process here gets. The language is fixed so that
# Wine's own programs have the same titles everywhere; mscoree and mshtml off keep Wine from offering to download what
# they would need.
prefix_environment()
{
    QV_ENVIRONMENT=(WINEPREFIX="$1" WINESERVER="$QV_WINESERVER" WINEDEBUG="${WINEDEBUG:--all}"
        WINEDLLOVERRIDES='mscoree=;mshtml=' LC_ALL=C.UTF-8)
}

# in_prefix <prefix> <command...>: runs a command that shows no window.
in_prefix()
{
    prefix_environment "$1"
    shift
    env "${QV_ENVIRONMENT[@]}" "$@"
}

# become_handheld_program <prefix> <command...>: takes the place of this (sub)shell. It starts in the root of drive C,
# the drive that paths without one mean, and holds none of the scripts' locks (descriptors 8 and 9) open.
become_handheld_program()
{
    prefix_environment "$1"
    cd "$1/drive_c" || exit
    shift
    exec env "${QV_ENVIRONMENT[@]}" LD_PRELOAD="$QV_FOCUS_LIBRARY" "$@" 8>&- 9>&-
}

# start_in_prefix <prefix> <log> <command...>: starts a command that outlives Ctrl-C. Its process id is in QV_STARTED.
start_in_prefix()
{
    local prefix=$1 log=$2
    shift 2
    (become_handheld_program "$prefix" setsid "$@") </dev/null >>"$log" 2>&1 &
    QV_STARTED=$!
}

# end_prefix <prefix>: ends every process of the prefix, and of no other.
end_prefix()
{
    [[ -d $1/dosdevices ]] || return 0
    in_prefix "$1" "$QV_WINESERVER" -k >/dev/null 2>&1 || true
    in_prefix "$1" timeout 20 "$QV_WINESERVER" -w >/dev/null 2>&1 || true
}

# prefix_recipe <text...>: changes when a prefix made earlier is no longer what these scripts would make.
prefix_recipe()
{
    {
        "$QV_WINE" --version
        cat "$QV_ROOT/scripts/prefix.sh" "$QV_ROOT/platform/pc/wine/handheld.reg.in"
        printf '%s\n' "$*"
    } | sha256sum | cut -d' ' -f1
}

# prefix_good <prefix> <recipe>: whole and up to date.
prefix_good()
{
    [[ -O $1 && -s $1/system.reg && -s $1/user.reg && -e $1/drive_c/windows/system32/ntdll.dll ]] &&
        [[ $(cat "$1/recipe" 2>/dev/null) == "$2" ]]
}

# make_pristine_prefix <prefix>: what Wine itself puts into a new prefix. It has no display, and a home of its own so
# that the prefix has no links into the user's folders.
make_pristine_prefix()
{
    local prefix=$1 recipe
    recipe=$(prefix_recipe pristine)
    if prefix_good "$prefix" "$recipe"; then
        return 0
    fi
    say "Preparing Wine ..."
    end_prefix "$prefix"
    rm -rf "$prefix"
    make_folder "$prefix/home"
    in_prefix "$prefix" env -u DISPLAY HOME="$prefix/home" \
        "$QV_WINE" wineboot -i </dev/null >"$prefix/wineboot.log" 2>&1 9>&- ||
        fail "Wine could not prepare its folder $prefix (its output: $prefix/wineboot.log)"
    end_prefix "$prefix"
    # The caption buttons of Wine's own programs are letters of this font.
    cp /usr/share/wine/fonts/marlett.ttf "$prefix/drive_c/windows/Fonts/"
    printf '%s\n' "$recipe" >"$prefix/recipe"
    prefix_good "$prefix" "$recipe" || fail "Wine's folder $prefix is not complete (its output: $prefix/wineboot.log)"
}

# copy_prefix <from> <to>: the files of drive C share their contents, which Wine replaces but does not write into. The
# registry's files must be real copies: wineserver writes in place into a file that has several links.
copy_prefix()
{
    cp -al "$1" "$2" 2>/dev/null || cp -a "$1" "$2"
    rm -f "$2"/*.reg "$2/.update-timestamp" "$2/recipe"
    cp -a "$1"/*.reg "$1/.update-timestamp" "$2/"
}

# make_profile_prefix <prefix> <profile file> <program folder> <graphics>: a copy of the pristine prefix with the
# profile's screen. The program's folder is a link to where the build leaves it. <graphics> is x11, or null for a
# session without a screen.
make_profile_prefix()
{
    local prefix=$1 profile=$2 program=$3 graphics=$4
    local pristine=$QV_BUILDS/wine/pristine width height dpi recipe
    width=$(profile_value "$profile" width)
    height=$(profile_value "$profile" height)
    dpi=$(profile_value "$profile" dpi)
    recipe=$(prefix_recipe "$width $height $dpi $graphics")
    make_folder "${prefix%/*}"
    if ! prefix_good "$prefix" "$recipe"; then
        # One script at a time makes the pristine prefix; the test sessions start side by side.
        make_folder "$QV_BUILDS/wine"
        exec 8>"$QV_BUILDS/wine/lock"
        flock 8
        make_pristine_prefix "$pristine" 8>&-
        exec 8>&-
        end_prefix "$prefix"
        rm -rf "$prefix"
        copy_prefix "$pristine" "$prefix"
        sed -e "s/@SCREEN@/${width}x$height/" -e "s/@DPI@/$(printf '%08x' "$dpi")/" -e "s/@GRAPHICS@/$graphics/" \
            "$QV_ROOT/platform/pc/wine/handheld.reg.in" >"$prefix/handheld.reg"
        in_prefix "$prefix" env -u DISPLAY \
            "$QV_WINE" regedit /S "$prefix/handheld.reg" </dev/null >/dev/null 2>&1 9>&- ||
            fail "the handheld's settings could not be put into Wine's registry ($prefix/handheld.reg)"
        # The size and the resolution of the screen are read when Wine starts.
        end_prefix "$prefix"
        printf '%s\n' "$recipe" >"$prefix/recipe"
    fi
    ln -sfn "$program" "$prefix/drive_c/$QV_PROGRAM_FOLDER"
}

# profile_value <file> <name>: a value of the profile.
profile_value()
{
    local value
    value=$(tr -d '\r' <"$1" | sed -n "s/^[[:space:]]*$2[[:space:]]*=[[:space:]]*\([^;#]*[^;#[:space:]]\).*/\1/Ip" |
        head -n 1)
    [[ -n $value ]] || fail "the profile $1 does not say its $2"
    printf '%s\n' "$value"
}
