"""The layer check finds an upward include, a circle, a forbidden neighbour and a file without a floor."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(sys.argv.pop())


class CheckLayers(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.root = pathlib.Path(self.folder.name)
        self.write("tools/layers.list", (TOOLS / "layers.list").read_text())

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def check(self):
        run = subprocess.run([sys.executable, str(TOOLS / "check-layers"), str(self.root)],
                             capture_output=True, text=True)
        return run.returncode, run.stderr

    def test_downward_includes_pass(self):
        self.write("subjectpage/records/a.h", "#pragma once\n")
        self.write("subjectpage/tfmainview.cpp", '#include "records/a.h"\n')
        self.assertEqual((0, ""), self.check())

    def test_upward_include_is_named_with_its_line(self):
        self.write("subjectpage/tfmainview.h", "")
        self.write("subjectpage/net/a.cpp", '#include <QObject>\n#include "tfmainview.h"\n')
        code, text = self.check()
        self.assertEqual(1, code)
        self.assertIn("subjectpage/net/a.cpp:2: floor 1 includes subjectpage/tfmainview.h of floor 5", text)

    def test_circle_is_shown_as_a_path(self):
        self.write("subjectpage/net/a.h", '#include "b.h"\n')
        self.write("subjectpage/net/b.h", '#include "a.h"\n')
        code, text = self.check()
        self.assertEqual(1, code)
        self.assertIn("circle: subjectpage/net/a.h -> subjectpage/net/b.h -> subjectpage/net/a.h", text)

    def test_terminal_may_not_know_the_plugin(self):
        self.write("subjectpage/tfsubjectpage.h", "")
        self.write("host/terminal/main.cpp", '#include "tfsubjectpage.h"\n')
        self.assertIn("includes subjectpage/tfsubjectpage.h", self.check()[1])

    def test_file_without_a_floor_is_a_fault(self):
        self.write("subjectpage/stray.cpp", "")
        self.assertIn("subjectpage/stray.cpp: has no floor", self.check()[1])


unittest.main(argv=sys.argv[:1])
