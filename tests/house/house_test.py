# SPDX-License-Identifier: MIT
"""What house.py lets pass and what it finds, on a small house of its own."""

import pathlib
import tempfile
import unittest

import house


class House(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.checkout = pathlib.Path(scratch.name)
        tops = list(dict.fromkeys(room.split("/")[0] for room in house.ROOMS))
        self.write("CMakeLists.txt", "".join(f"add_subdirectory({top})\n" for top in tops))
        self.write("README.md", "".join(f"| `{top}/` | what it is |\n" for top in tops))
        self.write("live/frame.h", '#include "config/record.h"\n#include "live/other.h"\n')
        self.write("live/frame.cpp", '#include "live/frame.h"\n\n#include <QString>\n')
        self.write("tests/live/frame_test.cpp", '#include "live/frame.h"\n')
        self.write("tests/house/tested-elsewhere.txt", "# Sources without a test\n")
        self.write("docs/architecture.md", "`frame.h`, then `live::include` in `tests/`.\n")

    def write(self, name, text):
        path = self.checkout / name
        path.parent.mkdir(parents=True, exist_ok=True)
        licence = "// SPDX-License-Identifier: MIT\n" if path.suffix in (".cpp", ".h") else ""
        path.write_text(licence + text, encoding="utf-8")

    def complaints(self):
        return list(house.complaints(self.checkout))

    def assertOneComplaint(self, *words):
        found = self.complaints()
        self.assertEqual(len(found), 1, found)
        for word in words:
            self.assertIn(word, found[0])

    def test_a_sound_house(self):
        self.assertEqual(self.complaints(), [])

    def test_an_include_goes_up(self):
        self.write("live/frame.h", '#include "app/main_window.h"\n')
        self.assertOneComplaint("live/frame.h", "app/main_window.h", "above live")

    def test_what_ships_includes_the_simulator(self):
        self.write("tools/frame.cpp", '#include "simulator/scene.h"\n')
        self.assertOneComplaint("tools/frame.cpp", "does not ship")

    def test_a_room_includes_a_test(self):
        self.write("live/frame.cpp", '#include "tests/support/folder.h"\n')
        self.assertOneComplaint("live/frame.cpp", "not the product's")

    def test_rooms_within_rooms(self):
        rooms = house.ROOMS[:]
        self.addCleanup(setattr, house, "ROOMS", rooms)
        house.ROOMS = ["config", "live/core", "live"] + rooms[rooms.index("live") + 1:]
        self.write("CMakeLists.txt", "")
        self.assertEqual(house.room_of("live/core/x.h"), "live/core")
        self.assertEqual(house.room_of("live/windows/x.h"), "live")
        self.assertEqual(house.room_of("x.h"), None)
        self.write("live/core/frame.h", '#include "live/window.h"\n')
        self.assertEqual(list(house.wrong_includes(self.checkout)),
                         ["live/core/frame.h: includes live/window.h, but live stands above "
                          "live/core"])

    def test_the_lists_of_rooms_agree(self):
        self.write("CMakeLists.txt", "add_subdirectory(live)\nadd_subdirectory(config)\n")
        self.assertOneComplaint("CMakeLists.txt", "live config")
        self.setUp()
        self.write("README.md", "| `config/` | first |\n")
        self.assertOneComplaint("README.md")

    def test_the_page_names_what_is_there(self):
        self.write("docs/architecture.md", "`gone.h`, `live::include`, `live::lost()`\n")
        found = self.complaints()
        self.assertEqual(len(found), 2, found)
        self.assertIn("gone.h", found[0])
        self.assertIn("live::lost()", found[1])

    def test_a_source_without_its_licence(self):
        (self.checkout / "tests/live/frame_test.cpp").write_text("#include <QString>\n")
        self.assertOneComplaint("tests/live/frame_test.cpp", "licence")

    def test_a_long_source(self):
        self.write("live/frame.h", "\n" * 350)
        self.assertEqual(self.complaints(), [])
        self.write("live/frame.h", "\n" * 351)
        self.assertOneComplaint("live/frame.h", "351 lines")

    def test_a_long_test(self):
        for name in ("tests/live/frame_test.cpp", "bench/frame.h", "fuzz/live/frame_fuzz.cpp"):
            self.write(name, "\n" * 351)
            self.assertOneComplaint(name, "351 lines")
            self.write(name, "\n" * 350)
            self.assertEqual(self.complaints(), [])

    def test_braces(self):
        good = """void f()
{
    if (a)
        call(b, [] { return c; });
    if (a) {
        one();
    } else if (b) {
        two();
    }
    for (int x = 0; x < 9; ++x) {
        if (x)
            call("if (a) for (;;)", '{'); // while (x) if (y)
    }
    do
        ++x;
    while (x);
}
"""
        self.write("live/frame.cpp", good)
        self.assertEqual(self.complaints(), [])
        for broken, line in (("if (a) for (;;)\n;", 2), ("while (a)\nif (b)\nc();", 2),
                             ("if (a)\nb();\nelse\nfor (;;)\nc();", 4),
                             ("if (a) {\nb(\nc);\n}", 2), ("for (auto x : y) { z(); }", 2)):
            self.write("live/frame.cpp", broken)
            self.assertOneComplaint(f"live/frame.cpp:{line}: ", "braces")

    def test_a_source_without_a_test(self):
        self.write("live/other.cpp", "")
        self.assertOneComplaint("live/other.cpp", "other_test.cpp")

    def test_a_source_tested_elsewhere(self):
        self.write("live/other.cpp", "")
        self.write("tests/house/tested-elsewhere.txt",
                   "# Sources without a test\n\nIt is tried with its frame, in `frame_test`.\n\n"
                   "    live/other.cpp\n")
        self.assertEqual(self.complaints(), [])

    def test_a_reason_that_names_no_test(self):
        self.write("live/other.cpp", "")
        self.write("tests/house/tested-elsewhere.txt",
                   "It is tried in `lost_test`.\n\n    live/other.cpp\n")
        self.assertOneComplaint("tested-elsewhere.txt", "lost_test")

    def test_reasons_in_vain(self):
        self.write("tests/house/tested-elsewhere.txt",
                   "No test can see it.\n\n    live/frame.cpp\n    live/gone.cpp\n")
        found = self.complaints()
        self.assertEqual(len(found), 2, found)
        self.assertIn("live/frame.cpp has a test of its own name", found[0])
        self.assertIn("there is no live/gone.cpp", found[1])


if __name__ == "__main__":
    unittest.main()
