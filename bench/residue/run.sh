#!/bin/sh
# Prints the median time of the global residue scan over a generated profile (320 program folders,
# 200,000 files across Roaming, Local and ProgramData) beside du over the same three roots, their
# ratio, and the median time of the programs page rebuilt with 1,000 programs.
#   bench/residue/run.sh <build-dir> [runs]
set -eu
build=${1:?usage: run.sh <build-dir> [runs]}
runs=${2:-9}
cmake --build "$build" --target bench_residue_scan bench_uninstall_page -j2 >/dev/null
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
XDG_DATA_HOME="$home" "$build/bench/residue/bench_residue_scan" "$build/bench/residue/profile" "$runs"
QT_QPA_PLATFORM=offscreen XDG_DATA_HOME="$home" NORVALE_SANDBOX="$home/sandbox" \
    "$build/bench/residue/bench_uninstall_page" "$runs"
