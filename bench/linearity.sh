#!/usr/bin/env bash
# Counts the instructions of reading, drawing as SVG and freeing documents of n and of FACTOR times n pieces, for all
# that a document can have many of (callgrind: the same counts whatever else the machine does). An error when one of
# them costs more than 1.1 times FACTOR times the instructions.
# usage: bench/linearity.sh BUILD_DIR [FACTOR [NAME...]]     FACTOR is 2, and all names are tried, when not given
set -euo pipefail
build=${1:?usage: bench/linearity.sh BUILD_DIR [FACTOR [NAME...]]}
factor=${2:-2}
program=$build/bench/vexa_linearity
[ -x "$program" ] || { echo "$program is not there: build it first" >&2; exit 2; }
[ $# -gt 2 ] && names=$(printf '%s\n' "${@:3}") || names=

# instructions NAME SIZE
instructions() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect=renderCounted "$program" "$1" "$2" 2>&1 |
        awk '/Collected/ { print $NF; found = 1 } END { exit !found }'
}

# measure SIZE NAME: a line of the table; fails when the work grows faster than the document
measure() {
    local small large
    small=$(instructions "$2" "$1")
    large=$(instructions "$2" "$(($1 * factor))")
    awk -v name="$2" -v size="$1" -v small="$small" -v large="$large" -v limit="$(awk "BEGIN { print 1.1 * $factor }")" 'BEGIN {
        slow = large / small > limit
        printf "%-22s %6d %14d %14d %8d %6.2f%s\n", name, size, small, large, small / size, large / small, slow ? "  TOO MUCH" : ""
        exit slow
    }'
}
export -f instructions measure
export program factor

printf '%-22s %6s %14s %14s %8s %6s\n' 'what grows' n 'instructions' "of $factor n" 'a piece' ratio
"$program" | while read -r size name; do
    [ -z "$names" ] || grep -qxF "$name" <<<"$names" || continue
    printf '%s\0%s\0' "$size" "$name"
done | xargs -0 -n 2 -P "$(nproc)" bash -c 'set -o pipefail; measure "$1" "$2"' _ || { echo 'Work that grows faster than its document'; exit 1; }
