#!/usr/bin/env bash
# Fails where a public virtual method of the contract does not say who calls it and when, and names the places.
#
#   scripts/check-contract-tags.sh [ROOT]    (this project unless given)
#
# A tag is a comment line of its own, "/// [module → host, while a provider lives]". It holds for the declarations below
# it up to the next blank line or tag. The tags that there are stand in a table of docs/writing-a-host.md.
set -euo pipefail
root=${1:-$(dirname "${BASH_SOURCE[0]}")/..}
cd "$root"

page=docs/writing-a-host.md
tags=$(sed -n 's/^| `\(\[.*\]\)` |.*/\1/p' "$page")
if [[ -z $tags ]]; then
  echo "check-contract-tags: $page explains no tag" >&2
  exit 1
fi

mapfile -t headers < <(find plugin/host_contract -maxdepth 1 -name '*.h' | LC_ALL=C sort)
if [[ ${#headers[@]} -eq 0 ]]; then
  echo "check-contract-tags: no headers found" >&2
  exit 1
fi

TAGS=$tags PAGE=$page awk '
  BEGIN {
    count = split(ENVIRON["TAGS"], lines, "\n")
    for (i = 1; i <= count; i++) known[lines[i]] = 1
  }

  function Report(text) {
    printf "%s:%d: %s\n", FILENAME, FNR, text
    bad++
  }

  FNR == 1 {
    depth = 0
    kind = tag = ""
    split("", access)
  }

  /^[ \t]*$/ { tag = "" }

  # A comment line that is a tag and nothing else.
  match($0, /^[ \t]*\/\/+ \[.*\]$/) {
    tag = $0
    sub(/^[ \t]*\/\/+ /, "", tag)
    if (!(tag in known)) Report(tag " is not explained in " ENVIRON["PAGE"])
    used[tag] = 1
  }

  {
    code = $0
    sub(/\/\/.*/, "", code)
  }

  code ~ /^[ \t]*(public|protected|private):/ {
    access[depth] = code
    gsub(/[ \t:]/, "", access[depth])
  }

  code ~ /^[ \t]*virtual / && code !~ /~/ && access[depth] == "public" {
    methods++
    name = code
    sub(/\(.*/, "", name)
    sub(/.*[ *&]/, "", name)
    if (tag == "") Report(name " does not say who calls it and when")
  }

  # What a brace opens begins with the access of a struct or a class; a namespace or a body has none.
  {
    if (code ~ /(^|[ \t])struct /) kind = "public"
    else if (code ~ /(^|[ \t])class /) kind = "private"
    rest = code
    while (match(rest, /[{};]/)) {
      mark = substr(rest, RSTART, 1)
      if (mark == "{") access[++depth] = kind
      else if (mark == "}") depth--
      kind = ""
      rest = substr(rest, RSTART + 1)
    }
  }

  END {
    for (i in known) {
      if (!(i in used)) {
        printf "%s: no header uses %s\n", ENVIRON["PAGE"], i
        bad++
      }
    }
    if (methods == 0) {
      print "no methods found"
      bad++
    }
    if (bad) {
      printf "check-contract-tags: %d findings\n", bad
      exit 1
    }
  }
' "${headers[@]}" >&2

echo "check-contract-tags: the methods of ${#headers[@]} headers say who calls them and when"
