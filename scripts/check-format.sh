#!/usr/bin/env bash
# Fails where a source is not formatted as .clang-format asks, and names the places.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The work tree may belong to another user than the one who checks it, in a container for instance.
mapfile -t sources < <(git -c safe.directory="$PWD" ls-files --cached --others --exclude-standard -- '*.h' '*.cpp')
if [[ ${#sources[@]} -eq 0 ]]; then
  echo "check-format: no sources found" >&2
  exit 1
fi

clang-format --dry-run --Werror "${sources[@]}"
echo "check-format: ${#sources[@]} files are formatted"
