#!/usr/bin/env bash
# Plants headers in a scratch tree and sees that check-contract-tags refuses those whose tags are missing or unknown, and
# no other.
set -euo pipefail
scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/plugin/host_contract" "$scratch/docs"
header=plugin/host_contract/a.h
failures=0

# check LINE...: the status of check-contract-tags for a header of these lines, on a page that explains one tag.
check() {
  printf '%s\n' '| tag | meaning |' '|---|---|' '| `[host → module, always]` | whenever it likes |' \
    >"$scratch/docs/writing-a-host.md"
  printf '%s\n' "$@" >"$scratch/$header"
  "$scripts/check-contract-tags.sh" "$scratch" >"$scratch/log" 2>&1
}

# allows WHAT LINE...
allows() {
  if ! check "${@:2}"; then
    echo "should be allowed: $1" >&2
    cat "$scratch/log" >&2
    failures=$((failures + 1))
  fi
}

# refuses WHAT PLACE LINE...: the log has to name the place.
refuses() {
  if check "${@:3}"; then
    echo "should be refused: $1" >&2
    failures=$((failures + 1))
  elif ! grep -qF "$2: " "$scratch/log"; then
    echo "does not name the place: $1" >&2
    cat "$scratch/log" >&2
    failures=$((failures + 1))
  fi
}

tag='  /// [host → module, always]'

allows 'a tag above a method' \
  'class A {' ' public:' "$tag" '  virtual void F() = 0;' '};'
allows 'a tag below a sentence' \
  'class A {' ' public:' '  /// Does it.' "$tag" '  virtual void F() = 0;' '};'
allows 'one tag for a group' \
  'class A {' ' public:' "$tag" '  virtual void F(int a,' '                 int b) = 0;' '  virtual void G() = 0;' '};'
allows 'a struct, a class within a namespace, and a class whose head takes two lines' \
  'namespace a {' 'struct A {' "$tag" '  virtual void F();' '};' 'class B' '    : public A {' ' public:' "$tag" \
  '  virtual void F();' '};' '}'
allows 'destructors, what is not public, and what is not virtual' \
  'class A {' ' public:' "$tag" '  virtual void F();' '' '  virtual ~A();' '  void H();' '' ' protected:' \
  '  virtual void I();' ' private:' '  virtual void J();' '};'

refuses 'a method without a tag' "$header:3" \
  'class A {' ' public:' '  virtual void F() = 0;' "$tag" '  virtual void G();' '};'
refuses 'a method behind a blank line' "$header:6" \
  'class A {' ' public:' "$tag" '  virtual void F() = 0;' '' '  virtual void G() = 0;' '};'
refuses 'a method whose type stands on a line of its own' "$header:6" \
  'class A {' ' public:' "$tag" '  virtual void F();' '' '  virtual std::string' '  G();' '};'
refuses 'a method of a struct' "$header:2" \
  'struct A {' '  virtual void F();' "$tag" '  virtual void G();' '};'
refuses 'a method of a class whose head takes two lines' "$header:4" \
  'class A' '    : public B {' ' public:' '  virtual void F();' "$tag" '  virtual void G();' '};'
refuses 'a method behind a nested class' "$header:8" \
  'class A {' ' public:' '  class B {' "$tag" '    int b;' '  };' '' '  virtual void F();' '};'
refuses 'a tag that the page does not explain' "$header:4" \
  'class A {' ' public:' "$tag" '  /// [host → module, on Sundays]' '  virtual void F();' '};'
refuses 'a tag within a sentence' "$header:4" \
  'class A {' ' public:' '  /// Does it: [host → module, always]' '  virtual void F();' "$tag" '  virtual void G();' '};'
refuses 'a tag of which the page alone knows' 'docs/writing-a-host.md' \
  'class A {' ' public:' '};'

if [[ $failures -ne 0 ]]; then
  exit 1
fi
echo "test-check-contract-tags: missing and unknown tags are refused, the others pass"
