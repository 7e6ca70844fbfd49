# SPDX-License-Identifier: MIT
"""What resources/check-catalogues lets pass and what it finds, on a small tree of its own."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

RESOURCES = pathlib.Path(__file__).resolve().parents[2] / "resources"
WINDOW = """
#include <QObject>
class Page : public QObject
{
    Q_OBJECT
    QString text() { return tr("连接") + tr("第%1张").arg(1); }
};
"""
GLOSSARY = "source\tEN\tRU\tKO\n连接\tConnect\tПодключить\t연결\n第%1张\tPicture %1\tСнимок %1\t사진 %1\n"


class CheckCatalogues(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.tree = pathlib.Path(scratch.name)
        for room in ("config", "platform", "files", "dialogs", "overlay", "plots", "live", "analysis",
                     "app", "resources"):
            (self.tree / room).mkdir()
        self.catalogues = self.tree / "resources" / "catalogues"
        self.catalogues.mkdir()
        for script in ("update-catalogues", "check-catalogues", "catalogues/fill-from-glossary"):
            shutil.copy(RESOURCES / script, self.tree / "resources" / script)
        self.glossary = self.catalogues / "glossary.tsv"
        self.glossary.write_text(GLOSSARY, encoding="utf-8")
        self.window = self.tree / "app" / "page.cpp"
        self.window.write_text(WINDOW, encoding="utf-8")
        self.russian = self.catalogues / "Demo_RU.ts"
        self.update()

    def update(self):
        return subprocess.run(self.tree / "resources" / "update-catalogues", check=True,
                              capture_output=True, text=True).stdout

    def edit(self, path, old, new):
        text = path.read_text(encoding="utf-8")
        self.assertIn(old, text)
        path.write_text(text.replace(old, new), encoding="utf-8")

    def assert_fault(self, *parts):
        result = subprocess.run(self.tree / "resources" / "check-catalogues",
                                capture_output=True, text=True, check=False)
        self.assertEqual(result.returncode, 1, result.stdout)
        for part in parts:
            self.assertIn(part, result.stdout)

    def test_the_glossary_completes_the_catalogues(self):
        subprocess.run(self.tree / "resources" / "check-catalogues", check=True,
                       capture_output=True)
        self.assertIn("Подключить", self.russian.read_text(encoding="utf-8"))

    def test_updating_again_changes_nothing(self):
        before = self.russian.read_bytes()
        self.update()
        self.assertEqual(self.russian.read_bytes(), before)

    def test_a_new_text_that_nobody_collected(self):
        self.edit(self.window, 'tr("连接")', 'tr("连接") + tr("断开")')
        self.assert_fault("Demo_RU.ts: Page: “断开” is not in the catalogue")

    def test_a_new_text_without_a_translation(self):
        self.edit(self.window, 'tr("连接")', 'tr("连接") + tr("断开")')
        self.assertIn("without a translation: Demo_KO.ts: Page: 断开", self.update())
        self.assert_fault("Demo_KO.ts: Page: “断开” is unfinished")

    def test_a_text_that_is_no_longer_used(self):
        self.edit(self.window, 'tr("连接") + ', "")
        self.assert_fault("Demo_EN.ts: Page: “连接” is no longer in the sources")

    def test_an_obsolete_text(self):
        self.edit(self.russian, "</context>", "<message><source>旧</source>"
                  '<translation type="vanished">Старый</translation></message></context>')
        self.assert_fault("Demo_RU.ts: Page: “旧” is no longer in the sources")

    def test_a_text_of_another_class(self):
        self.edit(self.window, "Page", "Sheet")
        self.assert_fault("Sheet: “连接” is not in the catalogue")

    def test_an_empty_translation(self):
        self.glossary.write_text("", encoding="utf-8")
        self.edit(self.russian, "Подключить", "")
        self.assert_fault("Demo_RU.ts: Page: “连接” has an empty translation")

    def test_a_translation_that_is_still_chinese(self):
        self.glossary.write_text("", encoding="utf-8")
        self.edit(self.russian, "Подключить", "连接")
        self.assert_fault("Demo_RU.ts: Page: “连接” is still Chinese")

    def test_a_text_that_is_the_same_in_every_language(self):
        self.edit(self.glossary, "Connect\tПодключить\t연결", "=\t=\t=")
        self.update()
        subprocess.run(self.tree / "resources" / "check-catalogues", check=True,
                       capture_output=True)

    def test_lost_places(self):
        self.edit(self.glossary, "Снимок %1", "Снимок %2")
        self.update()
        self.assert_fault("Demo_RU.ts: Page: “第%1张” has the places ['%1'], "
                          "its translation ['%2']")

    def test_other_words_than_the_glossary(self):
        self.edit(self.russian, "Подключить", "Соединить")
        self.assert_fault("Demo_RU.ts: Page: “连接” is ['Подключить'] in the glossary")

    def test_a_class_that_cannot_translate(self):
        self.edit(self.window, "Q_OBJECT", "")
        self.assert_fault("lacks Q_OBJECT macro")

    def test_a_catalogue_that_is_no_catalogue(self):
        self.russian.write_text("<TS", encoding="utf-8")
        self.assert_fault("Demo_RU.ts")


if __name__ == "__main__":
    unittest.main()
