#!/usr/bin/env bash
# Builds and starts Norvale. Off Windows it runs against a demo sandbox: a folder under the build
# folder that stands for a Windows machine. With no display it renders each page under Xvfb to
# build/screenshots/ instead, and exits.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NORVALE_BUILD_DIR:-$root/build}"

"$root/scripts/setup.sh"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target Norvale -j"$(nproc)"

sandbox="$build/demo-sandbox"
"$root/scripts/make-demo-sandbox.sh" "$sandbox" >/dev/null
echo "Norvale demo: this is not Windows, so Norvale runs against a demo sandbox at $sandbox"
echo "(C/ stands for the system drive, registry.reg for the registry; nothing outside it is touched)."

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display: rendering each page under Xvfb instead."
    exec "$root/scripts/screenshots.sh"
fi
NORVALE_SANDBOX="$sandbox" exec "$build/src/app/Norvale"
