# Configures and builds a preset; silent unless it fails. Sourced after common.sh.
# shellcheck shell=bash

# quietly <log> <command...>: on failure shows the end of what the command said.
quietly()
{
    local log=$1
    shift
    if ! "$@" >"$log" 2>&1 </dev/null; then
        tail -n 60 "$log" >&2
        fail "failed: $* (all of its output: $log)"
    fi
}

# build_preset <preset> [target...]: all targets when none is named. The result is in $QV_BUILDS/<preset>.
build_preset()
{
    local preset=$1 folder=$QV_BUILDS/$1
    shift
    make_folder "$folder"
    # The build system looks after changed project files itself, but not after the presets.
    if [[ ! -f $folder/build.ninja || $QV_ROOT/CMakePresets.json -nt $folder/build.ninja ]]; then
        say "Configuring $preset ..."
        quietly "$folder/configure.log" cmake -S "$QV_ROOT" --preset "$preset" -B "$folder"
        # Ninja's file is left alone when nothing in it changes.
        touch "$folder/build.ninja"
    fi
    say "Building $preset (what has changed) ..."
    quietly "$folder/build.log" ninja -C "$folder" "$@"
}

# substitute_dlls: the names of the DLLs that stand in for the device's libraries, one a line.
substitute_dlls()
{
    awk '!/^#/ && $2 != "-" { print $2 ".dll" }' "$QV_ROOT/platform/imports/libraries.txt" | sort -u
}
