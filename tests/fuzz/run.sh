#!/usr/bin/env bash
# Fuzzes one target for so many seconds, beginning with its seeds, with what was found
# before and with what earlier runs have kept in the build folder. With a seed for its
# chances, a run from an empty build folder is the same each time, as far as it comes.
#
#   run.sh PROGRAM SECONDS [SEED]
set -euo pipefail
program=$1
seconds=$2
seed=${3:-0} # the fuzzer's word for a new one each time
target=$(basename "$program")
here=$(dirname "$(readlink -f "$0")")
build=$(dirname "$(dirname "$(readlink -f "$program")")")

inputs=("$build/corpora/$target" "$here/seeds/$target")
[ -d "$here/found/$target" ] && inputs+=("$here/found/$target")
options=()
[ -f "$here/$target.dict" ] && options+=(-dict="$here/$target.dict")
mkdir -p "$build/corpora/$target" "$build/findings" "$build/logs"

export QT_HASH_SEED=0 ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
# Otherwise it ends with 77, which says of tests that they were skipped.
"$program" -error_exitcode=1 -seed="$seed" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=1536 -max_len=4096 \
    -print_final_stats=1 -artifact_prefix="$build/findings/$target-" \
    "${options[@]}" "${inputs[@]}" 2>&1 | tee "$build/logs/$target.log"
