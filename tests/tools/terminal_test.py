"""Listings on a terminal: they fit its width, headers are bold where that is wanted, no character is torn."""
import fcntl
import json
import os
import pty
import re
import struct
import subprocess
import termios
import threading
import unicodedata
import unittest

from tool import ALL_GOOD, EXAMPLE_SETS, SOME_FAILED, TransferSetTest, run, task_data

COMPLETE = EXAMPLE_SETS / "complete"
COMMANDS = ["growers", "farms", "fields", "products", "crops", "tasks", "rx", "questions", "devices"]
END = b"\x04"  # in no text of a document, and escaped wherever a listing shows one
BOLD, PLAIN = "\x1b[1m", "\x1b[0m"


def columns_of(text):
    wide = sum(unicodedata.east_asian_width(character) in "WF" for character in text)
    return len(text) + wide - sum(unicodedata.combining(character) != 0 for character in text)


class Terminal(TransferSetTest):
    def show(self, columns, *arguments, status=ALL_GOOD, **environment):
        """What the program writes to a terminal of that width, as lines."""
        ours, theirs = pty.openpty()
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        environment = {"TERM": "xterm"} | environment
        keep = {name: value for name, value in os.environ.items() if name not in ("NO_COLOR", "COLUMNS", "TERM")}
        # Without a shell of its own it is no session leader, so the terminal does not become its controlling one.
        process = subprocess.Popen([os.environ["ISOXML_TOOL"], *arguments], stdin=subprocess.DEVNULL, stdout=theirs,
                                   stderr=subprocess.PIPE, env=keep | environment)
        written = b""

        # The terminal is held open and its end marked by hand: whoever reads from one that closes while its
        # last lines arrive may be told of the end before them.
        def mark_end():
            _, self.talk = process.communicate()
            os.write(theirs, END)

        marker = threading.Thread(target=mark_end)
        marker.start()
        while not written.endswith(END):
            written += os.read(ours, 65536)
        marker.join()
        os.close(theirs)
        os.close(ours)
        self.assertEqual(status, process.returncode)
        return written.removesuffix(END).decode().replace("\r\n", "\n").splitlines()


class Width(Terminal):
    def test_is_kept_by_every_line(self):
        for command in COMMANDS:
            whole = run(command, COMPLETE).lines
            for columns in (1, 2, 3, 4, 5, 6, 10, 20, 40, 60, 79, 80, 81, 100, 120, 1000):
                with self.subTest(command, columns=columns):
                    shown = self.show(columns, command, COMPLETE, NO_COLOR="1")
                    self.assertEqual(len(whole), len(shown))
                    self.assertLessEqual(max(map(columns_of, shown)), columns)
                    if columns >= max(map(columns_of, whole)):
                        self.assertEqual(whole, shown)
                    else:
                        self.assertTrue(any("…" in line for line in shown))

    def test_is_used_up_before_a_cell_is_shortened(self):
        for command in COMMANDS:
            for columns in (40, 50, 60, 80, 100):
                with self.subTest(command, columns=columns):
                    header, *rows = self.show(columns, command, COMPLETE, NO_COLOR="1")
                    if any(re.search(r"\S…", line) for line in [header, *rows]):
                        self.assertGreater(columns_of(header), columns - len(header.split("  ")))

    def test_of_20_columns_keeps_identifiers_and_beginnings(self):
        self.assertEqual(["Id    Name         …", "CTR1  Hill Estate  …", "CTR2  Lake Coope…  …"],
                         self.show(20, "growers", COMPLETE, NO_COLOR="1"))

    def test_of_80_columns_is_taken_where_the_terminal_tells_none(self):
        self.assertEqual(self.show(80, "growers", COMPLETE), self.show(0, "growers", COMPLETE))

    def test_is_not_read_from_the_environment(self):
        self.assertEqual(self.show(80, "growers", COMPLETE), self.show(80, "growers", COMPLETE, COLUMNS="40"))

    def test_is_taken_from_the_last_column_and_then_from_the_widest(self):
        growers = '<CTR A="CTR1" B="Short" C="abcdefghijklmnopqrstuvwxyzabcdef" D="Road 1" G="Town" J="1"/>'
        directory = self.make_set(TASKDATA=task_data(growers))
        for columns, row in (
            (100, "CTR1  Short  abcdefghijklmnopqrstuvwxyzabcdef  Road 1  Town  1      -"),
            (72, "CTR1  Short  abcdefghijklmnopqrstuvwxyzabcdef  Road 1  Town  1      -"),
            (71, "CTR1  Short  abcdefghijklmnopqrstuvwxyzabcdef  Road 1  Town  1      …"),
            (60, "CTR1  Short  abcdefghijklmnopqrstuv…  Road 1  Town  1      …"),
            (45, "CTR1  Short  abcdefg…  Road 1  Town  1      …"),
            (41, "CTR1  Short  abcdefghij…  Road 1  Town  …"),
            (20, "CTR1  Short  …"),
        ):
            with self.subTest(columns):
                self.assertEqual(row, self.show(columns, "growers", directory, NO_COLOR="1")[1])

    def test_does_not_shorten_json(self):
        for command in COMMANDS:
            with self.subTest(command):
                shown = "\n".join(self.show(20, command, COMPLETE, "--json"))
                self.assertEqual(json.loads(run(command, COMPLETE, "--json").data), json.loads(shown))

    def test_counts_what_the_terminal_shows(self):
        for caption, name in (
            ("two bytes", "ä" * 32),
            ("three bytes", "€" * 32),
            ("four bytes", "\U00010348" * 32),
            ("wide", "農" * 32),
            ("wide beyond the basic plane", "\U0001F33E" * 32),
            ("wide and narrow in turn", "a農" * 16),
            ("combining marks", "e\u0301" * 16),
            ("escaped", "&#27;" * 32),
        ):
            directory = self.make_set(TASKDATA=task_data(f'<CTR A="CTR1" B="{name}" C="x" D="y"/>'))
            for columns in range(5, 60):
                with self.subTest(caption, columns=columns):
                    header, row = self.show(columns, "growers", directory, NO_COLOR="1")
                    self.assertNotIn("\ufffd", row)
                    self.assertNotIn("\x1b", row)
                    self.assertLessEqual(columns_of(row), columns)
                    if columns >= 20:  # both columns are there: the next begins where its header does
                        at = header.find("  First")
                        self.assertTrue(at < 0 or columns_of(row[:row.index("  x") + 2]) == at + 2, (header, row))


class Emphasis(Terminal):
    def test_makes_the_header_bold_and_nothing_else(self):
        for command in COMMANDS:
            with self.subTest(command):
                header, *rows = self.show(200, command, COMPLETE)
                self.assertTrue(header.startswith(BOLD) and header.endswith(PLAIN), header)
                self.assertNotIn("\x1b", "".join(rows))
                plain = [header[len(BOLD):-len(PLAIN)], *rows]
                self.assertEqual(run(command, COMPLETE).lines, plain)

    def test_is_off_where_it_is_not_wanted(self):
        for caption, environment in (("NO_COLOR", {"NO_COLOR": "1"}), ("NO_COLOR of any value", {"NO_COLOR": "0"}),
                                     ("a dumb terminal", {"TERM": "dumb"}), ("an unknown terminal", {"TERM": ""})):
            with self.subTest(caption):
                self.assertNotIn("\x1b", "".join(self.show(200, "growers", COMPLETE, **environment)))

    def test_is_on_where_no_color_is_empty(self):
        self.assertTrue(self.show(200, "growers", COMPLETE, NO_COLOR="")[0].startswith(BOLD))

    def test_is_whole_in_a_narrow_terminal(self):
        for columns in range(1, 40):
            header = self.show(columns, "growers", COMPLETE)[0]
            self.assertTrue(header.startswith(BOLD) and header.endswith(PLAIN), header)
            self.assertLessEqual(columns_of(re.sub("\x1b\\[[0-9]m", "", header)), columns)

    def test_is_not_there_without_a_table(self):
        self.assertEqual(["none"], self.show(80, "growers", self.make_set(TASKDATA=task_data())))


class FailedDocuments(Terminal):
    def test_are_told_whole(self):
        self.show(20, "growers", EXAMPLE_SETS / "broken-external", status=SOME_FAILED)
        self.assertEqual(b"FRM00001:4: 10: Bad end of element (XFC)\n", self.talk)


if __name__ == "__main__":
    unittest.main()
