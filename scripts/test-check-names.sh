#!/usr/bin/env bash
# Plants definitions in a scratch tree and sees that check-names refuses names that are defined twice and namespaces of
# other folders, and nothing else.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# plant FILE TEXT: adds a file to the scratch tree.
plant() {
  mkdir -p "$scratch/$(dirname "$1")"
  printf '%s\n' "$2" >"$scratch/$1"
}

# allows WHAT: the scratch tree is to pass; empties it.
allows() {
  if ! "$scripts/check-names.py" "$scratch" >"$scratch/log" 2>&1; then
    echo "should be allowed: $1" >&2
    cat "$scratch/log" >&2
    failures=$((failures + 1))
  fi
  rm -rf "${scratch:?}"/*
}

# refuses WHAT COMPLAINT: the scratch tree is to be refused with that line; empties it.
refuses() {
  if "$scripts/check-names.py" "$scratch" >"$scratch/log" 2>&1; then
    echo "should be refused: $1" >&2
    failures=$((failures + 1))
  elif ! grep -qxF "$2" "$scratch/log"; then
    echo "does not say '$2':" >&2
    cat "$scratch/log" >&2
    failures=$((failures + 1))
  fi
  rm -rf "${scratch:?}"/*
}

# Types of the same name.
plant terminal/drive/a.h $'namespace algo::terminal::drive {\nstruct TRun {};\n}'
plant terminal/storage/a.h $'namespace algo::terminal::storage {\nclass TRun;\nclass TRun final : public TBase<int> {};\n}'
allows 'the same name in two namespaces'

plant terminal/drive/a.h $'namespace algo::terminal::drive {\nstruct TRun {};\n}'
plant terminal/drive/b.cpp $'namespace algo::terminal::drive {\n\nclass TRun : public TBase {\n};\n}'
refuses 'the same name in a header and a source' \
  'terminal/drive/b.cpp:3: algo::terminal::drive::TRun is defined in terminal/drive/a.h:2 already'

plant views/entry/a.h $'namespace algo::views {\nenum class TKind : int { One };\n}'
plant views/work/a.h $'namespace algo::views {\ntemplate <class TValue, template <class> class TOther>\nstruct TKind {};\n}'
refuses 'the same name in two folders of one namespace' \
  'views/work/a.h:3: algo::views::TKind is defined in views/entry/a.h:2 already'

plant model/a.cpp $'namespace algo::model {\nnamespace {\nstruct TRow {};\n}\n}'
plant model/b.cpp $'namespace algo::model {\nnamespace {\nstruct TRow {};\n}\n}'
allows 'the same name in anonymous namespaces'

plant forms/a.h $'namespace algo::forms {\nclass TA {\n public:\n  struct TPart {};\n};\n}'
plant forms/b.h $'namespace algo::forms {\nclass TB {\n  struct TPart {};\n};\n}'
allows 'the same name in two classes'

plant forms/a.h $'namespace algo::forms {\nclass TA {\n  struct TPart;\n  struct TOther {};\n};\n}'
plant forms/a.cpp $'namespace algo::forms {\nstruct TA::TPart {};\nstruct TA::TOther {};\n}'
refuses 'a part of a class that is defined twice' \
  'forms/a.cpp:3: algo::forms::TA::TOther is defined in forms/a.h:4 already'

plant forms/a.h $'namespace algo::forms {\nclass ALGO_SHARED alignas(8) TA {};\n}'
plant forms/b.h $'namespace algo::forms {\nstruct [[nodiscard]] TA {};\n}'
refuses 'the same name behind macros and attributes' \
  'forms/b.h:2: algo::forms::TA is defined in forms/a.h:2 already'

plant text/a.h $'namespace algo::text {\n// struct TA {};\n/* struct TA {\n}; */\nstruct TA {};\n}'
plant text/b.h $'namespace algo::text {\n#define MADE struct TA { \\\n  };\nconst char* const Text = "struct TA {}; {";\nconst char* const Raw = R"(struct TA {};)";\nconstexpr int Big = 1\'000;\nconstexpr char Brace = \'{\';\n}'
plant text/c.h $'namespace algo::text {\nstruct TA* Find(const struct TA& other) { struct TA {} local; return nullptr; }\ntemplate <class TA>\nvoid Each(TA&& call) {}\n}'
allows 'a name that is mentioned, or that a function has for itself'

# Namespaces of other folders.
plant terminal/drive/a.h $'namespace algo::terminal {\nvoid Run();\n}'
refuses 'the namespace around' \
  'terminal/drive/a.h:1: terminal/drive may not open algo::terminal (allowed: algo::terminal::drive)'

plant model/a.h $'namespace algo::model {\nnamespace hidden {\nint One();\n}\n}'
refuses 'a namespace within that the row does not have' \
  "$(printf 'model/a.h:2: model may not open algo::model::hidden (allowed: %s)' \
    "$(sed -nE 's/^model +-> (.*)/\1/p' "$scripts/check-names.py" | sed 's/ /, /g')")"

plant terminal/paper/a.h $'namespace algo::terminal::paper::field {\ninline constexpr int Bid = 1;\n}'
plant terminal/desk/orders/a.h $'namespace algo::terminal::desk::orders {\nstruct TRow {};\n}'
plant terminal/desk/session/a.h $'namespace CLI {\nclass App;\n}\nnamespace algo::terminal::desk {\nclass TDesk {};\n}'
plant terminal/drive/main.cpp $'namespace drive = algo::terminal::drive;\nint main() { return 0; }'
allows 'nested namespaces that the row has, forward declarations of others, and an alias'

plant forms/a.cpp $'struct TLoose {};'
refuses 'a type outside of all namespaces' 'forms/a.cpp:1: TLoose is defined outside of algo::forms'

plant terminal/elsewhere/a.h $'namespace algo::terminal {\n}'
refuses 'a folder without a row' 'terminal/elsewhere/a.h:1: this folder has no row in check-names'

if [[ $failures -ne 0 ]]; then
  exit 1
fi
echo "test-check-names: names that are defined twice and foreign namespaces are refused, others pass"
