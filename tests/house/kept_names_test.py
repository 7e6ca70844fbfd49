# SPDX-License-Identifier: MIT
"""Every test that docs/kept-names-and-quirks.md names is there."""

import pathlib
import re
import sys

TOP = pathlib.Path(__file__).resolve().parents[2]


def main():
    page = (TOP / "docs" / "kept-names-and-quirks.md").read_text(encoding="utf-8")
    named = [name for line in page.splitlines() if line.startswith("| ")
             for name in re.findall(r"`(\w+)`", line.rsplit("|", 2)[1])]
    tests = "".join(path.read_text(encoding="utf-8") for path in (TOP / "tests").rglob("*.cpp"))
    missing = [name for name in named if not re.search(rf"\b{name}\(\)", tests)]
    print("\n".join(f"no such test: {name}" for name in missing) or f"all {len(named)} are there")
    return 1 if missing or len(named) < 50 else 0


if __name__ == "__main__":
    sys.exit(main())
