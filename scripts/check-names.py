#!/usr/bin/env python3
"""Fails where two files define a class, struct, union or enum of the same name in the same namespace, and where a file
opens a namespace that is not its folder's. Names file, line and rule.

    scripts/check-names.py [ROOT]     (this project unless given)

A program into which two classes of one name are linked may run the code of the one on objects of the other, and no
compiler says so. An anonymous namespace is its file's own; a class in a class counts under the class around it.
Another library's namespace may be opened for forward declarations.
"""

import collections
import os
import pathlib
import re
import sys

# Each folder, with the one namespace that it is and those inside of it that it may open.
NAMESPACES = """
text                        -> algo::text algo
model                       -> algo::model algo::model::parameter_rows algo::model::algo_rows
forms                       -> algo::forms
plugin/host_contract        -> algo::host
plugin/host_contract/flags  -> algo::host::flags
plugin/host_contract/checks -> algo::host::checks
views/boundary              -> algo::views
views/entry                 -> algo::views::entry algo::views::entry::field_rows algo::views::entry::field_lists algo::views::entry::layout_rows
views/change                -> algo::views::change
views/work                  -> algo::views::work
plugin                      -> algo::plugin
terminal/host               -> algo::terminal algo::terminal::status
terminal/drive              -> algo::terminal::drive
terminal/report             -> algo::terminal::report
terminal/storage            -> algo::terminal::storage
terminal/paper              -> algo::terminal::paper algo::terminal::paper::field
terminal/render             -> algo::terminal::render
terminal/ui_driver          -> algo::terminal::ui_driver
terminal/desk/session       -> algo::terminal::desk algo::terminal::desk::view_id
terminal/desk/appearance    -> algo::terminal::desk::appearance
terminal/desk/panels        -> algo::terminal::desk::panels
terminal/desk/market        -> algo::terminal::desk::market
terminal/desk/orders        -> algo::terminal::desk::orders
terminal/desk/settings      -> algo::terminal::desk::settings
terminal/desk/frames        -> algo::terminal::desk::frames
terminal/desk/window        -> algo::terminal::desk::window
terminal/desk/script        -> algo::terminal::desk::script
terminal/desk               -> algo::terminal::desk
"""

SOURCES = ("text", "model", "forms", "plugin", "views", "terminal")

# What is no code, longest first: comments, raw and other literals, directives with their continued lines.
NO_CODE = re.compile(
    r"""
      //[^\n]* | /\*.*?\*/
    | (?:\b(?:u8|u|U|L))?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"
    | "(?:\\.|[^"\\\n])*" | (?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])*'
    | ^[ \t]*\#(?:\\\n|[^\n])*
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)
TOKEN = re.compile(r"\n|[A-Za-z_]\w*|::|[^\s\w]")
KINDS = ("class", "struct", "union", "enum")

Definition = collections.namedtuple("Definition", "scope name file line")
Token = collections.namedtuple("Token", "text line")


def tokens_of(text):
    """The tokens of a source without literals, comments and directives."""
    code = NO_CODE.sub(lambda found: "\n" * found.group().count("\n"), text)
    line = 1
    for found in TOKEN.finditer(code):
        if found.group() == "\n":
            line += 1
        else:
            yield Token(found.group(), line)


def without_template_head(head):
    """The tokens of a declaration without template<...> in front."""
    while len(head) > 1 and head[0].text == "template" and head[1].text == "<":
        depth = 0
        for place, token in enumerate(head):
            depth += (token.text == "<") - (token.text == ">")
            if place > 1 and depth == 0:
                head = head[place + 1 :]
                break
        else:
            return []
    return head


def without_groups(head, opening, closing):
    """The tokens of a declaration without what stands in such brackets."""
    depth, outside = 0, []
    for token in head:
        depth += token.text == opening
        if depth == 0:
            outside.append(token)
        depth -= token.text == closing
    return outside


def type_name(head):
    """The possibly qualified name of the type whose definition begins so; None for anything else."""
    head = without_groups(without_template_head(head), "[", "]")
    kind = next((place for place, token in enumerate(head) if token.text in KINDS), None)
    if kind is None or any(token.text in "=()" for token in head[:kind]):
        return None
    head = head[kind + 1 :]
    if head and head[0].text in ("class", "struct"):
        head = head[1:]
    colon = next((place for place, token in enumerate(head) if token.text == ":"), len(head))
    words = [token.text for token in without_groups(head[:colon], "(", ")") if token.text != "final"]
    if not words or any(word in ("=", "*", "&", ",") for word in words):
        return None
    # A macro or alignas may stand before the name.
    name = re.search(r"(?:^|[^\w:> ]| )((?:\w+ :: )*\w+(?: <.*)?)$", " ".join(words))
    return name.group(1).replace(" ", "") if name else None


class Scope:
    """A pair of braces: a namespace, a type or anything else."""

    def __init__(self, kind, path, line=0):
        self.kind, self.path, self.line = kind, path, line
        self.forward_only = True


class Source:
    """One source with what it defines and which namespaces it opens."""

    def __init__(self, path, text):
        self.path = path
        self.definitions = []
        self.namespaces = []  # each with its line, and whether it has forward declarations alone
        self.read(list(tokens_of(text)))

    def read(self, tokens):
        scopes = [Scope("namespace", ())]
        head = []
        for token in tokens:
            if token.text == "{":
                scopes.append(self.enter(scopes, head, token.line))
                head = []
            elif token.text == "}":
                scope = scopes.pop() if len(scopes) > 1 else scopes[0]
                if scope.kind == "namespace":
                    self.namespaces.append((scope.path, scope.line, scope.forward_only))
                head = []
            elif token.text == ";":
                forward = len(head) == 2 and head[0].text in KINDS
                scopes[-1].forward_only &= forward or not head
                head = []
            elif token.text == ":" and head and head[-1].text in ("public", "protected", "private", "signals", "slots"):
                head = []
            else:
                head.append(token)

    def enter(self, scopes, head, line):
        outer = scopes[-1]
        words = [token.text for token in head]
        while words and words[0] == "inline":
            words = words[1:]
        if outer.kind == "namespace" and words[:1] == ["namespace"]:
            names = [word for word in words[1:] if word != "::"]
            return Scope("namespace", outer.path + tuple(names or [f"<{self.path}>"]), line)
        if outer.kind == "namespace" and words == ["extern"]:
            return Scope("namespace", outer.path, line)
        outer.forward_only = False
        name = type_name(head) if outer.kind != "block" else None
        if name is None:
            return Scope("block", outer.path)
        *around, name = name.split("::")
        scope = outer.path + tuple(around)
        self.definitions.append(Definition(scope, name, self.path, line))
        return Scope("type", scope + (name,))


def folder_of(path, rows):
    """The nearest folder above the file that has a row."""
    return next((str(folder) for folder in path.parents if str(folder) in rows), None)


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    os.chdir(root)
    rows = {}
    for row in NAMESPACES.strip().splitlines():
        folder, _, names = row.partition("->")
        rows[folder.strip()] = names.split()

    files = [
        path for suffix in (".h", ".cpp") for folder in SOURCES for path in sorted(pathlib.Path(folder).rglob(f"*{suffix}"))
    ]
    if not files:
        sys.exit("check-names: no sources found")

    findings = []
    defined = collections.defaultdict(list)
    for path in files:
        source = Source(str(path), path.read_text(encoding="utf-8"))
        for definition in source.definitions:
            defined[definition.scope, definition.name].append(definition)
        folder = folder_of(path, rows)
        if folder is None:
            findings.append(f"{path}:1: this folder has no row in check-names")
            continue
        for names, line, forward_only in source.namespaces:
            named = "::".join(name for name in names if not name.startswith("<"))
            anonymous = not names or names[-1].startswith("<")
            if forward_only or anonymous or named in rows[folder]:
                continue
            findings.append(f"{path}:{line}: {folder} may not open {named} (allowed: {', '.join(rows[folder])})")
        for definition in source.definitions:
            if not definition.scope or definition.scope[0].startswith("<"):
                findings.append(
                    f"{path}:{definition.line}: {definition.name} is defined outside of {rows[folder][0]}"
                )

    for (scope, name), places in sorted(defined.items()):
        first, *others = places
        for other in others:
            if other.file != first.file:
                findings.append(
                    f"{other.file}:{other.line}: {'::'.join((*scope, name))} is defined in"
                    f" {first.file}:{first.line} already"
                )

    for finding in findings:
        print(finding, file=sys.stderr)
    if findings:
        sys.exit(f"check-names: {len(findings)} forbidden")
    print(f"check-names: the types of {len(files)} files have names and namespaces of their own")


main()
