#!/usr/bin/env bash
# Fails unless the one symbol that a library exports is the module's entry.
#
#   scripts/check-module-exports.sh NM LIBRARY
set -euo pipefail

exported=$("$1" -D --defined-only --format=posix "$2" | cut -d ' ' -f 1)
if [[ $exported != AlgoOrderEntryModule ]]; then
  printf 'The module must export AlgoOrderEntryModule alone, and exports:\n%s\n' "$exported" >&2
  exit 1
fi
