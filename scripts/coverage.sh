#!/usr/bin/env bash
# Runs all tests in the coverage build and prints which part of the module's lines they executed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/install-packages.sh build coverage
scripts/build.sh coverage
# Counts of earlier runs would pass for coverage of this one.
find build/coverage -name '*.gcda' -delete
ctest --preset coverage --parallel "$(nproc)"

echo
gcovr --root . --filter '(text|model|forms|views|plugin)/' --csv build/coverage/lines.csv build/coverage
awk -F , '
  function Print(name, covered, total) {
    printf "%-8s %6.1f%%  (%d of %d lines)\n", name, total ? 100 * covered / total : 0, covered, total
  }
  NR > 1 {
    folder = $1
    sub(/\/.*/, "", folder)
    total[folder] += $2
    covered[folder] += $3
  }
  END {
    count = split("text model forms views plugin", folders, " ")
    for (i = 1; i <= count; i++) {
      Print(folders[i], covered[folders[i]], total[folders[i]])
      allCovered += covered[folders[i]]
      allTotal += total[folders[i]]
    }
    Print("total", allCovered, allTotal)
  }
' build/coverage/lines.csv
