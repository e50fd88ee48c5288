#!/usr/bin/env bash
# Runs clang-tidy over our sources, two at a time; every finding is an error.
#
#   scripts/check-tidy.sh [FILE...]     (all sources but tests, benchmarks and fuzz targets unless given)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset tidy >/dev/null
commands=build/tidy/compile_commands.json

sources=("$@")
if [[ ${#sources[@]} -eq 0 ]]; then
  # The compile commands name exactly the sources that are built, so none is checked with made-up flags.
  mapfile -t sources < <(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "$commands" |
    grep -vE "^$PWD/(build|tests|benchmarks|fuzz)/" | sort -u)
fi
if [[ ${#sources[@]} -eq 0 ]]; then
  echo "check-tidy: no sources found" >&2
  exit 1
fi

# Beside its findings clang-tidy counts what it kept to itself about the system's headers; nobody needs that.
if ! printf '%s\0' "${sources[@]}" |
  xargs -0 -n 1 -P 2 clang-tidy --quiet -p build/tidy 2> >(grep -v ' generated\.$\|^Error while processing ' >&2); then
  echo "check-tidy: clang-tidy has findings" >&2
  exit 1
fi
echo "check-tidy: ${#sources[@]} files are clean"
