#!/usr/bin/env bash
# Refreshes the catalogues from the code, then fills English and Simplified Chinese from the
# feature owners' tables (resources/translations/tables/*.tsv).
#   scripts/update-translations.sh [build-dir]      (default: build)
# The build folder must be a configured build of this source tree. Extra arguments after the
# build folder go to fill-translations.py (e.g. -v to list texts no table mentions, --strict).
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-$root/build}"
[[ $# -gt 0 ]] && shift

cache="$build/CMakeCache.txt"
if [[ ! -f "$cache" ]]; then
    echo "error: $build is not a configured build folder (no CMakeCache.txt); run cmake -S $root -B $build first" >&2
    exit 2
fi
# lupdate writes into the source tree the build folder was configured from; refuse to refresh
# another checkout's catalogues by accident.
configured_source="$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")"
if [[ "$(cd "$configured_source" 2>/dev/null && pwd -P)" != "$(cd "$root" && pwd -P)" ]]; then
    echo "error: $build was configured from $configured_source, not from $root" >&2
    exit 2
fi

cmake --build "$build" --target update_translations -j2
python3 "$root/scripts/fill-translations.py" "$root/resources/translations" "$@"
