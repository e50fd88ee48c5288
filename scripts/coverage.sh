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
scripts/line-coverage.py build/coverage text model forms views plugin
