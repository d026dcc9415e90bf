"""Small project trees in a temporary folder, for the tests of the checks."""

import json
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

WURZEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WURZEL / "tools"))


class Baumtest(unittest.TestCase):
    def setUp(self):
        self.baum = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.baum)

    def schreibe(self, name, text):
        pfad = self.baum / name
        pfad.parent.mkdir(parents=True, exist_ok=True)
        pfad.write_text(text, encoding="utf-8")

    def schreibe_json(self, name, werte):
        self.schreibe(name, json.dumps(werte))
