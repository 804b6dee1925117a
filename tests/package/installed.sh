# Sourced by the tests here, with CMake's program and the build folder as arguments: installs into a
# folder of its own, $prefix, which is removed at the end.
# shellcheck shell=bash
set -euo pipefail

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
"$1" --install "$2" --prefix "$prefix" >/dev/null

failed=0
# complain WORD...: notes that something is wrong, and goes on.
complain() {
    echo "$*" >&2
    # shellcheck disable=SC2034 # the tests' exit status
    failed=1
}
