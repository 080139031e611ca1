#!/usr/bin/env bash
# Fuzzes one target for so many seconds, beginning with its seeds, with what was found
# before and with what earlier runs have kept in the build folder.
#
#   run.sh PROGRAM SECONDS
set -euo pipefail
program=$1
seconds=$2
target=$(basename "$program")
here=$(dirname "$(readlink -f "$0")")
build=$(dirname "$(dirname "$(readlink -f "$program")")")

inputs=("$build/corpora/$target" "$here/seeds/$target")
[ -d "$here/found/$target" ] && inputs+=("$here/found/$target")
options=()
[ -f "$here/$target.dict" ] && options+=(-dict="$here/$target.dict")
mkdir -p "$build/corpora/$target" "$build/findings" "$build/logs"

export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
"$program" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=1536 -max_len=4096 \
    -print_final_stats=1 -artifact_prefix="$build/findings/$target-" \
    "${options[@]}" "${inputs[@]}" 2>&1 | tee "$build/logs/$target.log"
