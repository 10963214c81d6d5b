#!/usr/bin/env python3
"""The generator of transfer sets: its sets hold everything the format has, come out the same for the same seed, and
read without a fault. The last is for the command-line host to tell: class SetsReadByTheHost, which asks the program in
ISOXML_TOOL."""

import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import transfer_set  # noqa: E402
from values import model  # noqa: E402


def contents(directory):
    return {path.name: path.read_text(encoding="utf-8") for path in sorted(directory.iterdir())}


class SetsTestCase(unittest.TestCase):
    def directory(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        return Path(folder.name) / "set"

    def make(self, **options):
        directory = self.directory()
        transfer_set.make(directory, **options)
        return directory

    def make_farm(self, **options):
        directory = self.directory()
        directory.mkdir()
        transfer_set.make_farm(directory, **options)
        return directory


class GeneratedSets(SetsTestCase):
    def test_every_element_and_attribute_occurs(self):
        text = "".join(contents(self.make(seed=1, size=600_000)).values())
        tags = set(re.findall(r"<(\w+)[ />]", text))
        seen = {(tag, name) for tag, attributes in re.findall(r"<(\w+)((?: \w+=\"[^\"]*\")*)", text)
                for name in re.findall(r" (\w+)=", attributes)}
        elements = model.load().elements.values()
        self.assertEqual(set(), {element.tag for element in elements} - tags)
        self.assertEqual(set(), {(element.tag, value.xml) for element in elements for value in element.attributes} - seen)

    def test_the_size_is_about_what_was_asked_for(self):
        size = sum(len(text) for text in contents(self.make(seed=1, size=300_000)).values())
        self.assertTrue(300_000 <= size <= 600_000, size)

    def test_a_farm_has_the_fields_and_points_that_were_asked_for(self):
        text = contents(self.make_farm(seed=1, fields=120, points=25))["TASKDATA.XML"]
        self.assertEqual((120, 100), (text.count("<PFD "), text.count("<TZN ")))
        self.assertEqual(120 * (26 + 13) + 100 * 26, text.count("<PNT "))

    def test_the_same_seed_gives_the_same_set(self):
        one = contents(self.make(seed=4, size=50_000))
        self.assertEqual(one, contents(self.make(seed=4, size=50_000)))
        self.assertNotEqual(one, contents(self.make(seed=5, size=50_000)))


class SetsReadByTheHost(SetsTestCase):
    def check(self, directory):
        return subprocess.run([os.environ["ISOXML_TOOL"], "check", directory], capture_output=True, text=True)

    def test_every_profile_and_seed_reads(self):
        for profile in transfer_set.PROFILES:
            for seed in range(3):
                with self.subTest(profile=profile, seed=seed):
                    outcome = self.check(self.make(seed=seed, size=60_000, profile=profile))
                    self.assertEqual(0, outcome.returncode, outcome.stdout)

    def test_a_farm_reads(self):
        outcome = self.check(self.make_farm(seed=1, fields=120, points=25))
        self.assertEqual(0, outcome.returncode, outcome.stdout)


if __name__ == "__main__":
    unittest.main()
