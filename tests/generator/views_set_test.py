#!/usr/bin/env python3
"""The generator of the views' set: all that the views have a rule for occurs, often enough for a comparison to meet
it, and the set comes out the same for the same seed."""

import collections
import sys
import tempfile
import unittest
import xml.etree.ElementTree as tree
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
import views_set  # noqa: E402

SEVERAL = 5


def runs(element, tags):
    """The kinds of neighbours, such as ["PLN", "PDV", "PLN"]."""
    kinds = []
    for child in element:
        if child.tag in tags and (not kinds or kinds[-1] != child.tag):
            kinds.append(child.tag)
    return kinds


class ViewsSet(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.directory = Path(cls.folder.name) / "set"
        views_set.make(cls.directory, seed=7, size=5_500_000)  # the set that is compared
        cls.documents = {file.stem: tree.parse(file).getroot() for file in sorted(cls.directory.iterdir())
                         if file.stem != views_set.BROKEN}
        cls.roots = [root for name, root in cls.documents.items() if not name.startswith("LINKLIS")]

    def all(self, path):
        return [element for root in self.roots for element in root.findall(path)]

    def expect_several(self, counts, *wanted):
        for what in wanted:
            self.assertGreaterEqual(counts[what], SEVERAL, f"{what} of {dict(counts)}")

    def test_pivots_have_no_one_and_several_centres_anywhere_in_the_line(self):
        lines = [line.findall("PNT") for line in self.all("PFD/GGP/GPN[@C='4']/LSG[@A='5']")]
        centres = [[i for i, point in enumerate(line) if point.get("A") == "8"] for line in lines]
        self.expect_several(collections.Counter(min(len(found), 2) for found in centres), 0, 1, 2)
        self.expect_several(collections.Counter(found[0] != 0 for found in centres if found), True)

    def test_guidance_is_of_every_type_with_other_lines_boundaries_and_centres(self):
        patterns = self.all("PFD/GGP/GPN")
        self.expect_several(collections.Counter(pattern.get("C").strip() for pattern in patterns), *"12345")
        for attribute in "DEFGHI":
            self.expect_several(collections.Counter(pattern.get(attribute) is None for pattern in patterns), True, False)
        self.expect_several(collections.Counter(line.get("A") == "5" for line in self.all("PFD/GGP/GPN/LSG")), True, False)
        for path in ("PFD/GGP/PLN", "PFD/GGP/GPN/PLN", "PFD/GGP/GPN[@C='1']/LSG[@A='5']/PNT[@A='8']"):
            self.assertGreaterEqual(len(self.all(path)), SEVERAL, path)

    def test_zones_have_polygons_and_variables_in_every_order(self):
        kinds = collections.Counter(" ".join(runs(zone, ("PLN", "PDV"))) for zone in self.all("TSK/TZN"))
        self.expect_several(kinds, "", "PLN", "PDV", "PLN PDV", "PDV PLN")
        self.expect_several(kinds, "PLN PDV PLN", "PDV PLN PDV")
        names = collections.Counter((len(zone.findall("PLN")), zone.findall("PLN")[-1].get("B") is not None)
                                    for zone in self.all("TSK/TZN") if zone.find("PLN") is not None)
        self.expect_several(names, (1, True), (1, False), (2, True), (2, False))

    def test_polygons_have_holes_and_their_rings_every_order(self):
        types = collections.Counter(" ".join(ring.get("A") for ring in polygon.findall("LSG"))
                                    for polygon in self.all("PFD/PLN"))
        self.expect_several(types, "1", "2", "1 2", "2 1")

    def test_identifiers_repeat_and_references_lead_somewhere(self):
        ids = collections.Counter(task.get("A") for task in self.all("TSK"))
        self.assertGreaterEqual(sum(count > 1 for count in ids.values()), 2)
        zones = collections.defaultdict(set)
        for task in self.all("TSK"):
            zones[task.get("A")].add(len(task.findall("TZN")))
        self.assertTrue(any(len(counts) > 1 for counts in zones.values()))
        growers = {grower.get("A") for grower in self.all("CTR")}
        self.expect_several(collections.Counter(field.get("E") in growers for field in self.all("PFD[@E]")), True, False)

    def test_links_are_missing_repeated_empty_and_of_other_types(self):
        groups = [(group.get("B").strip(), group.findall("LNK")) for group in self.documents["LINKLIST"].findall("LGP")]
        linked = [link for kind, links in groups if kind == "1" for link in links]
        keys = collections.Counter(link.get("A") for link in linked)
        self.expect_several(collections.Counter(keys.values()), 1, 2)
        self.expect_several(collections.Counter(link.get("B") == "" for link in linked), True)
        others = {link.get("A") for kind, links in groups if kind != "1" for link in links}
        self.assertGreaterEqual(len(others - set(keys)), SEVERAL)
        fields = collections.Counter(field.get("A") in keys for field in self.all("PFD"))
        self.expect_several(fields, True, False)

    def test_numbers_are_spelled_in_every_way(self):
        texts = [point.get("C") for point in self.all(".//PNT[@C]")]
        for what, is_so in {"a sign": lambda text: "+" in text, "blanks": lambda text: text != text.strip(),
                            "nothing before the point": lambda text: text.strip().lstrip("+-").startswith("."),
                            "nothing behind it": lambda text: text.strip().endswith("."),
                            "more than fifteen digits": lambda text: sum(map(str.isdigit, text)) > 15}.items():
            with self.subTest(what):
                self.assertGreaterEqual(sum(map(is_so, texts)), SEVERAL)

    def test_the_same_seed_gives_the_same_set(self):
        def files(name, seed):
            directory = Path(self.folder.name) / name
            views_set.make(directory, seed=seed, size=50_000)
            return {file.name: file.read_bytes() for file in directory.iterdir()}

        self.assertEqual(files("one", 4), files("same", 4))
        self.assertNotEqual(files("one", 4), files("other", 5))


if __name__ == "__main__":
    unittest.main()
