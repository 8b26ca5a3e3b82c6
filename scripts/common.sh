# What every script of the project shares: where things lie and how they speak. Sourced, never run.
# shellcheck shell=bash

QV_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# All builds and what is made beside them; nothing is written anywhere else.
QV_BUILDS=${QV_BUILDS:-$QV_ROOT/build}

say()
{
    printf '%s\n' "$*" >&2
}

fail()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# make_folder <folder>: creates it and proves that files can be written there.
make_folder()
{
    local probe
    mkdir -p "$1" 2>/dev/null || fail "cannot create the folder $1"
    probe=$(mktemp "$1/.probe.XXXXXX" 2>/dev/null) || fail "cannot write to the folder $1"
    rm -f "$probe"
}

# wait_until <seconds> <command...>: tries the command until it succeeds; fails when the time is up.
wait_until()
{
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.1
    done
}

# end_process <pid>: asks a process that this script started to end, and insists after three seconds.
end_process()
{
    [[ -n ${1:-} ]] || return 0
    kill "$1" 2>/dev/null || return 0
    wait_until 3 process_ended "$1" || kill -KILL "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}

# A zombie whose parent has not yet asked for it counts as ended.
process_ended()
{
    local state
    state=$(sed -n 's/^State:[[:space:]]*\(.\).*/\1/p' "/proc/$1/status" 2>/dev/null) || true
    [[ -z $state || $state == [ZX] ]]
}
