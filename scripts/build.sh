#!/usr/bin/env bash
# Configures and builds one preset, the named targets or all of them; the compiler's words show only where it fails.
#
#   scripts/build.sh PRESET [TARGET...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset=$1
shift
log="build/$preset.log"
mkdir -p build

echo "Building $preset ..."
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "The build of $preset failed." >&2
  exit 1
fi
