#!/usr/bin/env bash
# Counts the instructions of `vexa render` to SVG for charts of 10,000 and of 100,000 points (callgrind). Ten times the
# points may cost 10.5 times the instructions; more is an error.
# usage: bench/growth.sh BUILD_DIR
set -euo pipefail
build=${1:?usage: bench/growth.sh BUILD_DIR}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# document KIND POINTS: "line" or "text" for one line, "clustered" or "stacked" for ten series of bars.
document() {
    awk -v kind="$1" -v points="$2" 'BEGIN {
        bars = kind != "line" && kind != "text"
        series = bars ? 10 : 1
        tag = bars ? "bar-chart" : "line-chart"
        print "<root xmlns=\"http://vexa-charts.org/2008/vx\" width=\"1200\" height=\"600\"><plot-area>"
        print "<" tag (bars ? " grouping=\"" kind "\">" : ">")
        for (s = 0; s < series; ++s) {
            print "<serie>"
            for (i = 0; i < points / series; ++i)
                printf "<data-point category=\"%s%d\" value=\"%d\"/>\n", kind == "text" ? "item " : "", i, 50 + (i * 7919 + s * 104729) % 1000 / 25
            print "</serie>"
        }
        print "</" tag "><category-axis><display-values/></category-axis><value-axis><display-values/></value-axis></plot-area></root>"
    }'
}

# instructions KIND POINTS
instructions() {
    document "$1" "$2" >"$work/chart.xml"
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$build/bin/vexa" render "$work/chart.xml" -o "$work/chart.svg" 2>&1 |
        awk '/Collected/ { print $NF }'
}

status=0
for kind in line text clustered stacked; do
    awk -v kind="$kind" -v small="$(instructions "$kind" 10000)" -v large="$(instructions "$kind" 100000)" 'BEGIN {
        printf "%-10s %6.0f and %6.0f instructions a point, factor %.2f\n", kind, small / 1e4, large / 1e5, large / small
        exit large / small > 10.5
    }' || status=1
done
exit $status
