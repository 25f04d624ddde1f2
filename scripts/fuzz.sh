#!/usr/bin/env bash
# Builds the libFuzzer targets of tests/fuzz with clang (AddressSanitizer and UndefinedBehavior-
# Sanitizer on) into build/fuzz, runs each for a bounded time on a fresh copy of its seed corpus,
# and prints executions and crashes per target. Exits non-zero if any target crashed.
#
#   scripts/fuzz.sh [seconds per target, default 60] [target ...]
#
# The grown corpus and any crashing input stay in build/fuzz/run/<target>/; only the seeds under
# tests/fuzz/corpus are committed.
set -uo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NORVALE_FUZZ_BUILD_DIR:-$root/build/fuzz}"
seconds="${1:-60}"
shift $(($# > 0 ? 1 : 0))
jobs="${NORVALE_JOBS:-2}"

"$root/scripts/setup.sh" && "$root/scripts/setup.sh" "$root/scripts/fuzz-packages.txt" || exit 1

if [ $# -gt 0 ]; then
    targets=("$@")
else
    mapfile -t targets < <(find "$root/tests/fuzz/corpus" -mindepth 1 -maxdepth 1 -type d -printf '%f\n' | sort)
fi

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
echo "== configure and build ${#targets[@]} fuzz targets in $build"
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNORVALE_FUZZ=ON \
    "${launcher[@]}" >/dev/null || exit 1
cmake --build "$build" -j"$jobs" --target "${targets[@]/#/fuzz_}" || exit 1

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
export QT_QPA_PLATFORM=offscreen

rows=()
total_crashes=0
for target in "${targets[@]}"; do
    run="$build/run/$target"
    rm -rf "$run"
    mkdir -p "$run/corpus"
    cp "$root/tests/fuzz/corpus/$target"/* "$run/corpus/"
    echo "== $target: ${seconds}s"
    "$build/tests/fuzz/fuzz_$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="$run/" "$run/corpus" >"$run/log" 2>&1
    status=$?
    execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$run/log" | tail -1)
    rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$run/log" | tail -1)
    crashes=$(find "$run" -maxdepth 1 -type f \( -name 'crash-*' -o -name 'leak-*' -o -name 'timeout-*' -o -name 'oom-*' \) | wc -l)
    # A target that fails without leaving an input (at start-up, say) still failed.
    [ "$status" -ne 0 ] && [ "$crashes" -eq 0 ] && crashes=1
    if [ "$crashes" -gt 0 ]; then
        echo "   failed, see $run/log"
        grep -m3 -E 'ERROR|broken:|runtime error' "$run/log" | sed 's/^/   /'
    fi
    total_crashes=$((total_crashes + crashes))
    rows+=("$(printf '%-22s %12s %10s %8s' "$target" "${execs:-?}" "${rate:-?}" "$crashes")")
done

echo
printf '%-22s %12s %10s %8s\n' target executions exec/s crashes
printf '%s\n' "${rows[@]}"
echo "seconds per target: $seconds; crashes: $total_crashes"
[ "$total_crashes" -eq 0 ]
