"""The commands that list what a set holds: values, failed documents, hostile text, prescriptions of one task."""
import json
import subprocess
import sys
import unittest

from reading import Set, decimal, difference
from tool import (ALL_GOOD, EXAMPLE_SETS, NO_RESULT, ROOT, SOME_FAILED, WRONG_USAGE, TransferSetTest, run,
                  task_data)

COMPLETE = EXAMPLE_SETS / "complete"
COMMANDS = ["growers", "farms", "fields", "products", "crops", "tasks", "rx", "questions", "devices"]

RING = '<LSG A="1"{}><PNT A="2" C="1" D="2"/><PNT A="2" C="1" D="3"/><PNT A="2" C="2" D="3"/></LSG>'

# For each command an element with a free text, which stands where "@" is, and a header before whose column it is.
TEXT_OF = {
    "growers": '<CTR A="CTR1" B="@"/>',
    "farms": '<FRM A="FRM1" B="@"/>',
    "fields": '<PFD A="PFD1" C="@" D="1"/>',
    "products": '<PDT A="PDT1" B="@"/>',
    "crops": '<CTP A="CTP1" B="@"/>',
    "tasks": '<TSK A="TSK1" B="@" G="1"/>',
    "rx": '<TSK A="TSK1" G="1"><TZN A="1" B="@"/></TSK>',
    "questions": '<P917_Questions><P917_Question P917_Uuid="542861cd-55e7-467e-ae6a-c4a9e89c5bc7" '
                 'P917_ReplyType="list"><P917_Prompt>@</P917_Prompt></P917_Question></P917_Questions>',
    "devices": '<DVC A="DVC1" B="@" D="A000860000000001" F="30303030303031" G="FF00000000656E">'
               '<DET A="DET1" B="1" C="1" E="0" F="0"/></DVC>',
}


def list_json(command, directory, *arguments):
    return json.loads(run(command, directory, "--json", *arguments).data)


def texts_in(value):
    """All texts of a JSON value."""
    if isinstance(value, str):
        return [value]
    parts = value.values() if isinstance(value, dict) else value if isinstance(value, list) else []
    return [text for part in parts for text in texts_in(part)]


def cells(line):
    return [cell for cell in line.split("  ") if cell.strip()]


class Values(TransferSetTest):
    def expect_as_read(self, directory, commands=COMMANDS):
        """JSON of each command is what the independent reading has. Gives how many records there were."""
        reading = Set(directory)
        counts = {}
        for command in commands:
            with self.subTest(command):
                outcome = run(command, directory, "--json")
                self.expect(ALL_GOOD, outcome)
                expected = getattr(reading, command)()
                self.assertEqual("", difference(expected, json.loads(outcome.data)))
                counts[command] = len(expected)
        return counts

    def test_of_the_example_are_those_of_the_documents(self):
        counts = self.expect_as_read(COMPLETE)
        self.assertNotIn(0, counts.values())

    def test_of_generated_sets_are_those_of_the_documents(self):
        for profile, seed, commands in (
            ("mixed", 1, COMMANDS),
            ("mixed", 2, COMMANDS),
            ("fields", 3, ["fields"]),
            ("tasks", 4, ["tasks", "rx"]),
            ("devices", 5, ["devices"]),
        ):
            with self.subTest(profile=profile, seed=seed):
                directory = self.make_set()
                subprocess.run([sys.executable, "-B", ROOT / "tests" / "generator" / "transfer_set.py", directory,
                                "--profile", profile, "--seed", str(seed), "--size", "300000"], check=True)
                counts = self.expect_as_read(directory, commands)
                self.assertNotIn(0, counts.values())

    def test_of_a_field_keep_every_digit(self):
        texts = ["51.123456789012345", "-0.0000000000000001", "89.99999999999999", "0.1", "-90.0", "4.35"]
        points = "".join(f'<PNT A="1" C="{text}" D="{text}"/>' for text in texts)
        directory = self.make_set(TASKDATA=task_data(f'<PFD A="PFD1" C="" D="1">{points}</PFD>'))
        [field] = list_json("fields", directory)
        self.assertEqual([decimal(text) for text in texts], [point["east"] for point in field["scoutPoints"]])
        self.assertEqual([decimal(text) for text in texts], [point["north"] for point in field["scoutPoints"]])

    def test_largest_numbers_are_whole(self):
        content = (f'<PFD A="PFD1" C="" D="4294967294"><PLN A="1" C="4294967294" D="254">{RING.format("")}</PLN>'
                   '<PNT A="1" C="1" D="1" E="-2147483647"/></PFD>')
        [field] = list_json("fields", self.make_set(TASKDATA=task_data(content)))
        self.assertEqual(4294967294, field["area"])
        self.assertEqual((4294967294.0, 254), (field["polygons"][0]["area"], field["polygons"][0]["colour"]))
        self.assertEqual(-2147483647.0, field["scoutPoints"][0]["altitude"])

    def test_json_has_the_layout_of_all_json(self):
        for command in COMMANDS:
            with self.subTest(command):
                outcome = run(command, COMPLETE, "--json")
                self.assertEqual(json.dumps(json.loads(outcome.data), indent=2) + "\n", outcome.text)


class Text(TransferSetTest):
    def test_counts_geometry(self):
        outcome = run("fields", COMPLETE)
        self.expect(ALL_GOOD, outcome)
        header, meadow, shore = map(cells, outcome.lines)
        row = dict(zip(map(str.strip, header), map(str.strip, meadow)))
        self.assertEqual({"Id": "PFD1", "Name": "Long Meadow", "Area": "131300", "Grower": "CTR1", "Farm": "FRM1",
                          "Bounds": "1", "Holes": "1", "Points": "10", "Guidance": "1/1", "Scout": "3",
                          "UUID": "06e82a01-2b5c-4cd1-a7ca-430e92ac3d42"}, row)
        self.assertEqual(["1", "0", "4", "0/0", "0"], [cell.strip() for cell in shore[5:10]])

    def test_counts_boundaries_apart_from_other_polygons(self):
        content = (f'<PFD A="PFD1" C="F" D="1"><PLN A="1">{RING.format("")}</PLN><PLN A="3">{RING.format("")}</PLN>'
                   f'<PLN A="1">{RING.format("")}</PLN></PFD>')
        outcome = run("fields", self.make_set(TASKDATA=task_data(content)))
        self.assertRegex(outcome.lines[1], r"^PFD1  F +1 +- +- +2 +0 +9 +0/0 +0 +-$")

    def test_shows_as_many_rows_as_there_are_records_and_is_not_shortened(self):
        long_name = "An owner with a name of 32 chars"
        growers = "".join(f'<CTR A="CTR{i}" B="{long_name}" C="{long_name}" D="{long_name}" G="{long_name}"/>'
                          for i in range(1, 40))
        outcome = run("growers", self.make_set(TASKDATA=task_data(growers)))
        self.assertEqual(40, len(outcome.lines))
        self.assertEqual(4 * 39, outcome.text.count(long_name))

    def test_without_a_uuid_shows_none(self):
        directory = self.make_set(TASKDATA=task_data('<CTR A="CTR1" B="Owner"/>'))
        self.assertEqual("-", run("growers", directory).lines[1].split()[-1])
        self.assertIsNone(list_json("growers", directory)[0]["uuid"])

    def test_tells_codes_in_words(self):
        for command, element, words in (
            ("tasks", '<TSK A="TSK1" G="{}"/>',
             ["planned", "running", "paused", "completed", "template", "cancelled"]),
            ("products", '<PDT A="PDT1" B="P" F="{}"/>', ["single", "mixture", "temporary mixture"]),
        ):
            for code, word in enumerate(words, start=1):
                with self.subTest(command, code=code):
                    directory = self.make_set(TASKDATA=task_data(element.format(code)))
                    self.assertIn(f"  {word}  ", run(command, directory).lines[1])
                    [record] = list_json(command, directory)
                    self.assertEqual(str(code), record.get("status") or record.get("type"))

    def test_is_the_same_plain_text_whatever_the_environment_says(self):
        for command in COMMANDS:
            with self.subTest(command):
                plain = run(command, COMPLETE).data
                self.assertNotIn(b"\x1b", plain)
                environment = {"COLUMNS": "20", "TERM": "xterm", "CLICOLOR_FORCE": "1"}
                self.assertEqual(plain, run(command, COMPLETE, wrapper=["env", *map("=".join, environment.items())]).data)


class Nothing(TransferSetTest):
    def test_in_the_set_is_none_and_an_empty_array(self):
        directory = self.make_set(TASKDATA=task_data())
        for command in COMMANDS:
            with self.subTest(command):
                text, array = run(command, directory), run(command, directory, "--json")
                self.expect(ALL_GOOD, text)
                self.expect(ALL_GOOD, array)
                self.assertEqual(("none\n", "[]\n"), (text.text, array.text))

    def test_is_there_when_the_main_document_failed(self):
        for directory in (self.make_set(), self.make_set() / "missing"):
            for command in COMMANDS:
                with self.subTest(command):
                    text, array = run(command, directory), run(command, directory, "--json")
                    self.expect(NO_RESULT, text, "TASKDATA.XML:1: 1: Unable to open file\n")
                    self.expect(NO_RESULT, array, "TASKDATA.XML:1: 1: Unable to open file\n")
                    self.assertEqual(("none\n", "[]\n"), (text.text, array.text))

    def test_of_these_stands_under_another_root(self):
        for root in ("<XFC/>", '<TSK A="TSK1" G="1"/>', "<ISO11783LinkList VersionMajor='4' VersionMinor='3' "
                     "ManagementSoftwareManufacturer='' ManagementSoftwareVersion='' DataTransferOrigin='1'/>"):
            with self.subTest(root):
                self.assertEqual([], list_json("devices", self.make_set(TASKDATA=root)))


class FailedDocuments(TransferSetTest):
    def test_are_told_and_the_rest_is_shown(self):
        content = "".join(TEXT_OF.values()).replace("@", "Shown").replace(TEXT_OF["tasks"].replace("@", "Shown"), "")
        directory = self.make_set(TASKDATA=task_data(content + '<XFR A="FRM00001" B="1"/><XFR A="CTR00001" B="1"/>'),
                                  FRM00001='<XFC><FRM A="FRM2" B="Left out"/></CTR>',
                                  CTR00001='<XFC><CTR A="CTR2" B="Shown too"/></XFC>')
        talk = "FRM00001:1: 10: Bad end of element (XFC)\n"
        for command in COMMANDS:
            with self.subTest(command):
                text, array = run(command, directory), run(command, directory, "--json")
                self.expect(SOME_FAILED, text, talk)
                self.expect(SOME_FAILED, array, talk)
                count = 2 if command == "growers" else 1
                self.assertEqual((1 + count, count), (len(text.lines), len(json.loads(array.data))))
                self.assertNotIn("Left out", text.text + array.text)

    def test_devices_are_taken_from_external_files_too(self):
        device = TEXT_OF["devices"]
        directory = self.make_set(TASKDATA=task_data('<XFR A="DVC00001" B="1"/>' + device.replace("@", "First")),
                                  DVC00001="<XFC>" + device.replace("@", "Second") + "</XFC>")
        self.assertEqual(["First", "Second"], [each["designator"] for each in list_json("devices", directory)])


class HostileText(TransferSetTest):
    def test_cannot_drive_the_terminal_or_break_json(self):
        hostile = b"a&#27;[2J\xe4&#155;&#8238;\\b"
        shown = r"a\x1b[2J\xe4\xc2\x9b\xe2\x80\xae\\b"
        for command, content in TEXT_OF.items():
            directory = self.make_set(TASKDATA=task_data(content).encode().replace(b"@", hostile))
            with self.subTest(command):
                text, array = run(command, directory), run(command, directory, "--json")
                self.expect(ALL_GOOD, text)
                self.expect(ALL_GOOD, array)
                self.assertIn(shown, text.text)
                self.assertNotRegex(text.text, "[\x00-\x09\x0b-\x1f\x7f-\x9f\u202e]")
                self.assertTrue(array.data.isascii())
                self.assertIn("a\x1b[2J\ufffd\x9b\u202e\\b", texts_in(json.loads(array.data)))

    def test_cannot_fake_a_row(self):
        for command, content in TEXT_OF.items():
            with self.subTest(command):
                directory = self.make_set(TASKDATA=task_data(content.replace("@", "a&#10;b")))
                self.assertEqual(2, len(run(command, directory).lines))


class Prescriptions(TransferSetTest):
    def zones(self, directory, *arguments):
        return [cells(line) for line in run("rx", directory, *arguments).lines[1:]]

    def test_of_one_task_are_those_of_that_task(self):
        tasks = "".join(f'<TSK A="TSK{i}" B="T{i}" G="1" H="{i}"><TZN A="{i}" B="Z{i}"/></TSK>' for i in range(1, 4))
        directory = self.make_set(TASKDATA=task_data(tasks + '<TSK A="TSK4" G="1"/>'))
        self.assertEqual(["TSK1", "TSK2", "TSK3"], [each["taskId"] for each in list_json("rx", directory)])
        [only] = list_json("rx", directory, "TSK2")
        self.assertEqual(("TSK2", "T2", 2), (only["taskId"], only["designator"], only["defaultTreatmentZoneCode"]))
        self.assertEqual([("TSK2", "Z2")], [(row[0], row[2].strip()) for row in self.zones(directory, "TSK2")])
        without = run("rx", directory, "TSK4")
        self.expect(ALL_GOOD, without)
        self.assertEqual("none\n", without.text)

    def test_of_a_task_that_is_not_there_are_no_result(self):
        for form, nothing in (([], "none\n"), (["--json"], "[]\n")):
            outcome = run("rx", COMPLETE, "TSK9", *form)
            self.expect(NO_RESULT, outcome, "isoxml: no task TSK9 in the set\n")
            self.assertEqual(nothing, outcome.text)
        self.expect(NO_RESULT, run("rx", COMPLETE, "\x1b[2J"), "isoxml: no task \\x1b[2J in the set\n")
        self.expect(NO_RESULT, run("rx", self.make_set(), "TSK9"), "TASKDATA.XML:1: 1: Unable to open file\n")

    def test_of_an_identifier_that_tasks_share_are_those_of_the_last(self):
        tasks = "".join(f'<TSK A="TSK1" B="T{i}" G="1" H="{i}"><TZN A="{i}"/></TSK>' for i in (1, 2))
        directory = self.make_set(TASKDATA=task_data(tasks))
        for arguments in ([], ["TSK1"]):
            [only] = list_json("rx", directory, *arguments)
            self.assertEqual(("T2", 2, [2]), (only["designator"], only["defaultTreatmentZoneCode"],
                                              [zone["code"] for zone in only["treatmentZones"]]))

    def test_have_a_row_for_each_value_and_one_for_a_zone_without(self):
        ring = RING.format(' E="65"')
        zone = (f'<TZN A="7" B="Wet"><PLN A="2" B="P">{ring}</PLN>'
                '<PDV A="0006" B="-5" C="PDT1"/><PDV A="00fF" B="2147483647"/></TZN>')
        bare = '<TZN A="8"/>'
        directory = self.make_set(TASKDATA=task_data(f'<TSK A="TSK1" G="1">{zone}{bare}</TSK>'))
        rows = [line.split() for line in run("rx", directory).lines]
        self.assertEqual([
            ["Task", "Code", "Zone", "DDI", "Value", "Product", "Colour", "Polygons"],
            ["TSK1", "7", "Wet", "0006", "-5", "PDT1", "65", "1"],
            ["TSK1", "7", "Wet", "00FF", "2147483647", "-", "65", "1"],
            ["TSK1", "8", "-", "-", "-", "-", "-", "0"],
        ], rows)
        [colour] = [ring["colour"] for ring in list_json("rx", directory)[0]["treatmentZones"][0]["polygons"]]
        self.assertEqual(65, colour)

    def test_of_several_colours_say_so(self):
        rings = "".join(RING.format(f' E="{colour}"') for colour in (200, 201))
        directory = self.make_set(TASKDATA=task_data(f'<TSK A="TSK1" G="1"><TZN A="1"><PLN A="2">{rings}</PLN></TZN></TSK>'))
        self.assertEqual(["several", "2"], run("rx", directory).lines[1].split()[-2:])

    def test_keep_the_values_after_the_last_polygon_only(self):
        polygon = f'<PLN A="2">{RING.format("")}</PLN>'
        zone = f'<TZN A="1"><PDV A="0001" B="1"/>{polygon}<PDV A="0001" B="2"/>{polygon}</TZN>'
        directory = self.make_set(TASKDATA=task_data(f'<TSK A="TSK1" G="1">{zone}</TSK>'))
        [only] = list_json("rx", directory)
        self.assertEqual([], only["treatmentZones"][0]["variables"])

    def test_of_very_many_tasks_are_shown(self):
        tasks = "".join(f'<TSK A="TSK{i}" G="1"><TZN A="1"/></TSK>' for i in range(20_000))
        directory = self.make_set(TASKDATA=task_data(tasks))
        self.assertEqual(20_001, len(run("rx", directory).lines))


class Usage(TransferSetTest):
    def test_wrong_usage_opens_nothing(self):
        for arguments, reason in (
            (["fields"], "DIR is required"),
            (["growers", COMPLETE, "TSK1"], "not expected"),
            (["rx", COMPLETE, ""], "TASK: must not be empty"),
            (["rx", COMPLETE, "TSK1", "TSK2"], "not expected"),
            (["growers", COMPLETE, "--geojson"], "not expected: --geojson"),
            (["fields", COMPLETE, "--json", "--geojson"], "--json excludes --geojson"),
            (["rx", COMPLETE, "TSK1", "--json", "--geojson"], "--json excludes --geojson"),
            (["rx", COMPLETE, "--geojson"], "--geojson requires TASK"),
        ):
            with self.subTest(arguments[0], reason=reason):
                outcome = run(*arguments)
                self.assertEqual((WRONG_USAGE, b""), (outcome.status, outcome.data))
                self.assertIn(reason, outcome.talk)

    def test_main_names_the_document(self):
        directory = self.make_set(OTHER=task_data("".join(TEXT_OF.values()).replace("@", "Text")))
        for command in COMMANDS:
            with self.subTest(command):
                outcome = run(command, directory, "--main", "OTHER", "--json")
                self.expect(ALL_GOOD, outcome)
                self.assertNotEqual([], json.loads(outcome.data))

    def test_output_that_cannot_be_written_is_no_result(self):
        for command in COMMANDS:
            for form in ([], ["--json"]):
                with self.subTest(command, form=form), open("/dev/full", "wb") as full:
                    outcome = run(command, COMPLETE, *form, stdout=full)
                    self.expect(NO_RESULT, outcome, "isoxml: cannot write to standard output\n")


if __name__ == "__main__":
    unittest.main()
