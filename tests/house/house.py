# SPDX-License-Identifier: MIT
"""What holds for the sources as a whole, whatever they do.

    tests/house/house.py [CHECKOUT]    names everything that does not hold; exit status 1 then

The folders stand on each other; every source has a test of its own name. The reasons for exceptions
stand in tested-elsewhere.txt beside this file.
"""

import pathlib
import re
import sys

import braces

# From the ground up: a folder includes only what stands in the same line or above it.
ROOMS = [
    "config",
    "platform",
    "files",
    "resources",
    "dialogs",
    "overlay",
    "plots",
    "live",
    "analysis/photograph",
    "analysis/report",
    "analysis/export",
    "analysis/windows",
    "app",
    "simulator",
    "tools",
]
# What never ships; nothing that ships includes it.
NOT_SHIPPED = ["simulator"]
# They may include any room, and each other's helpers, but no room includes them.
BESIDE = ["tests", "bench", "fuzz"]

MOST_LINES = 350

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def room_of(path):
    """The room that a path lies in, the innermost one; None outside all rooms."""
    parts = path.split("/")
    for length in range(len(parts) - 1, 0, -1):
        if "/".join(parts[:length]) in ROOMS:
            return "/".join(parts[:length])
    return None


def files_in(checkout, tops, suffixes):
    return sorted(str(path.relative_to(checkout)) for top in tops
                  for path in (checkout / top).rglob("*") if path.suffix in suffixes)


def sources(checkout, *suffixes):
    """Paths of all rooms' files, from the checkout's top."""
    return files_in(checkout, {room.split("/")[0] for room in ROOMS}, suffixes)


def sources_beside(checkout):
    """Those of tests, benchmarks and fuzzing."""
    return files_in(checkout, BESIDE, (".cpp", ".h"))


def wrong_includes(checkout):
    """Includes that go up, or out of the house."""
    for name in sources(checkout, ".cpp", ".h"):
        own = room_of(name)
        if not own:
            yield f"{name}: its folder is none of the rooms in tests/house/house.py"
            continue
        for included in INCLUDE.findall((checkout / name).read_text(encoding="utf-8")):
            other = room_of(included)
            if included.split("/")[0] in BESIDE:
                yield f"{name}: includes {included}, which is not the product's"
            elif other and ROOMS.index(other) > ROOMS.index(own):
                yield f"{name}: includes {included}, but {other} stands above {own}"
            elif other in NOT_SHIPPED and own not in NOT_SHIPPED:
                yield f"{name}: includes {included}, which does not ship"


def other_orders(checkout):
    """Where the folders are listed in another order than here, or not all of them."""
    tops = list(dict.fromkeys(room.split("/")[0] for room in ROOMS))
    built = re.findall(r"^add_subdirectory\((\w+)\)", (checkout / "CMakeLists.txt").read_text(),
                       re.MULTILINE)
    if [name for name in built if name in tops] != tops:
        yield f"CMakeLists.txt: adds {' '.join(built)}; the order is {' '.join(tops)}"
    told = re.findall(r"^\| `(\w+)/` \|", (checkout / "README.md").read_text(), re.MULTILINE)
    if [name for name in told if name in tops] != tops:
        yield f"README.md: lists {' '.join(told)}; the order is {' '.join(tops)}"


def without_licence(checkout):
    """Sources, tests and their like that do not begin with their licence."""
    for name in sources(checkout, ".cpp", ".h") + sources_beside(checkout):
        first = (checkout / name).read_text(encoding="utf-8").partition("\n")[0]
        if first != "// SPDX-License-Identifier: MIT":
            yield f"{name}: begins without its licence"


def long_sources(checkout):
    """Sources that nobody reads in one go. Functions are clang-tidy's, 60 lines at most."""
    for name in sources(checkout, ".cpp", ".h") + sources_beside(checkout):
        lines = len((checkout / name).read_text(encoding="utf-8").splitlines()) - 1  # its licence
        if lines > MOST_LINES:
            yield f"{name}: {lines} lines, more than {MOST_LINES}"


def wrong_braces(checkout):
    for name in sources(checkout, ".cpp", ".h") + sources_beside(checkout):
        for line, complaint in braces.complaints((checkout / name).read_text(encoding="utf-8")):
            yield f"{name}:{line}: {complaint}"


def tested_elsewhere(checkout):
    """File -> reason. A paragraph is a reason, the indented one below it names the files."""
    reasons = {}
    reason, is_complete = "", True
    text = (checkout / "tests/house/tested-elsewhere.txt").read_text(encoding="utf-8")
    for line in (line for line in text.splitlines() if line and not line.startswith("#")):
        if line.startswith(" "):
            reasons[line.strip()] = reason
            is_complete = True
        else:
            reason = line if is_complete else f"{reason} {line}"
            is_complete = False
    return reasons


def sources_without_tests(checkout):
    """Sources without a test of their own name and without a reason; reasons given in vain."""
    tests = {path.stem for path in (checkout / "tests").rglob("*_test.*")}
    reasons = tested_elsewhere(checkout)
    known = set(sources(checkout, ".cpp"))
    for name in sorted(known):
        own = pathlib.PurePath(name).stem + "_test"
        if own not in tests and name not in reasons:
            yield f"{name}: has no {own}.cpp and no reason in tests/house/tested-elsewhere.txt"
        if own in tests and name in reasons:
            yield f"tested-elsewhere.txt: {name} has a test of its own name"
    for name in sorted(set(reasons) - known):
        yield f"tested-elsewhere.txt: there is no {name}"
    for test in sorted(set(re.findall(r"\b\w+_test\b", " ".join(reasons.values()))) - tests):
        yield f"tested-elsewhere.txt: there is no {test}"


def names_of_no_source(checkout):
    """Names in the architecture's page that no source has."""
    page = (checkout / "docs/architecture.md").read_text(encoding="utf-8")
    whole = "\n".join((checkout / name).read_text(encoding="utf-8")
                      for name in sources(checkout, ".cpp", ".h"))
    headers = {pathlib.PurePath(name).name for name in sources(checkout, ".h")}
    for name in sorted(set(re.findall(r"`([\w:]+(?:\(\))?|\w+\.h)`", page))):
        if name.startswith("thermadesk_"):
            continue  # a library
        if name.endswith(".h"):
            is_there = name in headers
        else:
            last = name.removesuffix("()").split("::")[-1]
            is_there = re.search(rf"\b{last}\b", whole) or (checkout / last).exists()
        if not is_there:
            yield f"docs/architecture.md: no source has {name}"


def complaints(checkout):
    yield from names_of_no_source(checkout)
    yield from without_licence(checkout)
    yield from long_sources(checkout)
    yield from wrong_braces(checkout)
    yield from wrong_includes(checkout)
    yield from other_orders(checkout)
    yield from sources_without_tests(checkout)


def main():
    checkout = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else
                            pathlib.Path(__file__).resolve().parents[2])
    found = list(complaints(checkout))
    print("\n".join(found) or "the house stands")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
