#!/usr/bin/env python3
"""Changes one cell of the description at a time and shows that the pinned numbers notice each."""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
SCHEMA = HERE.parents[1] / "schema"

MUTATIONS = [
    ("attribute's XML name", "task.toml", '["F",                "ResponsibleWorkerIdRef"', '["K",                "ResponsibleWorkerIdRef"'),
    ("field's spelling", "task.toml", '"PgsUtcDate"', '"GpsUtcDate"'),
    ("use", "device.toml", '"required", "binary", "structure_label"', '"optional", "binary", "structure_label"'),
    ("type", "task.toml", '"uint8",  "range 0..254"', '"uint16",  "range 0..254"'),
    ("bound of a range", "device.toml", '"range 1..65534"', '"range 1..65535"'),
    ("length", "master_data.toml", '"text 330"', '"text 333"'),
    ("identifier's kind", "task.toml", '"id WKR"', '"id VPN"'),
    ("enumeration", "task.toml", '"one_of 1..6"', '"one_of 1..7"'),
    ("pattern", "rules.toml", "PNT([0-9]){5}", "PNT([0-9]){6}"),
    ("white space", "rules.toml", 'reply_type    = { type = "string", pattern = \'boolean|string|datetime|integer|decimal|list\', white_space = "preserve" }',
     "reply_type    = { type = \"string\", pattern = 'boolean|string|datetime|integer|decimal|list' }"),
    ("limit of a value", "rules.toml", 'high = "99.9"', 'high = "99.99"'),
    ("bytes", "task.toml", '"bytes 2"', '"bytes 3"'),
    ("tag", "device.toml", 'tag = "DOR"', 'tag = "DRO"'),
    ("alternative's class", "field_geometry.toml", '"BoundaryPolygon", "Polygon",', '"BoundaryPolygon", "LineString",'),
    ("one or run", "task.toml", '"Grid",               "Grid",               "one"', '"Grid",               "Grid",               "run"'),
    ("order of alternatives", "root.toml", '  "Task",\n  "Time",\n', '  "Time",\n  "Task",\n'),
    ("bounded run", "task.toml", "{ run_limit = 2 }", "{ run_limit = 3 }"),
    ("event of its own", "field_geometry.toml", ", { own_event = true }", ""),
]


class OneCell(unittest.TestCase):
    def test_is_noticed(self):
        for caption, file, old, new in MUTATIONS:
            with self.subTest(caption), tempfile.TemporaryDirectory() as folder:
                copy = Path(folder) / "schema"
                shutil.copytree(SCHEMA, copy)
                text = (copy / file).read_text()
                self.assertIn(old, text)
                (copy / file).write_text(text.replace(old, new, 1))
                run = subprocess.run([sys.executable, HERE / "check_numbers.py", copy], capture_output=True, text=True)
                self.assertNotEqual(0, run.returncode, "the change went unnoticed")


if __name__ == "__main__":
    unittest.main()
