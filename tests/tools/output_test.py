"""How output leaves the program: what documents can do to a terminal, and what happens when nothing can be
written."""
import json
import unittest

from tool import ALL_GOOD, EXAMPLE_SETS, NO_RESULT, SOME_FAILED, TransferSetTest, run, task_data

COMMANDS = (["info", EXAMPLE_SETS / "complete"], ["info", EXAMPLE_SETS / "complete", "--json"],
            ["info", EXAMPLE_SETS / "broken-external"], ["--help"], ["info", "--help"], ["--version"])


class HostileText(TransferSetTest):
    def test_is_escaped_in_text_and_kept_in_json(self):
        for caption, value, shown, kept in (
            ("plain text", b"Maker", "Maker", "Maker"),
            ("two bytes", "ö".encode(), "ö", "ö"),
            ("three bytes", "€".encode(), "€", "€"),
            ("four bytes", "\U0001F33E".encode(), "\U0001F33E", "\U0001F33E"),
            ("a control sequence", b"&#27;[2J", r"\x1b[2J", "\x1b[2J"),
            ("a bell", b"&#7;", r"\x07", "\x07"),
            ("a zero byte", b"&#0;!", r"\x00!", "\x00!"),
            ("a line feed", b"a&#10;b", r"a\x0ab", "a\nb"),
            ("a carriage return", b"a&#13;b", r"a\x0db", "a\rb"),
            ("the last C0 control", b"&#31;", r"\x1f", "\x1f"),
            ("delete", b"&#127;", r"\x7f", "\x7f"),
            ("the first C1 control", b"&#128;", r"\xc2\x80", "\x80"),
            ("C1 control sequence introducer", b"&#155;2J", r"\xc2\x9b2J", "\x9b2J"),
            ("the first after C1", b"&#160;", "\xa0", "\xa0"),
            ("a paragraph separator", b"a&#8233;b", r"a\xe2\x80\xa9b", "a\u2029b"),
            ("a mark that turns direction", b"&#8238;b", r"\xe2\x80\xaeb", "\u202eb"),
            ("an isolate", b"&#8294;b", r"\xe2\x81\xa6b", "\u2066b"),
            ("a backslash", b"\\x1b", r"\\x1b", "\\x1b"),
            ("a quote", b"a&quot;b", 'a"b', 'a"b'),
            ("Latin-1 in a document that claims nothing", b"H\xe4fe", r"H\xe4fe", "H\ufffdfe"),
            ("the same at the end", b"H\xe4", r"H\xe4", "H\ufffd"),
            ("half of a pair", b"&#55296;!", r"\xed\xa0\x80!", "\ufffd\ufffd\ufffd!"),
        ):
            document = task_data(ManagementSoftwareManufacturer="@").encode().replace(b"@", value)
            directory = self.make_set(TASKDATA=document)
            with self.subTest(caption, form="text"):
                outcome = run("info", directory)
                self.expect(ALL_GOOD, outcome)
                self.assertIn(f"  Management software, manufacturer  {shown}", outcome.text.split("\n"))
            with self.subTest(caption, form="JSON"):
                outcome = run("info", directory, "--json")
                self.expect(ALL_GOOD, outcome)
                self.assertTrue(outcome.data.isascii())
                self.assertNotIn(b"\x7f", outcome.data)
                self.assertEqual(kept, json.loads(outcome.data)["header"]["managementSoftwareManufacturer"])

    def test_is_escaped_in_failures(self):
        for caption, name, shown in (
            ("a control sequence", b"\x1b]0;x\x07", r"\x1b]0;x\x07"),
            ("a letter in two bytes", b"\xc1\x81", r"\xc1\x81"),
            ("a letter in three bytes", b"\xe0\x81\x81", r"\xe0\x81\x81"),
            ("a letter in four bytes", b"\xf0\x80\x81\x81", r"\xf0\x80\x81\x81"),
            ("an escape in two bytes", b"\xc0\x9b!", r"\xc0\x9b!"),
            ("a surrogate", b"\xed\xbf\xbf", r"\xed\xbf\xbf"),
            ("the last character", b"\xf4\x8f\xbf\xbf", "\U0010ffff"),
            ("beyond the last character", b"\xf4\x90\x80\x80", r"\xf4\x90\x80\x80"),
            ("a lead byte that no character has", b"\xf8\x88\x80\x80", r"\xf8\x88\x80\x80"),
            ("a byte that begins nothing", b"\x80", r"\x80"),
            ("a character that is cut off", b"\xe2\x80", r"\xe2\x80"),
            ("a good character after a bad byte", b"\xff\xc3\xb6", r"\xff" "ö"),
        ):
            with self.subTest(caption):
                outcome = run("info", self.make_set(), "--main", name)
                self.expect(NO_RESULT, outcome, shown + ":1: 1: Unable to open file\n")

    def test_escapes_each_mark_that_turns_direction_or_ends_a_line_and_no_neighbour(self):
        marks = {0x61C, 0x200E, 0x200F, *range(0x2028, 0x202F), *range(0x2066, 0x206A)}
        neighbours = {code + step for code in marks for step in (-1, 1)} - marks
        for code in sorted(marks | neighbours):
            character = chr(code)
            shown = "".join(rf"\x{byte:02x}" for byte in character.encode()) if code in marks else character
            with self.subTest(hex(code)):
                outcome = run("info", self.make_set(), "--main", character.encode())
                self.expect(NO_RESULT, outcome, shown + ":1: 1: Unable to open file\n")

    def test_cannot_fake_a_row(self):
        files = '<AFE A="NOTES001.TXT" B="1" C="&#10;  NOTES002.TXT" D="9"/>'
        outcome = run("info", self.make_set(TASKDATA=task_data(files)))
        self.assertEqual(1, sum(line.startswith("  NOTES") for line in outcome.lines))


class OutputThatFails(TransferSetTest):
    FAULT = "isoxml: cannot write to standard output\n"

    def test_gives_the_status_of_no_result_on_a_full_device(self):
        for arguments in COMMANDS:
            with self.subTest(arguments), open("/dev/full", "wb") as full:
                outcome = run(*arguments, stdout=full)
                self.assertEqual(NO_RESULT, outcome.status)
                self.assertTrue(outcome.talk.endswith(self.FAULT), outcome.talk)

    def test_gives_the_status_of_no_result_when_standard_output_is_closed(self):
        for arguments in COMMANDS:
            with self.subTest(arguments):
                # The closed descriptor is then the next one that is opened: a document of the set.
                closed = ["sh", "-c", 'exec "$@" >&-', "sh"]
                outcome = run(*arguments, wrapper=closed, stdout=None)
                self.assertEqual(NO_RESULT, outcome.status)
                self.assertTrue(outcome.talk.endswith(self.FAULT), outcome.talk)

    def test_still_tells_the_failed_documents(self):
        with open("/dev/full", "wb") as full:
            outcome = run("info", EXAMPLE_SETS / "broken-external", stdout=full)
        self.expect(NO_RESULT, outcome, "FRM00001:4: 10: Bad end of element (XFC)\n" + self.FAULT)

    def test_on_standard_error_changes_nothing_else(self):
        directory = EXAMPLE_SETS / "broken-external"
        with open("/dev/full", "wb") as full:
            outcome = run("info", directory, stderr=full)
        self.assertEqual((SOME_FAILED, run("info", directory).data), (outcome.status, outcome.data))


if __name__ == "__main__":
    unittest.main()
