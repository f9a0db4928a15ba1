#!/usr/bin/env bash
# The command-line figure: `tarvex-mis check` of the generated missions against `cat` of the
# same files, best of three runs each.
#   TARVEX_BENCH_MISSIONS=DIR build/bench/bench_check_batch   # makes DIR once
#   bench/check_vs_cat.sh DIR [BUILD]
set -euo pipefail
dir="${1:?usage: check_vs_cat.sh DIR [BUILD]}"
build="${2:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build}"
tool="$build/src/cli/tarvex-mis"

# The best wall-clock time of three runs of a command, in seconds.
best() {
    local best=""
    for _ in 1 2 3; do
        local start end
        start=$(date +%s%N)
        "$@" >/dev/null 2>&1 || true
        end=$(date +%s%N)
        local t=$((end - start))
        if [ -z "$best" ] || [ "$t" -lt "$best" ]; then best=$t; fi
    done
    echo "$best"
}

files=("$dir"/missions/*.mis)
bytes=$(cat "${files[@]}" | wc -c)
cat_ns=$(best cat "${files[@]}")
check_ns=$(best "$tool" check --db "$dir/Tarvex Missions.mdb" --sim "$dir" "$dir/missions")
awk -v n="${#files[@]}" -v b="$bytes" -v c="$cat_ns" -v k="$check_ns" 'BEGIN {
    printf "%d files, %d bytes\ncat:   %.3f s\ncheck: %.3f s\nratio: %.1f\n", n, b, c / 1e9,
           k / 1e9, k / c }'
