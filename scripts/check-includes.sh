#!/usr/bin/env bash
# Fails on an include that goes against the arrows between the folders, and names file, line and rule. Fails as well on
# an arrow that no include uses.
#
#   scripts/check-includes.sh [--part] [ROOT]    (this project unless given)
#
#   --part    ROOT has some of the folders only, so that arrows may be unused
#
# A folder may include its own headers and those of the folders in its row. Includes are written from the root of the
# project. The folders of the module moreover take from outside nothing but the standard library.
set -euo pipefail
part=
if [[ ${1:-} == --part ]]; then
  part=1
  shift
fi
root=${1:-$(dirname "${BASH_SOURCE[0]}")/..}
cd "$root"

arrows='
text                        ->
model                       -> text plugin/host_contract/flags
forms                       -> text
plugin/host_contract/flags  ->
plugin/host_contract        -> forms text
plugin/host_contract/checks -> forms plugin/host_contract
views/boundary              -> plugin/host_contract
views/entry                 -> text model forms plugin/host_contract plugin/host_contract/flags views/boundary
views/change                -> text model forms plugin/host_contract views/entry
views/work                  -> text model forms plugin/host_contract views/boundary views/change
plugin                      -> plugin/host_contract views/boundary views/entry views/change views/work
terminal/host               -> text forms plugin/host_contract
terminal/drive              -> text forms plugin/host_contract terminal/host plugin/host_contract/checks
terminal/report             -> text
terminal/storage            -> text plugin/host_contract terminal/host
terminal/paper              -> text plugin/host_contract terminal/host
terminal/render             -> forms
terminal/ui_driver          -> forms terminal/drive terminal/render
terminal/desk/appearance    -> forms plugin/host_contract terminal/host terminal/render
terminal/desk/session       -> text forms plugin/host_contract terminal/host terminal/storage terminal/paper terminal/render terminal/drive terminal/desk/appearance
terminal/desk/panels        -> text terminal/render terminal/desk/appearance
terminal/desk/market        -> text plugin/host_contract terminal/paper terminal/render terminal/desk/appearance terminal/desk/session terminal/desk/panels
terminal/desk/orders        -> text plugin/host_contract plugin/host_contract/flags terminal/host terminal/render terminal/desk/appearance terminal/desk/panels
terminal/desk/settings      -> plugin/host_contract terminal/host terminal/render terminal/desk/appearance
terminal/desk/frames        -> forms plugin/host_contract terminal/render terminal/desk/session terminal/desk/panels
terminal/desk/window        -> plugin/host_contract terminal/render terminal/desk/appearance terminal/desk/session terminal/desk/panels terminal/desk/market terminal/desk/orders terminal/desk/settings terminal/desk/frames
terminal/desk/script        -> text forms plugin/host_contract terminal/render terminal/drive terminal/ui_driver terminal/desk/appearance terminal/desk/session terminal/desk/frames terminal/desk/window
terminal/desk               -> terminal/desk/session terminal/desk/window
'

mapfile -t files < <(
  for folder in text model forms views plugin terminal; do
    if [[ -d $folder ]]; then
      find "$folder" -type f \( -name '*.h' -o -name '*.cpp' \)
    fi
  done | LC_ALL=C sort
)
if [[ ${#files[@]} -eq 0 ]]; then
  echo "check-includes: no sources found" >&2
  exit 1
fi

ARROWS=$arrows PART=$part awk '
  BEGIN {
    rows = split(ENVIRON["ARROWS"], lines, "\n")
    for (i = 1; i <= rows; i++) {
      count = split(lines[i], words, " ")
      if (count == 0) continue
      rule[words[1]] = count > 2 ? "" : "nothing"
      for (j = 3; j <= count; j++) {
        allowed[words[1], words[j]] = 1
        arrows[++arrowCount] = words[1] SUBSEP words[j]
        rule[words[1]] = rule[words[1]] (j > 3 ? ", " : "") words[j]
      }
    }
  }

  # The nearest folder above a path that has a row, or "" where there is none.
  function FolderOf(path) {
    while (sub(/\/[^\/]*$/, "", path)) {
      if (path in rule) return path
    }
    return ""
  }

  function Report(text) {
    printf "%s:%d: %s\n", FILENAME, FNR, text
    bad++
  }

  FNR == 1 {
    folder = FolderOf(FILENAME)
    if (folder == "") Report("this folder has no row of its own in check-includes")
  }

  folder != "" && match($0, /^[ \t]*#[ \t]*include[ \t]*/) {
    rest = substr($0, RLENGTH + 1)
    mark = substr(rest, 1, 1)
    if (mark == "\"") {
      path = substr(rest, 2)
      sub(/".*/, "", path)
      target = path ~ /(^|\/)\.\.?\// ? "" : FolderOf(path)
      if (target == "") {
        Report("\"" path "\" is not written from the root of the project, or its folder has no row")
      } else if (target != folder && !((folder, target) in allowed)) {
        Report(folder " may not include " target " (allowed: " rule[folder] ")")
      }
      used[folder, target] = 1
    } else if (mark == "<") {
      if (folder !~ /^terminal\// && rest !~ /^<[a-z_]+>/) {
        Report("the module includes the standard library alone, not " rest)
      }
    } else {
      Report("an include that a macro spells cannot be checked: " rest)
    }
  }

  END {
    if (bad) printf "check-includes: %d forbidden\n", bad
    for (i = 1; i <= arrowCount && !ENVIRON["PART"]; i++) {
      if (arrows[i] in used) continue
      split(arrows[i], ends, SUBSEP)
      printf "check-includes: no include uses the arrow %s -> %s\n", ends[1], ends[2]
      unused++
    }
    if (bad || unused) exit 1
  }
' "${files[@]}" >&2

echo "check-includes: the includes of ${#files[@]} files follow the arrows"
