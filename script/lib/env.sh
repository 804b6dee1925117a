# Sourced by every script: where the tree is, and a home of the project's own, so that no script
# reads or writes the settings, data or cache of the person who runs it.
# shellcheck shell=bash
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
# shellcheck disable=SC2034 # for the scripts that source this
cores=$(nproc)

export HOME="$root/build/home"
export XDG_CONFIG_HOME="$HOME/config" XDG_DATA_HOME="$HOME/data"
export XDG_CACHE_HOME="$HOME/cache" XDG_STATE_HOME="$HOME/state"
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME" "$XDG_STATE_HOME"

# A bare system has no locale set; file names and messages here are UTF-8.
if [[ $(locale charmap 2>/dev/null) != UTF-8 ]]; then
    export LC_ALL=C.UTF-8
fi

# The web engine's sandbox refuses to start as root.
if ((EUID == 0)); then
    export QTWEBENGINE_DISABLE_SANDBOX=1
fi

# quietly LOG COMMAND...: runs it with its output in LOG, which is shown only when it fails.
quietly() {
    local log=$1 status=0
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 || status=$?
    if ((status != 0)); then
        cat "$log" >&2
    fi
    return "$status"
}

# configure PRESET [CMAKE-ARGUMENT...]
configure() {
    local preset=$1
    shift
    quietly "$root/build/$preset/configure.log" cmake -S "$root" --preset "$preset" "$@"
}

# compile PRESET [TARGET...]: on a terminal with the one-line progress, else silent on success.
compile() {
    local directory="$root/build/$1"
    shift
    if [[ -t 1 ]]; then
        ninja -C "$directory" "$@"
    else
        ninja --quiet -C "$directory" "$@"
    fi
}
