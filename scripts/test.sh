#!/usr/bin/env bash
# Builds Norvale and runs its test lanes; exits non-zero if anything fails.
#   scripts/test.sh                 as CI runs it: the native lane, the Windows lane (mingw-w64 +
#                                   Wine), the Windows-app lane and the worker suites under ASan/UBSan
#   scripts/test.sh --winapp        the whole program built for Windows, run under Wine
#                                   (scripts/test-winapp.sh; the first run builds Qt for it)
#   scripts/test.sh --asan          every native suite built with AddressSanitizer and
#                                   UndefinedBehaviorSanitizer (build/asan)
#   scripts/test.sh --tsan          every native suite built with ThreadSanitizer (build/tsan)
#   scripts/test.sh --asan-workers  only the suites of the workers, under ASan/UBSan
#   scripts/test.sh --tsan-workers  only the suites of the workers, under ThreadSanitizer
#   any set of --native --wine --winapp --asan --tsan --asan-workers --tsan-workers runs those
#   lanes, in that order
# A sanitizer report fails the test that caused it. Suppressions live in tests/sanitizers.
set -uo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NORVALE_BUILD_DIR:-$root/build}"
jobs="$(nproc 2>/dev/null || echo 2)"

lanes=()
for arg in "$@"; do
    case "$arg" in
        --native | --wine | --winapp | --asan | --tsan | --asan-workers | --tsan-workers) lanes+=("${arg#--}") ;;
        -h | --help) sed -n '2,14p' "${BASH_SOURCE[0]}" | sed 's/^# \{0,1\}//'; exit 0 ;;
        *) echo "unknown option: $arg (try --help)" >&2; exit 2 ;;
    esac
done
# The whole ASan/UBSan lane does not fit CI's half hour beside the others, and TSan still reports
# Qt's own pool hand-offs now and then (README); the workers' suites under ASan/UBSan fit and are
# deterministic.
[ ${#lanes[@]} -eq 0 ] && lanes=(native wine winapp asan-workers)

# Suites whose classes run work on other threads (pool jobs, scanner threads, watchers).
worker_suites=(tst_cleanup tst_uninstallmanager tst_uninstallpage tst_programicon tst_residuescanner
    tst_residuedialog tst_forceremovescanner tst_forceremovedialog tst_winappscanner tst_winappspage
    tst_browserextscanner tst_browserextremover tst_browserextpage tst_systeminfoscanner tst_closeunderload)

"$root/scripts/setup.sh" || exit 1

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

supp="$root/tests/sanitizers"
# Reports end the program with this status, so CTest sees a failure even where a test would pass.
export ASAN_OPTIONS="halt_on_error=1:abort_on_error=0:exitcode=66:detect_leaks=1:strict_init_order=1:detect_stack_use_after_return=1"
export LSAN_OPTIONS="suppressions=$supp/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1:exitcode=66:suppressions=$supp/ubsan.supp"
# Debian's Qt is not built with TSan: its own memory accesses and the hand-offs made inside it
# (the thread pool's queue, queued signals) are invisible, so accesses made from Qt's code are
# not checked. Every access from Norvale's code still is.
export TSAN_OPTIONS="halt_on_error=1:exitcode=66:second_deadlock_stack=1:ignore_noninstrumented_modules=1:history_size=7:suppressions=$supp/tsan.supp:print_suppressions=0"

summary=()
failed=0
total_passed=0

count() { # failed total, from a CTest summary line
    sed -n 's/.*tests passed, \([0-9]*\) tests\{0,1\} failed out of \([0-9]*\).*/\1 \2/p' "$1" | tail -1
}

# lane name, CTest log, status of the lane's command, seconds
record() {
    local nf nt
    read -r nf nt <<<"$(count "$2")"
    nf=${nf:-0}; nt=${nt:-0}
    summary+=("$(printf '%-13s %4d of %4d passed  %5d s' "$1" "$((nt - nf))" "$nt" "$4")")
    total_passed=$((total_passed + nt - nf))
    if [ "$3" -ne 0 ] || [ "$nt" -eq 0 ]; then
        failed=$((failed + (nf > 0 ? nf : 1)))
    fi
}

# lane name, build folder, suites (empty: all), extra CMake arguments...: configure, build and run
# the native suites.
native_suites() {
    local name="$1" dir="$2" suites="$3" started log status
    shift 3
    local targets=() filter=()
    if [ -n "$suites" ]; then
        targets=(--target $suites)
        filter=(-R "^(${suites// /|})\$")
    fi
    started=$(date +%s)
    log="$(mktemp)"
    echo "== $name lane: configure and build ($dir)"
    if cmake -S "$root" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" "$@" >/dev/null \
        && cmake --build "$dir" -j"$jobs" "${targets[@]}"; then
        echo "== $name lane: tests"
        (cd "$dir" && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$jobs" "${filter[@]}" 2>&1) | tee "$log"
        status=${PIPESTATUS[0]}
    else
        status=1
    fi
    record "$name" "$log" "$status" "$(($(date +%s) - started))"
    rm -f "$log"
}

for lane in native wine winapp asan tsan asan-workers tsan-workers; do
    [[ " ${lanes[*]} " == *" $lane "* ]] || continue
    case "$lane" in
        native) native_suites native "$build" "" -DNORVALE_SANITIZE= ;;
        asan) native_suites asan "$build/asan" "" -DNORVALE_SANITIZE=address ;;
        tsan) native_suites tsan "$build/tsan" "" -DNORVALE_SANITIZE=thread ;;
        asan-workers) native_suites asan-workers "$build/asan" "${worker_suites[*]}" -DNORVALE_SANITIZE=address ;;
        tsan-workers) native_suites tsan-workers "$build/tsan" "${worker_suites[*]}" -DNORVALE_SANITIZE=thread ;;
        wine)
            echo "== Windows lane (mingw-w64 + Wine): build and tests"
            started=$(date +%s)
            log="$(mktemp)"
            "$root/scripts/test-wine.sh" "$build" 2>&1 | tee "$log"
            record windows "$log" "${PIPESTATUS[0]}" "$(($(date +%s) - started))"
            rm -f "$log"
            ;;
        winapp)
            echo "== Windows-app lane (Norvale.exe and its suites under Wine)"
            started=$(date +%s)
            log="$(mktemp)"
            "$root/scripts/test-winapp.sh" "$build" 2>&1 | tee "$log"
            record windows-app "$log" "${PIPESTATUS[0]}" "$(($(date +%s) - started))"
            winapp_cases="$(grep -h '^Win32 cases:' "$log" | tail -1)"
            rm -f "$log"
            ;;
    esac
done

echo
printf '%s\n' "${summary[@]}"
[ -z "${winapp_cases:-}" ] || echo "$winapp_cases"
if [ "$failed" -ne 0 ]; then
    echo "Total: $total_passed passed, $failed failed"
    exit 1
fi
echo "Total: $total_passed passed, 0 failed"
