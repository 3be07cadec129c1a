#!/usr/bin/env bash
# Times a whole `vexa render` process: to SVG beside a C program that writes the same text, the floor of any such program;
# to PDF and PNG, where they are built in, beside the one to SVG.
# usage: bench/process.sh BUILD_DIR [RUNS]
set -euo pipefail
build=${1:?usage: bench/process.sh BUILD_DIR [RUNS]}
runs=${2:-300}
top=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

chart=$top/examples/coffee-tasting.xml
vexa=$build/bin/vexa
"$vexa" render "$chart" -o "$work/chart.svg"
{
    printf '#include <stdio.h>\nstatic const unsigned char text[] = {'
    od -An -v -tu1 "$work/chart.svg" | sed 's/  */,/g; s/^,//; s/$/,/'
    printf '};\nint main(int n, char** v) { FILE* f = fopen(v[n - 1], "w"); fwrite(text, 1, sizeof text, f); return fclose(f); }\n'
} >"$work/floor.c"
cc -O2 -o "$work/floor" "$work/floor.c"

# Starts a program so many times and prints the milliseconds of one run. Small itself, so that what it starts counts.
cat >"$work/timer.c" <<'C'
#include <spawn.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <time.h>
extern char** environ;
int main(int argc, char** argv) {
    const int runs = atoi(argv[1]);
    struct timespec a, b;
    (void)argc;
    clock_gettime(CLOCK_MONOTONIC, &a);
    for (int i = 0; i < runs; ++i) {
        pid_t child;
        int status = 0;
        if (posix_spawn(&child, argv[2], 0, 0, argv + 2, environ) || waitpid(child, &status, 0) < 0 || status) return 1;
    }
    clock_gettime(CLOCK_MONOTONIC, &b);
    printf("%.4f\n", ((b.tv_sec - a.tv_sec) * 1e3 + (b.tv_nsec - a.tv_nsec) / 1e6) / runs);
    return 0;
}
C
cc -O2 -o "$work/timer" "$work/timer.c"

formats=svg
for format in pdf png; do
    if "$vexa" render "$chart" -o "$work/out.$format" 2>/dev/null; then formats+=" $format"; fi
done

# All in turn, so that the machine's moods hit all; the median of nine batches.
for _ in 1 2 3 4 5 6 7 8 9; do
    "$work/timer" "$runs" "$work/floor" "$work/out.txt" >>"$work/floor.ms"
    for format in $formats; do
        "$work/timer" "$runs" "$vexa" render "$chart" -o "$work/out.$format" >>"$work/$format.ms"
    done
done
median() { sort -n "$work/$1.ms" | sed -n 5p; }
compare() { # what beside what
    awk -v name="$1" -v a="$(median "$1")" -v other="$2" -v b="$(median "$2")" \
        'BEGIN { printf "%-6s %6.2f ms   %5.2f times %s\n", name, a, a / b, other }'
}
printf 'floor  %6.2f ms   a C program that writes the text\n' "$(median floor)"
compare svg floor
for format in ${formats#svg}; do compare "$format" svg; done
