#!/usr/bin/env python3
"""The generator: what it says of a wrong description, and what it makes of a tiny one."""

import filecmp
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
SCHEMA = HERE.parents[1] / "schema"


def generate(*arguments):
    return subprocess.run([sys.executable, SCHEMA / "generate.py", *arguments], capture_output=True, text=True)


class WrongDescription(unittest.TestCase):
    """Each mistake stops the generator and is told by element and row."""

    CASES = [
        ("unknown rule", "task_data.toml", '"id LGP"', '"id_ LGP"', 'LinkGroup A: unknown rule "id_ LGP"'),
        ("rule without its argument", "task_data.toml", '"id LGP"', '"id"', "LinkGroup A: the rule needs an argument"),
        ("argument too many", "task_data.toml", '"object_id_ref"', '"object_id_ref 3"',
         "Link A: the rule takes no argument"),
        ("no span", "task_data.toml", '"range 1..254"', '"range 1"', 'AttachedFile D: "1" is no span "a..b"'),
        ("unknown type", "task_data.toml", '"uint8",  "range 1..254"', '"uint9",  "range 1..254"',
         'AttachedFile D: unknown type "uint9"'),
        ("rule of another type", "task_data.toml", '"uint8",  "range 1..254"', '"uint8",  "text 32"',
         'AttachedFile D: rule "text 32" is for type "string", not "uint8"'),
        ("unknown use", "task_data.toml", '"required", "uint8",  "range 1..254"', '"requird", "uint8", "range 1..254"',
         'AttachedFile D: use "requird" is none of required, optional'),
        ("missing column", "task_data.toml", '"id LGP",', "", "LinkGroup A: 5 columns instead of 6"),
        ("attribute twice", "task_data.toml", '["B", "Type",            "required", "string", "one_of 1..4"',
         '["A", "Type",            "required", "string", "one_of 1..4"', 'LinkGroup: attribute "A" stands twice'),
        ("field twice", "task_data.toml", '"Namespace", ', '"Designator",', 'LinkGroup: field "Designator" stands twice'),
        ("unknown class", "task_data.toml", '"LinkGroup", "run"', '"LinkGrup", "run"',
         'LinkList alternative LinkGroup: unknown class "LinkGrup"'),
        ("unknown way of holding", "task_data.toml", '"LinkGroup", "run"', '"LinkGroup", "runs"',
         'LinkList alternative LinkGroup: held "runs" is none of one, run'),
        ("unknown key", "task_data.toml", '[LinkGroup]\ntag', '[LinkGroup]\nsize = 3\ntag', 'LinkGroup: key "size" is none of'),
        ("no tag", "task_data.toml", 'tag = "LGP"\n', "", 'LinkGroup: "tag" is missing'),
        ("unknown number of children", "task_data.toml", 'children = "any"', 'children = "some"',
         'children "some" is none of any, at_least_one, at_most_one'),
        ("missing in root", "root.toml", '  "LinkGroup",\n', "", 'root.toml: "LinkGroup" stands 0 times'),
        ("unknown in root", "root.toml", '"LinkGroup"', '"LinkGrup"', 'root.toml: unknown class "LinkGrup"'),
        ("unknown facet", "rules.toml", "max_length = 14", "max_lenght = 14", 'unknown facet "max_lenght"'),
        ("unknown form", "rules.toml", 'form = "hex"', 'form = "hexa"', 'unknown form "hexa"'),
        ("no TOML", "task_data.toml", "[LinkGroup]", "[LinkGroup", "schema: "),
    ]

    def test_stops_with_element_and_row(self):
        for caption, file, old, new, message in self.CASES:
            with self.subTest(caption), tempfile.TemporaryDirectory() as folder:
                copy = Path(folder) / "schema"
                shutil.copytree(SCHEMA, copy)
                text = (copy / file).read_text()
                self.assertIn(old, text)
                (copy / file).write_text(text.replace(old, new, 1))
                run = generate("--schema", copy, "--output", Path(folder) / "out")
                self.assertEqual(1, run.returncode)
                self.assertIn(message, run.stderr)
                self.assertFalse((Path(folder) / "out").exists(), "nothing is written")


class TinyDescription(unittest.TestCase):
    """Its output is committed, so that a change of the generator shows what it does."""

    def test_gives_the_committed_output(self):
        with tempfile.TemporaryDirectory() as folder:
            run = generate("--schema", HERE / "golden/schema", "--output", folder)
            self.assertEqual(0, run.returncode, run.stderr)
            golden = HERE / "golden/output"
            names = sorted(str(path.relative_to(folder)) for path in Path(folder).rglob("*.*"))
            self.assertEqual(sorted(str(path.relative_to(golden)) for path in golden.rglob("*.*")), names)
            _, differ, errors = filecmp.cmpfiles(golden, folder, names, shallow=False)
            self.assertEqual(([], []), (differ, errors))

    def test_writes_only_what_changed(self):
        with tempfile.TemporaryDirectory() as folder:
            generate("--schema", HERE / "golden/schema", "--output", folder)
            again = generate("--schema", HERE / "golden/schema", "--output", folder)
            self.assertEqual("", again.stdout)
            (Path(folder) / "isoxmllib/task.h").write_text("stale")
            check = generate("--check", "--schema", HERE / "golden/schema", "--output", folder)
            self.assertEqual((1, "isoxmllib/task.h is not current\n"), (check.returncode, check.stdout))


if __name__ == "__main__":
    unittest.main()
