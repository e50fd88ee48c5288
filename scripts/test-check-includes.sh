#!/usr/bin/env bash
# Plants includes in a scratch tree and sees that check-includes refuses the forbidden ones and no other, and that it
# names the arrows that no include uses.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# plant FILE INCLUDE: makes the scratch tree have that one file.
plant() {
  rm -rf "${scratch:?}"/*
  mkdir -p "$scratch/$(dirname "$1")"
  printf '#pragma once\n#include %s\n' "$2" >"$scratch/$1"
}

# check FILE INCLUDE: the status of check-includes for a tree of that one file.
check() {
  plant "$1" "$2"
  "$scripts/check-includes.sh" --part "$scratch" >"$scratch/log" 2>&1
}

allows() {
  if ! check "$1" "$2"; then
    echo "should be allowed: $1 including $2" >&2
    failures=$((failures + 1))
  fi
}

refuses() {
  if check "$1" "$2"; then
    echo "should be refused: $1 including $2" >&2
    failures=$((failures + 1))
  elif ! grep -qF "$1:2: " "$scratch/log"; then
    echo "does not name the place: $1 including $2" >&2
    failures=$((failures + 1))
  fi
}

allows text/a.h '"text/b.h"'
allows text/a.h '<string_view>'
allows model/a.cpp '"text/b.h"'
allows forms/a.h '"text/b.h"'
allows plugin/host_contract/a.h '"forms/b.h"'
allows views/entry/a.cpp '"model/b.h"'
allows views/entry/a.cpp '"plugin/host_contract/b.h"'
allows views/change/a.cpp '"views/entry/b.h"'
allows views/work/a.cpp '"views/change/b.h"'
allows plugin/a.cpp '"plugin/b.h"'
allows plugin/a.cpp '"views/work/b.h"'
allows terminal/host/a.cpp '"plugin/host_contract/b.h"'
allows terminal/host/a.cpp '<nlohmann/json.hpp>'
allows terminal/drive/a.cpp '"terminal/host/b.h"'
allows terminal/desk/window/a.cpp '"terminal/desk/frames/b.h"'
allows terminal/desk/session/a.cpp '<QObject>'

refuses text/a.h '"model/b.h"'
refuses model/a.cpp '"forms/b.h"'
refuses forms/a.h '"model/b.h"'
refuses forms/a.h '"plugin/host_contract/b.h"'
refuses plugin/host_contract/a.h '"plugin/b.h"'
refuses plugin/host_contract/a.h '"model/b.h"'
refuses views/entry/a.cpp '"views/change/b.h"'
refuses views/entry/a.cpp '"terminal/host/b.h"'
refuses views/change/a.cpp '"views/work/b.h"'
refuses views/work/a.cpp '"plugin/b.h"'
refuses plugin/a.cpp '"model/b.h"'
refuses terminal/host/a.cpp '"model/b.h"'
refuses terminal/drive/a.cpp '"views/entry/b.h"'
refuses terminal/drive/a.cpp '"plugin/b.h"'
refuses terminal/host/a.cpp '"terminal/drive/b.h"'
refuses terminal/desk/session/a.cpp '"terminal/desk/window/b.h"'
refuses terminal/desk/window/a.cpp '"terminal/ui_driver/b.h"'

# Ways around the rows.
refuses model/a.cpp '"../forms/b.h"'
refuses model/a.cpp '"model/../forms/b.h"'
refuses model/a.cpp '"b.h"'
refuses model/a.cpp '<nlohmann/json.hpp>'
refuses model/a.cpp '<unistd.h>'
refuses model/a.cpp 'HEADER'
refuses views/entry/deep/a.cpp '"terminal/host/b.h"'

# Every arrow but the one that the file uses is reported.
plant model/a.cpp '"text/b.h"'
if "$scripts/check-includes.sh" "$scratch" >"$scratch/log" 2>&1; then
  echo "should be refused: arrows that no include uses" >&2
  failures=$((failures + 1))
fi
if ! grep -qxF 'check-includes: no include uses the arrow forms -> text' "$scratch/log"; then
  echo "does not name an arrow that no include uses" >&2
  failures=$((failures + 1))
fi
if grep -qF 'model -> text' "$scratch/log"; then
  echo "names an arrow that an include uses" >&2
  failures=$((failures + 1))
fi

if [[ $failures -ne 0 ]]; then
  exit 1
fi
echo "test-check-includes: forbidden includes and unused arrows are refused, allowed includes pass"
