"""The command `map` as far as no browser is needed: the file it writes, what is in it, and what cannot get into it."""
import base64
import hashlib
import json
import os
import pathlib
import re
import tempfile
import unittest

from tool import ALL_GOOD, EXAMPLE_SETS, NO_RESULT, SOME_FAILED, WRONG_USAGE, TransferSetTest, run, task_data

COMPLETE = EXAMPLE_SETS / "complete"
HOSTILE = '</script><img src=x onerror=alert(1)>&<!--]]>\u2029\\"'


def data_in(page):
    """What the page embeds, found as a browser finds it: up to the first end tag."""
    return json.loads(re.search(r'<script type="application/json" id="data">(.*?)</script', page, re.DOTALL).group(1))


def content_of(tag, page):
    return re.search(rf"<{tag}>(.*?)</{tag}>", page, re.DOTALL).group(1)


class MapTest(TransferSetTest):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = pathlib.Path(folder.name) / "map.html"

    def page(self, directory, status=ALL_GOOD, talk=""):
        outcome = run("map", directory, "-o", self.file)
        self.expect(status, outcome, talk)
        self.assertEqual("", outcome.text)
        return self.file.read_text(encoding="utf-8")


class Output(MapTest):
    def test_replaces_the_file(self):
        self.file.write_text("x" * 1_000_000)
        self.assertTrue(self.page(COMPLETE).startswith("<!DOCTYPE html>"))
        self.assertTrue(self.file.read_text().endswith("</html>\n"))

    def test_minus_is_standard_output(self):
        outcome = run("map", COMPLETE, "-o", "-")
        self.expect(ALL_GOOD, outcome)
        self.assertEqual(self.page(COMPLETE), outcome.text)

    def test_is_the_same_each_time(self):
        self.assertEqual(self.page(COMPLETE), self.page(COMPLETE))

    def test_is_required(self):
        for arguments in ([], ["-o"], ["-o", ""]):
            with self.subTest(arguments):
                self.assertEqual(WRONG_USAGE, run("map", COMPLETE, *arguments).status)

    def test_that_cannot_be_written_gives_the_status_of_no_result(self):
        for place in ("/dev/full", self.file.parent, self.file.parent / "no" / "such"):
            with self.subTest(place):
                self.expect(NO_RESULT, run("map", COMPLETE, "-o", place), f"isoxml: cannot write to {place}\n")

    def test_its_name_cannot_drive_the_terminal(self):
        outcome = run("map", COMPLETE, "--output", "/no/such/\x1b[2J")
        self.expect(NO_RESULT, outcome, "isoxml: cannot write to /no/such/\\x1b[2J\n")

    def test_on_a_full_standard_output_gives_the_status_of_no_result(self):
        with open("/dev/full", "wb") as full:
            self.expect(NO_RESULT, run("map", COMPLETE, "-o", "-", stdout=full), "isoxml: cannot write to standard output\n")

    def test_stays_as_it_was_when_the_main_document_failed(self):
        self.file.write_text("the map of yesterday")
        self.expect(NO_RESULT, run("map", self.make_set(), "-o", self.file), "TASKDATA.XML:1: 1: Unable to open file\n")
        self.assertEqual("the map of yesterday", self.file.read_text())

    def test_tells_failed_documents_and_draws_the_rest(self):
        page = self.page(EXAMPLE_SETS / "broken-external", SOME_FAILED, "FRM00001:4: 10: Bad end of element (XFC)\n")
        data = data_in(page)
        self.assertEqual([("FRM00001", 4, "Bad end of element", "XFC")],
                         [(each["file"], each["line"], each["text"], each["item"]) for each in data["failures"]])
        self.assertEqual((3, 1), (data["documents"], len(data["fields"])))


class Page(MapTest):
    def test_allows_only_its_own_style_and_script(self):
        page = self.page(COMPLETE)
        policy = re.search(r'http-equiv="Content-Security-Policy" content="([^"]*)"', page).group(1)
        directives = dict(part.strip().split(" ", 1) for part in policy.split(";"))
        expected = {"default-src": "'none'", "base-uri": "'none'", "form-action": "'none'"}
        for tag in ("style", "script"):
            digest = hashlib.sha256(content_of(tag, page).encode()).digest()
            expected[f"{tag}-src"] = f"'sha256-{base64.b64encode(digest).decode()}'"
        self.assertEqual(expected, directives)

    def test_refers_to_nothing_outside(self):
        page = self.page(COMPLETE)
        self.assertEqual({"http://www.w3.org/2000/svg"}, set(re.findall(r"\b\w+://[^\s\"'<>]*", page)))
        self.assertEqual([], re.findall(r"\b(?:src|href|action|poster|data)=", page))
        self.assertEqual([], re.findall(r"\burl\(|@import|\bfetch\(|XMLHttpRequest|WebSocket|import\(", page))

    def test_never_makes_markup_of_text(self):
        script = content_of("script", self.page(COMPLETE))
        self.assertEqual([], re.findall(r"innerHTML|outerHTML|insertAdjacentHTML|document\.write|\beval\b|Function\(", script))

    def test_keeps_hostile_text_in_its_data(self):
        for start in range(0, len(HOSTILE), 30):  # a designator has up to 32 characters
            name = HOSTILE[start:start + 30]
            written = "".join(f"&#{ord(character)};" for character in name)
            document = task_data(f'<CTR A="CTR1" B="{written}"/><PDT A="PDT1" B="{written}"/><FRM A="FRM1" B="{written}"/>'
                                 f'<PFD A="PFD1" C="{written}" D="1"><PNT A="1" B="{written}" C="1" D="2"/></PFD>'
                                 f'<TSK A="TSK1" B="{written}" G="1"/>')
            page = self.page(self.make_set(TASKDATA=document))
            data = data_in(page)
            self.assertEqual([name] * 6, [data[key][0]["name"] for key in ("growers", "products", "farms", "fields", "tasks")]
                             + [data["fields"][0]["points"][0]["name"]])
            self.assertEqual(2, page.count("</script>"))
            self.assertTrue(page[page.index('id="data">'):page.index("</script")].isascii())

    def test_takes_bytes_that_are_no_text(self):
        document = task_data('<PFD A="PFD1" C="@" D="1"/>').encode().replace(b"@", b"H\xe4fe")
        self.assertEqual("H\ufffdfe", data_in(self.page(self.make_set(TASKDATA=document)))["fields"][0]["name"])

    def test_names_the_directory_without_where_it_is(self):
        directory = self.make_set(TASKDATA=task_data())
        for spelled in (directory, f"{directory}/", f"{directory}/.", f"{directory}/x/.."):
            with self.subTest(spelled):
                if str(spelled).endswith(".."):
                    (directory / "x").mkdir()
                page = self.page(spelled)
                self.assertEqual(directory.name, data_in(page)["name"])
                self.assertNotIn(str(directory.parent) + "/", page)
        self.assertEqual("tools", data_in(self.page_from(directory))["name"])

    def page_from(self, directory):
        inside = directory / "tools"
        inside.mkdir()
        os.rename(directory / "TASKDATA.XML", inside / "TASKDATA.XML")
        outcome = run("map", ".", "-o", self.file, cwd=inside)
        self.expect(ALL_GOOD, outcome)
        return self.file.read_text()


class Data(MapTest):
    def paths(self, data, path):
        """The positions of a path of the page's data."""
        east, north = data["origin"]
        positions, x, y = [], 0, 0
        for i in range(0, len(path), 2):
            x, y = x + path[i], y + path[i + 1]
            positions.append((round(east + x / 1e8, 8), round(north + y / 1e8, 8)))
        return positions

    def test_holds_what_the_set_has(self):
        data = data_in(self.page(COMPLETE))
        self.assertEqual("complete", data["name"])
        self.assertEqual([("CTR1", "Hill Estate"), ("CTR2", "Lake Cooperative")],
                         [(each["id"], each["name"]) for each in data["growers"]])
        meadow = data["fields"][0]
        self.assertEqual(("PFD1", "Long Meadow", 131300, "CTR1", "FRM1", "Winter wheat"),
                         tuple(meadow[key] for key in ("id", "name", "area", "grower", "farm", "crop")))
        (area,) = meadow["areas"]
        self.assertEqual((True, 1, 2), (area["isBoundary"], area["exteriors"], len(area["rings"])))
        self.assertEqual({(9.2, 52.1), (9.2, 52.103), (9.206, 52.103), (9.206, 52.1)}, set(self.paths(data, area["rings"][0])))
        self.assertEqual([[(9.2003, 52.1001), (9.2003, 52.1029)]],
                         [self.paths(data, each["path"]) for each in meadow["guidance"]])
        self.assertEqual([("3", "Gate", [(9.2031, 52.1)]), ("5", "Pylon", [(9.2047, 52.1022)])],
                         [(each["type"], each["name"], self.paths(data, each["path"])) for each in meadow["points"]])

    def test_tells_which_value_is_of_which_kind(self):
        content = ('<VPN A="VPN1" B="-5" C="0.5" D="2" E="kg"/>'
                   '<TSK A="TSK1" G="1"><TZN A="1"><PDV A="0001" B="3"/><PDV A="0006" B="4" E="VPN1"/></TZN>'
                   '<TZN A="2"><PDV A="0006" B="5" E="VPN1"/><PDV A="0001" B="6" C="PDT9"/></TZN></TSK>')
        (task,) = data_in(self.page(self.make_set(TASKDATA=task_data(content))))["tasks"]
        self.assertEqual([[[0, 3], [1, 4]], [[1, 5], [2, 6]]], [zone["values"] for zone in task["zones"]])
        self.assertEqual([
            {"ddi": "0001", "product": "", "element": ""},
            {"ddi": "0006", "product": "", "element": "", "offset": -5, "scale": 0.5, "decimals": 2, "unit": "kg"},
            {"ddi": "0001", "product": "PDT9", "element": ""},
        ], task["variables"])

    def test_has_a_pivots_centre_first(self):
        points = '<PNT A="6" C="1" D="1"/><PNT A="8" C="2" D="2"/><PNT A="7" C="3" D="3"/>'
        data = data_in(self.page(self.make_set(TASKDATA=task_data(
            f'<PFD A="PFD1" C="F" D="1"><GGP A="GGP1"><GPN A="GPN1" C="4" H="5000"><LSG A="5">{points}</LSG></GPN></GGP></PFD>'))))
        (line,) = data["fields"][0]["guidance"]
        self.assertEqual((True, 5000, [(2, 2), (1, 1), (3, 3)]), (line["isPivot"], line["radius"], self.paths(data, line["path"])))

    def test_goes_the_short_way_across_the_date_line(self):
        points = "".join(f'<PNT A="2" C="1" D="{east}"/>' for east in ("179.9", "-179.9"))
        data = data_in(self.page(self.make_set(TASKDATA=task_data(f'<PFD A="PFD1" C="F" D="1"><LSG A="7">{points}</LSG></PFD>'))))
        self.assertEqual([0, 0, 20_000_000, 0], data["fields"][0]["lines"][0]["path"])

    def test_of_a_set_without_positions_has_no_origin(self):
        self.assertIsNone(data_in(self.page(self.make_set(TASKDATA=task_data())))["origin"])


if __name__ == "__main__":
    unittest.main()
