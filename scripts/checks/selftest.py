"""Plants one fault of each kind in a small tree and checks that it is found, and nothing else.

Run as: scripts/check --self-test"""

import pathlib
import subprocess
import tempfile
import unittest

from checks import layers, seams, tools, unused, words
from checks.tree import Tree

SOUND = {
    ".clang-format": "BasedOnStyle: LLVM\n",
    "src/CMakeLists.txt": "target_sources(tallymoor_core PRIVATE core/session.cpp board/faces.cpp)\n",
    "src/core/session.h": "#pragma once\n#include <QString>\n",
    "src/core/session.cpp": '#include "core/session.h"\n',
    "src/window/form1.cpp": '#include "tools/sort.h"\n#include "board/faces.h"\n',
    "src/platform/realDesktop.cpp": "void ask() { QMessageBox::question(nullptr, {}, {}); }\n",
    "src/board/faces.h": '#pragma once\n#include "core/session.h"\n',
    "src/board/faces.cpp": '#include "board/faces.h"\nconst char *icon = "yes%1.svg";\n',
    "src/database/opening.cpp": '#include "board/faces.h"\n',
    "src/tools/sort.h": '#pragma once\n#include "board/faces.h"\n',
    "resources/yes3.svg": "<svg/>\n",
    "tests/damaged/short.bmp": "BM",
    "tests/pictures_test.cpp": 'const char *all = "damaged/";\n',
}

# What is planted (file -> text), which check is run, what it must report.
PLANTED = [
    ({"src/board/table.h": '#include "tools/sort.h"\n'}, layers.faults, "board includes src/tools/sort.h, which is no floor below"),
    ({"src/editing/card.cpp": '#include "tools/sort.h"\n'}, layers.faults,
     "editing includes src/tools/sort.h, which is no floor below"),
    ({"src/attic/box.h": ""}, layers.faults, "stands on no floor"),
    ({"src/tools/a.h": '#include "tools/b.h"\n', "src/tools/b.h": "", "src/tools/b.cpp": '#include "tools/a.h"\n'},
     layers.faults, "tools/a -> tools/b -> tools/a"),
    ({"src/core/session.h": "#include <QWidget>\n"}, layers.faults, "knows no windows: QWidget"),
    ({"src/board/faces.cpp": "#include <QtWidgets/QLabel>\n// yes%1\n"}, layers.faults, "knows no windows: QtWidgets/QLabel"),
    ({"src/tools/sort.cpp": "void f() { QMessageBox::about(nullptr, {}, {}); }\n"}, seams.faults, "desktop.boxes.showMessage"),
    ({"src/tools/sort.cpp": "void f() { QFileDialog d; }\n"}, seams.faults, "desktop.files.chooseFolder"),
    ({"src/tools/sort.cpp": "void f() { QApplication::beep(); }\n"}, seams.faults, "desktop.sound.beep"),
    ({"src/tools/sort.cpp": "void f() { std::async([] {}); }\n"}, seams.faults, "Errands::send"),
    ({"src/platform/wave.cpp": "void f() { qApp->processEvents(); }\n"}, seams.faults, "desktop.yield"),
    ({"resources/lonely.svg": "<svg/>\n"}, unused.faults, "resources/lonely.svg"),
    ({"tests/odd/other.bmp": "BM"}, unused.faults, "tests/odd/other.bmp"),
    ({"docs/notes.md": "as the speci" + "fication says\n"}, words.faults, "docs/notes.md:1"),
    ({"src/tools/sort.cpp": f"// see {pathlib.Path.home()}/cards\n"}, words.faults, "src/tools/sort.cpp:1"),
    ({"src/tools/sort.cpp": "int  f( ){return 1;}\n"}, tools.badly_formatted, "src/tools/sort.cpp"),
    ({"src/tools/sort.cpp": "int f()\n{\n  int a[2] = {};\n  return a[2];\n}\n"}, tools.cppcheck, "arrayIndexOutOfBounds"),
]


class Checks(unittest.TestCase):
    def faults(self, look, planted):
        """What the check reports on the sound tree with `planted` added; external tools get the planted files."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in (SOUND | planted).items():
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            subprocess.run(["git", "init", "-q", folder], check=True)
            tree = Tree(folder)
            return list(look(tree, list(planted)) if look.__module__ == tools.__name__ else look(tree))

    def test_sound_tree_is_clean(self):
        for look in (layers.faults, seams.faults, unused.faults, words.faults):
            self.assertEqual([], self.faults(look, {}))

    def test_every_planted_fault_is_found_alone(self):
        for planted, look, told in PLANTED:
            with self.subTest(told=told):
                found = self.faults(look, planted)
                self.assertEqual(1, len(found), found)
                self.assertIn(told, found[0])
