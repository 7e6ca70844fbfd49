# SPDX-License-Identifier: MIT
"""Where braces are missing or too many, which no layout tool tells.

A body of one statement has no braces, over however many lines, unless the other branch of its `if`
has them. Only a statement that is an `if` or a loop itself stands in braces inside another one.
"""

import re

CONTROL = re.compile(r"(if constexpr|if|for|while|switch)\b\s*\(")
HEADER = re.compile(r"(?<![\w#])(?:(if constexpr|if|for|while)\s*\(|(else)\b(?!\s*if\b))")
# Comments and texts, in which nothing is a statement.
SILENT = re.compile(r'//[^\n]*|/\*.*?\*/|R"(?P<end>[^(\n]*)\(.*?\)(?P=end)"|"(?:\\.|[^"\\\n])*"'
                    r"|(?<!\w)'(?:\\.|[^'\\\n])*'|^[ \t]*#(?:\\\n|[^\n])*", re.DOTALL | re.MULTILINE)


def without_texts(source):
    """As long as the source, line for line."""
    return SILENT.sub(lambda found: re.sub(r"[^\n]", " " if found[0][0] in "/ \t#" else "_",
                                           found[0]), source)


def closing(code, at):
    """Behind the bracket that closes the one that stands here."""
    depth = 0
    while True:
        depth += {"(": 1, "[": 1, "{": 1, ")": -1, "]": -1, "}": -1}.get(code[at], 0)
        at += 1
        if depth == 0:
            return at


def skip_space(code, at):
    while code[at].isspace():
        at += 1
    return at


def end_of_statement(code, at):
    at = skip_space(code, at)
    if code[at] == "{":
        return closing(code, at)
    control = CONTROL.match(code, at)
    if control:
        end = end_of_statement(code, closing(code, control.end() - 1))
        other = skip_space(code, end)
        has_else = control[1].startswith("if") and re.compile(r"else\b").match(code, other)
        return end_of_statement(code, other + len("else")) if has_else else end
    if re.compile(r"do\b").match(code, at):
        return code.index(";", end_of_statement(code, at + len("do"))) + 1
    while code[at] != ";":
        at = closing(code, at) if code[at] in "([{" else at + 1
    return at + 1


def complaints(source):
    """Line number and what is wrong there."""
    code = without_texts(source) + "\n;"
    for header in HEADER.finditer(code):
        begin = skip_space(code, closing(code, header.end() - 1) if header[1] else header.end())
        line = code.count("\n", 0, header.start()) + 1
        if code[begin] == ";":
            continue  # do … while
        if code[begin] != "{":
            if CONTROL.match(code, begin):
                yield line, "an if or a loop in here stands in braces"
            continue
        end = closing(code, begin)
        first = skip_space(code, begin + 1)
        has_branches = (header[2] or code.startswith("else", skip_space(code, end))
                        or code[:header.start()].rstrip().endswith("else"))
        if (first < end - 1 and not has_branches and not CONTROL.match(code, first)
                and not re.compile(r"do\b").match(code, first)
                and skip_space(code, end_of_statement(code, first)) == end - 1
                and not re.search(r"//|/\*", source[begin:end])):
            yield line, "one statement needs no braces"
